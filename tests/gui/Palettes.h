// Complete palettes of a light and a dark desktop, in which windows and controls are looked at.
#pragma once

#include <QPalette>

QPalette LightPalette();
QPalette DarkPalette();
