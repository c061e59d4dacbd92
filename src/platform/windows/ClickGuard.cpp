#include "platform/windows/ClickGuard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace {

// A hand that shakes moves the mouse between two presses; what is further away is a click of its own.
constexpr int SamePlace = 16; // pixels

QWindow *WindowOf(QObject *receiver)
{
    const auto *widget = qobject_cast<QWidget *>(receiver);
    return widget ? widget->window()->windowHandle() : qobject_cast<QWindow *>(receiver);
}

/// Menus and drop-down lists close with each pick, and the next click is meant for what is beneath.
bool IsPopup(const QWindow &window)
{
    return (window.flags() & Qt::WindowType_Mask) == Qt::Popup;
}

} // namespace

bool ClickGuard::BelongsToTheLastPress(const QMouseEvent &press) const
{
    return press.timestamp() >= m_time && press.timestamp() - m_time < quint64(QApplication::doubleClickInterval()) &&
           (press.globalPosition().toPoint() - m_place).manhattanLength() <= SamePlace;
}

bool ClickGuard::Swallows(QObject *receiver, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Hide:
        if (m_window && receiver == m_window && !IsPopup(*m_window))
            m_closed = true;
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        QWindow *window = WindowOf(receiver);
        const auto &press = static_cast<const QMouseEvent &>(event);
        if (!window || press.timestamp() == 0) // a press that the program makes up
            return false;
        m_swallowing = m_closed && BelongsToTheLastPress(press);
        m_closed = m_swallowing; // a third press is swallowed as the second is
        m_window = window;
        m_time = press.timestamp();
        m_place = press.globalPosition().toPoint();
        return m_swallowing;
    }
    case QEvent::MouseMove: return m_swallowing;
    case QEvent::MouseButtonRelease:
        if (!m_swallowing)
            return false;
        m_swallowing = false;
        return true;
    default: return false;
    }
}
