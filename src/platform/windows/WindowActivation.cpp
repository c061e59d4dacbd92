// Which window the user works in, and which of its controls has the focus.
#include "platform/windows/WindowRegister.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <utility>

namespace {

// Once the X server has answered, answers to what it was asked before may still be on their way for so long.
constexpr int ActivationRest = 150;

} // namespace

Form *WindowRegister::FormOf(QWidget *widget)
{
    return widget ? qobject_cast<Form *>(widget->window()) : nullptr;
}

Form *WindowRegister::Front() const
{
    if (m_active)
        return m_active;
    const auto visible = std::find_if(m_history.begin(), m_history.end(), [](Form *form) { return form->isVisible(); });
    return visible == m_history.end() ? nullptr : *visible;
}

void WindowRegister::ActivatePrevious()
{
    if (Form *form = Front())
        MakeActive(form, false);
}

void WindowRegister::MakeActive(Form *form, bool byUser)
{
    if (!byUser)
        Expect(form);
    if (m_active == form)
        return;
    const quint64 move = ++m_moves;
    const quint64 life = m_resets;
    // It leads the history before the old window is notified: when a Deactivate shows another window and closes it,
    // the activation goes to this one.
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
    Q_EMIT form->Arrives();
    form->Activate();
    if (move != m_moves || life != m_resets || m_active != form)
        return;
    m_arriving = nullptr;
    // A message box that a handler has shown in between may have left the toolkit on another window.
    if (!byUser || QApplication::activeWindow() != form)
        Expect(form);
    QWidget *control = form->FocusControl();
    if (!control)
        return;
    QElapsedTimer entering;
    entering.start();
    Enter(form, control);
    // A got-focus that took long has used up the time in which answers to earlier moves were expected.
    if (!byUser && entering.hasExpired(ActivationRest) && move == m_moves && life == m_resets && m_active == form)
        Expect(form);
}

/// Notifies the active window that the user leaves it.
void WindowRegister::Leave(Form *form)
{
    QWidget *control = m_notified;
    m_active = nullptr;
    m_notified = nullptr;
    if (control)
        form->LostFocus(control);
    if (Loaded(form->objectName()) == form)
        form->Deactivate();
}

/// Gives the focus to a control of the active window and notifies it.
void WindowRegister::Enter(Form *form, QWidget *control)
{
    form->m_focus = control;
    m_notified = control;
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
    const bool hasArrived = m_active == form && m_arriving != form;
    if (hasArrived && !control->isVisible())
        return;
    form->m_focus = control;
    if (!hasArrived || m_notified == control) {
        const QScopedValueRollback moving(m_movingFocus, true);
        control->setFocus();
        return;
    }
    const quint64 step = ++m_steps;
    if (QWidget *old = std::exchange(m_notified, nullptr))
        form->LostFocus(old);
    // The handler may have sent the focus elsewhere.
    if (step == m_steps && m_active == form && form->m_focus == control && control->isEnabled())
        Enter(form, control);
}

void WindowRegister::Expect(Form *form)
{
    // A window that is active already sends no answer.
    if (Expected() || QApplication::activeWindow() != form) {
        m_expected = form;
        m_expectedUntil.setRemainingTime(ActivationTime);
    }
    form->activateWindow();
}

/// The window whose activation by the toolkit is still to come, null if none.
Form *WindowRegister::Expected() const
{
    return m_expectedUntil.hasExpired() ? nullptr : m_expected.data();
}

void WindowRegister::WindowActivated(Form *form)
{
    Form *expected = Expected();
    if (expected == form)
        m_expectedUntil = qMin(m_expectedUntil, QDeadlineTimer(ActivationRest));
    if (m_away > 0 || m_transition > 0 || form == m_active || Loaded(form->objectName()) != form)
        return;
    if (expected && expected != form) { // not the user's choice: another window in between
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
    if (m_arriving == form || m_notified == now)
        return;
    const quint64 step = ++m_steps;
    if (QWidget *old = std::exchange(m_notified, nullptr))
        form->LostFocus(old);
    if (step == m_steps && m_active == form && form->m_focus == now) {
        m_notified = now;
        form->GotFocus(now);
    }
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
    // The window system may have activated it while another one was expected.
    if (form != m_active && form->isActiveWindow())
        WindowActivated(form);
    if (overtaken && m_active == form)
        Expect(form);
}
