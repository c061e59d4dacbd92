#include "platform/windows/WindowRegister.h"

#include "platform/desk/Desk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>
#include <utility>

namespace {

// An X server needs a moment to activate what it was asked to; after that a late answer counts as the user's own.
constexpr int ActivationPatience = 700; // milliseconds
// Once it has answered, answers to what it was asked before may still be on their way for so long.
constexpr int ActivationRest = 150;

Form *FormOf(QWidget *widget)
{
    return widget ? qobject_cast<Form *>(widget->window()) : nullptr;
}

} // namespace

/// While one stands, the program does not end for want of windows.
class WindowRegister::Busy
{
public:
    Busy(WindowRegister &windows, int &counter) : m_windows(windows), m_counter(counter) { ++m_counter; }
    ~Busy()
    {
        --m_counter;
        if (m_windows.m_endWaits)
            m_windows.EndWhenLastIsGone();
    }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

private:
    WindowRegister &m_windows;
    int &m_counter;
};

void WindowRegister::Declare(const QString &name, const Factory &factory)
{
    m_factories.insert(name, factory);
}

QStringList WindowRegister::Names() const
{
    QStringList names = m_factories.keys();
    names.sort();
    return names;
}

void WindowRegister::Start()
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { FocusMoved(now); });
}

Form &WindowRegister::Touch(const QString &name)
{
    if (Form *form = Loaded(name))
        return *form;
    const Factory factory = m_factories.value(name);
    Q_ASSERT_X(factory, "Touch", qPrintable(name));
    const Busy transition(*this, m_transition);
    Form *form = factory();
    form->setObjectName(name);
    m_loaded.insert(name, form);
    form->Load();
    return *form;
}

void WindowRegister::Show(const QString &name)
{
    Form &form = Touch(name);
    if (Loaded(name) == &form) // its Load may have ended it
        Present(form);
}

void WindowRegister::ShowModal(const QString &name)
{
    Form &form = Touch(name);
    if (Loaded(name) != &form)
        return;
    if (!form.isVisible()) {
        // A dialog of the active window: no click on the blocked windows can cover it.
        form.setWindowFlags((form.windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
        form.setWindowModality(Qt::ApplicationModal);
        form.winId();
        if (const Form *caller = Front())
            form.windowHandle()->setTransientParent(caller->windowHandle());
    }
    QEventLoop loop;
    m_modals.append({&form, &loop});
    Present(form);
    if (Loaded(name) == &form && form.isVisible()) {
        // The user is at work again inside, whatever it was that led here.
        const QScopedValueRollback noTransition(m_transition, 0);
        const QScopedValueRollback notAway(m_away, 0);
        loop.exec();
    }
    m_modals.removeIf([&](const Modal &modal) { return modal.Loop == &loop; });
    if (Loaded(name) == &form && !form.isVisible()) {
        form.setWindowModality(Qt::NonModal);
        form.setWindowFlags((form.windowFlags() & ~Qt::WindowType_Mask) | Qt::Window);
    }
    BuryTheRest();
    if (m_endWaits)
        EndWhenLastIsGone();
}

void WindowRegister::Present(Form &form)
{
    const Busy transition(*this, m_transition);
    if (form.isMinimized())
        form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
    if (!form.TakesActivation()) {
        form.setAttribute(Qt::WA_ShowWithoutActivating);
        if (m_active && !form.isVisible()) { // should the toolkit activate it all the same, the active one is asked for
            m_expected = m_active;
            m_patience.setRemainingTime(ActivationPatience);
        }
    }
    form.show();
    form.raise();
    if (form.TakesActivation())
        MakeActive(&form, false);
}

void WindowRegister::Hide(const QString &name)
{
    Form &form = Touch(name);
    if (Loaded(name) != &form)
        return;
    const bool wasActive = m_active == &form;
    m_history.removeAll(&form);
    if (wasActive) {
        ++m_moves;
        Leave(&form);
    }
    PutAway(&form, wasActive);
    LeaveModal(&form);
    EndWhenLastIsGone();
}

bool WindowRegister::Unload(const QString &name, Form::CloseMode mode)
{
    Form *form = Loaded(name);
    if (!form || form->m_unloading) // a window that unloads itself in its Unload is on its way
        return true;
    if (form->m_asked.contains(mode)) // nor is it asked twice at a time
        return false;
    form->m_asked.append(mode);
    const bool agreed = form->QueryUnload(mode);
    form->m_asked.removeAll(mode);
    if (Loaded(name) != form) // the query itself has ended the window
        return true;
    if (!agreed)
        return false;
    {
        const QScopedValueRollback unloading(form->m_unloading, true);
        form->Unload();
    }
    m_loaded.remove(name);
    PutAway(form, m_active == form);
    Bury(form);
    LeaveModal(form);
    EndWhenLastIsGone();
    return true;
}

/// Takes a window from the screen without telling it. If the user worked in it, the previous one is active again.
void WindowRegister::PutAway(Form *form, bool wasActive)
{
    const bool toolkitIsThere = QApplication::activeWindow() == form;
    m_history.removeAll(form);
    if (m_active == form) {
        m_active = nullptr;
        m_told = nullptr;
    }
    {
        const QScopedValueRollback moving(m_movingFocus, true);
        form->hide();
    }
    if (wasActive && !m_active)
        ActivatePrevious();
    else if (toolkitIsThere &&
             m_active) // it was only looked at; the toolkit's choice of the next one is not the user's
        Expect(m_active);
}

/// Deletes an ended window as soon as no handler can stand in it and no dialog can hang on it.
void WindowRegister::Bury(Form *form)
{
    const auto timers = form->findChildren<QTimer *>();
    for (QTimer *timer : timers)
        timer->stop();
    m_ended.append(form);
    BuryTheRest();
}

void WindowRegister::BuryTheRest()
{
    if (m_away > 0 || !m_modals.isEmpty())
        return;
    for (Form *form : std::exchange(m_ended, {}))
        form->deleteLater();
}

void WindowRegister::LeaveModal(Form *form)
{
    for (const Modal &modal : std::as_const(m_modals))
        if (modal.TheForm == form)
            modal.Loop->quit();
}

void WindowRegister::ActivatePrevious()
{
    if (Form *form = Front())
        MakeActive(form, false);
}

Form *WindowRegister::Front() const
{
    if (m_active)
        return m_active;
    const auto visible = std::find_if(m_history.begin(), m_history.end(), [](Form *form) { return form->isVisible(); });
    return visible == m_history.end() ? nullptr : *visible;
}

void WindowRegister::MakeActive(Form *form, bool byUser)
{
    if (!byUser)
        Expect(form);
    if (m_active == form)
        return;
    const quint64 move = ++m_moves;
    const quint64 life = m_resets;
    // It leads the history before the old window hears of the move: what a Deactivate shows and closes again gives
    // the activation to the window that it was meant for.
    m_history.removeAll(form);
    m_history.prepend(form);
    if (m_active)
        Leave(m_active);
    if (move != m_moves || life != m_resets) // a handler has moved on to another window
        return;
    if (!m_history.contains(form) || !form->isVisible()) { // the old window's Deactivate has put it away
        ActivatePrevious();
        return;
    }
    m_active = form;
    m_arriving = form;
    form->Activate();
    if (move != m_moves || life != m_resets || m_active != form)
        return;
    m_arriving = nullptr;
    // A message box that a handler has shown in between may have left the toolkit on another window.
    if (!byUser || QApplication::activeWindow() != form)
        Expect(form);
    if (QWidget *control = form->FocusControl())
        Enter(form, control);
}

/// Tells the active window that the user leaves it.
void WindowRegister::Leave(Form *form)
{
    QWidget *control = m_told;
    m_active = nullptr;
    m_told = nullptr;
    if (control)
        form->LostFocus(control);
    if (Loaded(form->objectName()) == form)
        form->Deactivate();
}

/// Gives the focus to a control of the active window and tells it so.
void WindowRegister::Enter(Form *form, QWidget *control)
{
    form->m_focus = control;
    m_told = control;
    {
        const QScopedValueRollback moving(m_movingFocus, true);
        control->setFocus();
    }
    form->GotFocus(control);
}

void WindowRegister::MoveFocus(Form *form, QWidget *control)
{
    if (!control || !control->isEnabled())
        return;
    const bool told = m_active == form && m_arriving != form;
    if (told && !control->isVisible())
        return;
    form->m_focus = control;
    if (!told || m_told == control) {
        const QScopedValueRollback moving(m_movingFocus, true);
        control->setFocus();
        return;
    }
    const quint64 step = ++m_steps;
    if (QWidget *old = std::exchange(m_told, nullptr))
        form->LostFocus(old);
    // The handler may have sent the focus elsewhere.
    if (step == m_steps && m_active == form && form->m_focus == control && control->isEnabled())
        Enter(form, control);
}

void WindowRegister::Expect(Form *form)
{
    // A window that the toolkit has at rest sends no answer that could be waited for.
    if (Expected() || QApplication::activeWindow() != form) {
        m_expected = form;
        m_patience.setRemainingTime(ActivationPatience);
    }
    form->activateWindow();
}

/// The window that the toolkit's next word is awaited of, null if none.
Form *WindowRegister::Expected() const
{
    return m_patience.hasExpired() ? nullptr : m_expected.data();
}

bool WindowRegister::AnyVisible() const
{
    return std::any_of(m_loaded.begin(), m_loaded.end(), [](const Form *form) { return form->isVisible(); });
}

void WindowRegister::EndWhenLastIsGone()
{
    m_endWaits = false;
    if (std::exchange(m_endAsked, true))
        return;
    QTimer::singleShot(0, this, [this, life = m_resets] {
        if (life != m_resets)
            return;
        m_endAsked = false;
        if (AnyVisible())
            return;
        m_endWaits = m_transition > 0 || m_away > 0;
        if (!m_endWaits && TheDesk.EndProgram)
            TheDesk.EndProgram();
    });
}

void WindowRegister::WhileAway(const std::function<void()> &outside)
{
    {
        const Busy away(*this, m_away);
        outside();
    }
    BuryTheRest();
    if (Form *front = Front(); front && m_away == 0)
        Expect(front);
}

void WindowRegister::WindowActivated(Form *form)
{
    Form *expected = Expected();
    if (expected == form)
        m_patience = qMin(m_patience, QDeadlineTimer(ActivationRest));
    if (m_away > 0 || m_transition > 0 || form == m_active || Loaded(form->objectName()) != form)
        return;
    if (expected && expected != form) { // a third window in between: the one that was asked for is asked for again
        expected->activateWindow();
        return;
    }
    if (!m_modals.isEmpty() && m_modals.last().TheForm != form) {
        m_modals.last().TheForm->activateWindow();
        return;
    }
    if (form->TakesActivation())
        MakeActive(form, true);
}

void WindowRegister::FocusMoved(QWidget *now)
{
    Form *form = FormOf(now);
    // The menu bar holds the focus only while its keys are used.
    if (m_movingFocus || m_away > 0 || !form || form != m_active || qobject_cast<QMenuBar *>(now))
        return;
    form->m_focus = now;
    if (m_arriving == form || m_told == now)
        return;
    const quint64 step = ++m_steps;
    if (QWidget *old = std::exchange(m_told, nullptr))
        form->LostFocus(old);
    if (step == m_steps && m_active == form && form->m_focus == now) {
        m_told = now;
        form->GotFocus(now);
    }
}

bool WindowRegister::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::WindowActivate:
        if (auto *form = qobject_cast<Form *>(watched))
            WindowActivated(form);
        break;
    case QEvent::FocusIn:
        if (watched->isWidgetType()) // styles hear of it, too
            m_clicked = static_cast<QFocusEvent *>(event)->reason() == Qt::MouseFocusReason
                            ? qobject_cast<QLineEdit *>(watched)
                            : nullptr;
        break;
    case QEvent::MouseButtonPress:
        if (event->spontaneous())
            Pressed(qobject_cast<QWidget *>(watched));
        break;
    case QEvent::MouseButtonRelease:
        // The press has set the caret in a field that was selected as a whole when it got the focus.
        if (auto *field = qobject_cast<QLineEdit *>(watched); field && m_clicked == field && FormOf(field)) {
            if (!field->hasSelectedText())
                field->selectAll();
            m_clicked = nullptr;
        }
        break;
    case QEvent::Shortcut:
        if (AccessKey(watched, *static_cast<QShortcutEvent *>(event)))
            return true;
        break;
    case QEvent::KeyPress:
        if (KeyPressed(watched, *static_cast<QKeyEvent *>(event)))
            return true;
        break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

/// The user's own click is above every expectation.
void WindowRegister::Pressed(QWidget *widget)
{
    Form *form = FormOf(widget);
    if (!form)
        return;
    const bool overtaken = Expected() && Expected() != form;
    if (overtaken)
        m_expected = nullptr;
    // The window system may have told of the activation while another one was expected.
    if (form != m_active && form->isActiveWindow())
        WindowActivated(form);
    if (overtaken && m_active == form)
        Expect(form);
}

/// An access key moves the focus before it clicks.
bool WindowRegister::AccessKey(QObject *watched, const QShortcutEvent &event)
{
    const QPointer<QAbstractButton> button = qobject_cast<QAbstractButton *>(watched);
    Form *form = FormOf(button);
    if (!form || !button->isEnabled() || event.isAmbiguous())
        return false;
    if (button->focusPolicy() != Qt::NoFocus)
        MoveFocus(form, button);
    if (button)
        button->click();
    return true;
}

bool WindowRegister::KeyPressed(QObject *watched, const QKeyEvent &event)
{
    Form *form = FormOf(qobject_cast<QWidget *>(watched));
    if (!form)
        return false;
    if (event.key() == Qt::Key_F1) {
        TheDesk.ShowHelp({QString(), form->HelpContext()});
        return true;
    }
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    if (form->HandleEnter(watched) || qobject_cast<QLineEdit *>(watched)) // in a field it never presses a button
        return true;
    auto *button = qobject_cast<QPushButton *>(watched);
    if (button && !event.isAutoRepeat()) // a key held down is one click
        button->click();
    return button;
}

void WindowRegister::Reset()
{
    const QScopedValueRollback moving(m_movingFocus, true);
    for (const Modal &modal : std::as_const(m_modals))
        modal.Loop->quit();
    m_modals.clear();
    ++m_resets;
    m_active = nullptr;
    m_arriving = nullptr;
    m_told = nullptr;
    m_expected = nullptr;
    m_endAsked = false;
    m_endWaits = false;
    m_history.clear();
    const auto forms = m_loaded;
    m_loaded.clear();
    qDeleteAll(forms);
    qDeleteAll(std::exchange(m_ended, {}));
    m_factories.clear();
}
