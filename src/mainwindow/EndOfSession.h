// The end that nobody at the screen has asked for: a signal, or the end of the desktop's session. Nothing is asked
// then, since nobody may be there to answer, and what would be told goes to the error output.
#pragma once

/// Saves the settings as the way out does. Before the main window stands there, nothing is loaded that could be saved.
void SaveWithoutQuestion();

/// Leaves the program as mnuFileExit does.
void LeaveWithoutQuestion();
