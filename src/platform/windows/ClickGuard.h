// A double-click on something that the first click closes would reach the window beneath with its second press. Here
// that press is swallowed, wherever in the program it comes from.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QWindow>

class QEvent;
class QMouseEvent;
class QObject;

class ClickGuard
{
public:
    /// Takes every event that the application is about to deliver. Returns whether it is not to be delivered.
    bool Swallows(QObject *receiver, const QEvent &event);

private:
    bool BelongsToTheLastPress(const QMouseEvent &press) const;

    QPointer<QWindow> m_window; ///< the window of the last press
    quint64 m_time = 0;         ///< of the last press, in milliseconds
    QPoint m_place;             ///< of the last press, on the screen
    bool m_closed = false;      ///< the window has been closed or hidden since
    bool m_swallowing = false;  ///< from a press that is swallowed to its release
};
