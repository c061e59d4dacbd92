// How a list or grid shows that it waits for a row to be picked for another window.
#pragma once

#include <QAbstractItemView>
#include <QLabel>

/// The line above it says so, and so do its tool tip and the hand over its rows.
inline void ShowWaitsForPick(QLabel &line, QAbstractItemView &view, bool waits)
{
    line.setVisible(waits);
    view.setToolTip(waits ? line.text() : QString());
    view.viewport()->setCursor(waits ? Qt::PointingHandCursor : Qt::ArrowCursor);
}
