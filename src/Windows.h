// The list of all windows: what the program declares to the register, in one place.
#pragma once

void DeclareWindows();
