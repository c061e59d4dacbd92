// Moves a window that opens to its place among the program's windows.
#pragma once

class Form;

/// Before the window is shown: beside its caller, and off the field of the caller that has the focus, which it may be
/// going to fill. Nothing is remembered: it is placed anew each time that it is shown again.
void PlaceBeside(Form &form, const Form *caller);
