#include "platform/WindowRegister.h"

#include "platform/Desk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>

namespace {

// An X server needs a moment to activate what it was asked to; after that a late answer counts as the user's own.
constexpr int ActivationPatience = 700; // milliseconds

class Counted
{
public:
    explicit Counted(int &counter) : m_counter(counter) { ++m_counter; }
    ~Counted() { --m_counter; }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;

private:
    int &m_counter;
};

Form *FormOf(QWidget *widget)
{
    return widget ? qobject_cast<Form *>(widget->window()) : nullptr;
}

} // namespace

void WindowRegister::Declare(const QString &name, const Factory &factory)
{
    m_factories.insert(name, factory);
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
    const Counted transition(m_transition);
    Form *form = factory();
    form->setObjectName(name);
    m_loaded.insert(name, form);
    form->Load();
    return *form;
}

void WindowRegister::Show(const QString &name)
{
    Present(Touch(name));
}

void WindowRegister::ShowModal(const QString &name)
{
    Form &form = Touch(name);
    if (!form.isVisible())
        form.setWindowModality(Qt::ApplicationModal);
    const QPointer<Form> stillThere = &form;
    QEventLoop loop;
    m_modals.append({&form, &loop});
    Present(form);
    if (stillThere && form.isVisible() && !m_modals.isEmpty() && m_modals.last().Loop == &loop)
        loop.exec();
    m_modals.removeIf([&](const Modal &modal) { return modal.Loop == &loop; });
}

void WindowRegister::Present(Form &form)
{
    const Counted transition(m_transition);
    if (!form.TakesActivation())
        form.setAttribute(Qt::WA_ShowWithoutActivating);
    form.show();
    form.raise();
    if (form.TakesActivation())
        MakeActive(&form, false);
}

void WindowRegister::Hide(const QString &name)
{
    Form &form = Touch(name);
    const bool wasActive = m_active == &form;
    if (wasActive) {
        ++m_moves;
        m_active = nullptr;
        if (QWidget *control = form.FocusControl())
            form.LostFocus(control);
        form.Deactivate();
    }
    form.hide();
    m_history.removeAll(&form);
    if (wasActive && !m_active)
        ActivatePrevious();
    LeaveModal(&form);
    EndWhenLastIsGone();
}

bool WindowRegister::Unload(const QString &name, Form::CloseMode mode)
{
    Form *form = Loaded(name);
    if (!form)
        return true;
    if (!form->QueryUnload(mode))
        return false;
    if (Loaded(name) != form) // the query itself has ended the window
        return true;
    form->Unload();
    if (Loaded(name) != form)
        return true;
    m_loaded.remove(name);
    m_history.removeAll(form);
    const bool wasActive = m_active == form;
    if (wasActive)
        m_active = nullptr;
    {
        const QScopedValueRollback moving(m_movingFocus, true);
        form->hide();
    }
    form->deleteLater();
    if (wasActive)
        ActivatePrevious();
    LeaveModal(form);
    EndWhenLastIsGone();
    return true;
}

void WindowRegister::LeaveModal(Form *form)
{
    for (const Modal &modal : std::as_const(m_modals))
        if (modal.TheForm == form)
            modal.Loop->quit();
}

void WindowRegister::ActivatePrevious()
{
    for (Form *form : std::as_const(m_history)) {
        if (form->isVisible()) {
            MakeActive(form, false);
            return;
        }
    }
}

void WindowRegister::MakeActive(Form *form, bool byUser)
{
    if (!byUser)
        Expect(form);
    if (m_active == form)
        return;
    const quint64 move = ++m_moves;
    if (Form *old = m_active) {
        if (QWidget *control = old->FocusControl())
            old->LostFocus(control);
        old->Deactivate();
        if (move != m_moves) // a handler has moved on to another window
            return;
    }
    m_active = form;
    m_history.removeAll(form);
    m_history.prepend(form);
    form->Activate();
    if (move != m_moves || m_active != form)
        return;
    // A message box that a handler has shown in between may have left the toolkit on the old window.
    if (!byUser || (m_expected && m_expected != form))
        Expect(form);
    if (QWidget *control = form->FocusControl())
        Enter(form, control);
}

/// Gives the focus to a control of the active window and tells it so.
void WindowRegister::Enter(Form *form, QWidget *control)
{
    form->m_focus = control;
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
    QWidget *old = form->m_focus;
    const bool told = m_active == form && form->isVisible();
    if (!told || old == control) {
        form->m_focus = control;
        const QScopedValueRollback moving(m_movingFocus, true);
        control->setFocus();
        return;
    }
    if (old)
        form->LostFocus(old);
    Enter(form, control);
}

void WindowRegister::Expect(Form *form)
{
    m_expected = form;
    m_patience.setRemainingTime(ActivationPatience);
    form->activateWindow();
}

bool WindowRegister::AnyVisible() const
{
    return std::any_of(m_loaded.begin(), m_loaded.end(), [](const Form *form) { return form->isVisible(); });
}

void WindowRegister::EndWhenLastIsGone()
{
    QTimer::singleShot(0, this, [this] {
        if (!AnyVisible() && m_transition == 0 && m_away == 0 && !m_factories.isEmpty() && TheDesk.EndProgram)
            TheDesk.EndProgram();
    });
}

void WindowRegister::WhileAway(const std::function<void()> &outside)
{
    {
        const Counted away(m_away);
        outside();
    }
    if (m_active && m_away == 0)
        Expect(m_active);
}

void WindowRegister::WindowActivated(Form *form)
{
    if (m_expected == form || m_patience.hasExpired())
        m_expected = nullptr;
    if (m_away > 0 || m_transition > 0 || form == m_active || Loaded(form->objectName()) != form)
        return;
    if (m_expected) { // a third window in between: the one that was asked for is asked for again
        m_expected->activateWindow();
        return;
    }
    if (!m_modals.isEmpty() && m_modals.last().TheForm != form)
        return;
    if (form->TakesActivation())
        MakeActive(form, true);
}

void WindowRegister::FocusMoved(QWidget *now)
{
    Form *form = FormOf(now);
    if (m_movingFocus || m_away > 0 || !form || form != m_active)
        return;
    if (QWidget *old = form->m_focus; old != now) {
        form->m_focus = now;
        if (old)
            form->LostFocus(old);
        if (m_active == form && form->m_focus == now)
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
    case QEvent::MouseButtonPress:
        if (auto *widget = qobject_cast<QWidget *>(watched); widget && event->spontaneous()) {
            Form *form = FormOf(widget);
            if (form && m_expected && form != m_expected)
                m_expected = nullptr;
            // The window system may have told of the activation while another one was expected.
            if (form && form != m_active && form->isActiveWindow())
                WindowActivated(form);
        }
        break;
    case QEvent::Shortcut:
        // An access key moves the focus before it clicks.
        if (auto *button = qobject_cast<QAbstractButton *>(watched); button && button->isEnabled()) {
            Form *form = FormOf(button);
            if (form && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
                MoveFocus(form, button);
                button->click();
                return true;
            }
        }
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            break;
        auto *widget = qobject_cast<QWidget *>(watched);
        Form *form = FormOf(widget);
        if (!form)
            break;
        if (form->HandleEnter(watched))
            return true;
        if (qobject_cast<QLineEdit *>(watched))
            return true; // Enter in a field never presses a button
        if (auto *button = qobject_cast<QPushButton *>(watched)) {
            button->click();
            return true;
        }
        break;
    }
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowRegister::Reset()
{
    const QScopedValueRollback moving(m_movingFocus, true);
    for (const Modal &modal : std::as_const(m_modals))
        modal.Loop->quit();
    m_modals.clear();
    m_active = nullptr;
    m_expected = nullptr;
    m_history.clear();
    const auto forms = m_loaded;
    m_loaded.clear();
    qDeleteAll(forms);
    m_factories.clear();
}
