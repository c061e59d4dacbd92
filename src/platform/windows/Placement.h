// Where a window opens: beside the one that it was called from. Rectangles in, a position out.
#pragma once

#include <QList>
#include <QRect>

/// What stands on the desktop when a window opens. All in desktop coordinates, windows with their frames.
struct Surroundings {
    QList<QRect> Screens = {}; ///< what of each screen programs may cover
    QRect Caller = {};
    QRect Field = {};         ///< what the window will fill: covered only where nothing else is left; may be empty
    QList<QRect> Read = {};   ///< windows that are read while the user works in this one
    QList<QRect> Others = {}; ///< the program's other windows
    bool OverCaller = false;  ///< a modal window is centred over its caller, which can't be used meanwhile
};

/// The upper left corner for a window of this size, on the screen that holds most of the caller: the place near the
/// caller that leaves the field, what is read and the caller free, in this order, and of the other windows as much as
/// it can without going far. Of several such places it is right of the caller, else left of it, below or above.
/// Without room for that, where it covers least; it stays within the screen as far as it fits.
QPoint Placed(const QSize &window, const Surroundings &around);
