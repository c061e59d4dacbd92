#include "platform/windows/WindowPlacement.h"

#include "platform/windows/Form.h"
#include "platform/windows/Placement.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace {

/// The size that the toolkit is going to give it, unless the window has set its own.
QSize SizeWhenShown(Form &form)
{
    form.ensurePolished();
    if (!form.testAttribute(Qt::WA_Resized)) {
        form.adjustSize();
        form.setAttribute(Qt::WA_Resized, false);
    }
    return form.size();
}

QPoint PlaceOf(const Form &form, const QSize &size, const Form &caller)
{
    // The frame is the window manager's and comes with the showing; the caller's tells how thick it will be.
    const QSize frame = caller.frameGeometry().size() - caller.geometry().size();
    Surroundings around{.Caller = caller.frameGeometry(), .OverCaller = form.isModal()};
    for (const QScreen *screen : QGuiApplication::screens())
        around.Screens += screen->availableGeometry();
    if (const auto *field = qobject_cast<QLineEdit *>(caller.FocusControl()))
        around.Field = {field->mapToGlobal(QPoint()), field->size()};
    for (const QWidget *widget : QApplication::topLevelWidgets())
        if (const auto *other = qobject_cast<const Form *>(widget);
            other && other->isVisible() && other != &caller && other != &form)
            (other->TakesActivation() ? around.Others : around.Read) += other->frameGeometry();
    return Placed(size + frame, around);
}

/// The first moments of a window: it may grow off the screen when it is filled, and its caller, shown just before, may
/// still be put to its place by the window manager. This one is placed anew then, and only then: whoever is quick aims
/// at it already. Where the user has moved it meanwhile, it stays.
class PlaceFollower : public QObject
{
public:
    PlaceFollower(Form &form, const Form &caller)
        : QObject(&form), m_form(form), m_caller(&caller), m_callerStands(caller.windowHandle()->isExposed()),
          m_place(form.pos())
    {
        form.installEventFilter(this);
        const_cast<Form &>(caller).installEventFilter(this);
        m_rest.setInterval(SettlingTime);
        connect(&m_rest, &QTimer::timeout, this, [this] {
            if (m_caller && m_caller->isVisible() && !m_caller->windowHandle()->isExposed())
                return; // it is still on its way to the screen
            if (!m_callerStands)
                Follow();
            deleteLater();
        });
        m_rest.start();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (watched == &m_form && type == QEvent::Hide)
            deleteLater();
        const bool leavesTheScreen = type == QEvent::Resize && watched == &m_form && !IsOnTheScreen();
        // The event first: a caller that is ending still sends others, and is no window any more.
        const bool callerSettles =
            (type == QEvent::Move || type == QEvent::Resize) && !m_callerStands && watched == m_caller;
        if (leavesTheScreen || callerSettles)
            Follow();
        return false;
    }

private:
    static constexpr int SettlingTime = 400; // milliseconds, once the caller is on the screen
    static constexpr int ThickestFrame = 80; // pixels; as far a window is off while its own frame is put around it

    /// With the frame, which may still have to come.
    bool IsOnTheScreen() const
    {
        const QSize frame = m_caller ? m_caller->frameGeometry().size() - m_caller->geometry().size() : QSize();
        return m_form.screen()->availableGeometry().contains(QRect(m_form.pos(), m_form.size() + frame));
    }

    void Follow()
    {
        if (!m_caller || !m_caller->isVisible() || !m_form.isVisible() ||
            (m_form.pos() - m_place).manhattanLength() > ThickestFrame)
            return;
        m_place = PlaceOf(m_form, m_form.size(), *m_caller);
        m_form.move(m_place);
    }

    Form &m_form;
    QPointer<const Form> m_caller;
    const bool m_callerStands; // where it is moved now, it is the user who moves it
    QPoint m_place;
    QTimer m_rest;
};

/// The size settles only when the window is shown, and a window that the toolkit resizes then has its contents put
/// where the frame should be. So its place is given once more right before it goes to the screen.
void PlaceWhenItAppears(Form &form, const Form &caller)
{
    QObject::connect(
        &form, &Form::Appears, &caller,
        [&form, &caller] {
            QWindow &window = *form.windowHandle();
            window.setFramePosition(PlaceOf(form, form.size(), caller));
            if (window.size() != form.size()) // it has not heard yet of a size that has changed just now
                window.resize(form.size());
        },
        Qt::SingleShotConnection);
}

} // namespace

void PlaceBeside(Form &form, const Form *caller)
{
    if (!caller || caller == &form || !caller->isVisible() || caller->isMinimized() || !form.StandsBesideItsCaller())
        return;
    form.move(PlaceOf(form, SizeWhenShown(form), *caller));
    PlaceWhenItAppears(form, *caller);
    new PlaceFollower(form, *caller);
}
