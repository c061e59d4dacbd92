// The doors to the tutor for windows of every floor: its timer, which lives on the main window, and its pages.
#pragma once

#include <functional>

class QTimer;

/// The timer tmrAutoTutor of the main window; null while there is no main window.
QTimer *TutorTimer();

/// Shows a page, 1 to 26, of State.TutorInstructions in the tutor's window. Empty while there is no such window.
inline std::function<void(int)> ShowTutorPage;
