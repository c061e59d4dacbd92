// Start and end: what fills the shared state, and the orderly way out.
#pragma once

#include "platform/desk/Printer.h"

/// Fills the shared state from the household's files and starts the calculator. Called once, by the main window.
/// One handler serves the whole routine: a file that is not found greys the calculator's entry and the next statement
/// follows; any other error is told, and the rest of the start is abandoned with State.InitializingVariables left true.
void InitializeVariables();

/// Reads the tutor's pages from help\Instruction.txt into State.TutorInstructions. Has no handler of its own: error 53
/// without the file, error 9 for a text line ahead of the first ";" or after the 27th.
void LoadTutorInstructions();

/// Closes the calculator, ignoring all errors. Called on every way out.
void CloseCalculatorOnExit();

/// Closes the calculator, prints what a print switch that is still on has kept, and ends the process at once.
void EndProgram();

/// What all ways out do: save the settings and end the program.
void LeaveProgram();

/// The print settings of the shared state as a font; every report applies it before it prints.
void ApplyPrintSettings();
