// Moves a window that opens to its place among the program's windows.
#pragma once

class Form;

/// Before the window is shown: beside its caller, off the field of the caller that has the focus, which it may be going
/// to fill, and off a window that is only looked at, which is read meanwhile. Nothing is remembered: it is placed anew
/// each time that it is shown again. A caller that is not on the screen yet is still to be placed by the window
/// manager; the window goes along with it then.
void PlaceBeside(Form &form, const Form *caller);
