// The list of all windows: what the program makes known to the register, in one place, and which of them comes first.
#pragma once

#include <QString>

void RegisterWindows();

/// The welcome window while its option is 1, else the splash; the splash as long as there is no welcome window.
QString FirstWindow();
