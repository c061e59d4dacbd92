// The desktop's own calculator. Only the one that this program started is ever touched.
#pragma once

/// Whether one of the usual calculators is installed.
bool CalculatorInstalled();
/// Starts it and places it down and to the right of where it opens, where the windowing system lets a program do that.
/// The keyboard stays with this program, unless the user has just asked to bring the calculator forward.
/// Error 53 if none is installed.
void StartCalculator();
/// Brings it to the front; error 5 if it does not run.
void BringCalculatorForward();
/// Closes it; every error is ignored.
void CloseCalculator();
