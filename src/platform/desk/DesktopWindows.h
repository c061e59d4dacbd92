// Windows of other programs, where the windowing system lets a program reach them: on X11. Elsewhere none is ever
// found.
#pragma once

#include <QByteArray>
#include <QPoint>

/// 0 is no window.
using DesktopWindow = quint32;

/// Whether windows of other programs can be found and moved at all.
bool DesktopWindowsReachable();

/// The oldest window of a process, or the one that was started under the given instance name, since the oldest
/// programs do not tell their process.
DesktopWindow FindDesktopWindow(qint64 processId, const QByteArray &instanceName);

/// The window that has the keyboard, of whichever program.
DesktopWindow ActiveDesktopWindow();

/// Moves a window right and down from where it stands, no further than the desktop reaches.
void MoveDesktopWindow(DesktopWindow window, QPoint distance);

/// Brings a window to the front and gives it the keyboard.
void ActivateDesktopWindow(DesktopWindow window);

/// Asks a window to close, as its close box does; false if it does not understand that.
bool CloseDesktopWindow(DesktopWindow window);
