// How windows come and go: load, show, hide, unload, and the end of the program when the last one is gone.
#include "platform/windows/WindowRegister.h"

#include "platform/desk/Desk.h"
#include "platform/values/RuntimeError.h"
#include "platform/windows/WindowPlacement.h"

#include <QApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWindow>
#include <utility>

/// While one stands, the program does not end for want of windows.
class WindowRegister::Busy
{
public:
    Busy(WindowRegister &windows, int &counter) : m_windows(windows), m_counter(counter) { ++m_counter; }
    ~Busy()
    {
        --m_counter;
        if (m_windows.m_endWaits)
            m_windows.EndWhenLastWindowIsGone();
    }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

private:
    WindowRegister &m_windows;
    int &m_counter;
};

void WindowRegister::Register(const QString &name, const Factory &factory)
{
    m_factories.insert(name, factory);
}

QStringList WindowRegister::Names() const
{
    QStringList names = m_factories.keys();
    names.sort();
    return names;
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
    Q_EMIT WindowLoads(name);
    form->Load();
    return *form;
}

void WindowRegister::Show(const QString &name)
{
    Form &form = Touch(name);
    if (Loaded(name) == &form) // its Load may have ended it
        Present(form, form.TakesActivation());
}

void WindowRegister::ShowAndActivate(const QString &name)
{
    Form &form = Touch(name);
    if (Loaded(name) == &form)
        Present(form, true);
}

void WindowRegister::ShowModal(const QString &name)
{
    Form &form = Touch(name);
    if (Loaded(name) != &form)
        return;
    if (form.isVisible()) { // it cannot begin to block the others now, and who blocks them already is not waited for
                            // twice
        Present(form, form.TakesActivation());
        return;
    }
    // A dialog of the active window: no click on the blocked windows can cover it.
    form.setWindowFlags((form.windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
    form.setWindowModality(Qt::ApplicationModal);
    form.winId();
    if (const Form *caller = Front())
        form.windowHandle()->setTransientParent(caller->windowHandle());
    QEventLoop loop;
    m_modals.append({&form, &loop});
    Present(form, form.TakesActivation());
    if (Loaded(name) == &form && form.isVisible()) {
        // Inside, the user's moves count again.
        const QScopedValueRollback noTransition(m_transition, 0);
        const QScopedValueRollback notAway(m_away, 0);
        loop.exec();
    }
    m_modals.removeIf([&](const Modal &modal) { return modal.Loop == &loop; });
    if (Loaded(name) == &form && !form.isVisible()) {
        form.setWindowModality(Qt::NonModal);
        form.setWindowFlags((form.windowFlags() & ~Qt::WindowType_Mask) | Qt::Window);
    }
    DeleteEnded();
    if (m_endWaits)
        EndWhenLastWindowIsGone();
}

void WindowRegister::Present(Form &form, bool takesActivation)
{
    const Busy transition(*this, m_transition);
    form.setAttribute(Qt::WA_ShowWithoutActivating, !takesActivation);
    // A toolkit that activates it all the same is overruled.
    if (!takesActivation && m_active && m_active != &form && (!form.isVisible() || form.isMinimized())) {
        m_expected = m_active;
        m_expectedUntil.setRemainingTime(ActivationTime);
    }
    if (form.isMinimized())
        form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
    if (!form.isVisible())
        PlaceBeside(form, Front());
    form.show();
    form.raise();
    if (takesActivation)
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
    EndWhenLastWindowIsGone();
}

bool WindowRegister::Unload(const QString &name, Form::CloseMode mode)
{
    Form *form = Loaded(name);
    if (!form || form->m_unloading) // a window that unloads itself in its Unload is on its way
        return true;
    if (mode != Form::CloseMode::Withdrawal) {
        if (form->m_asked.contains(mode)) // nor is it asked twice at a time
            return false;
        form->m_asked.append(mode);
        const bool agreed = form->QueryUnload(mode);
        form->m_asked.removeAll(mode);
        if (Loaded(name) != form) // the query itself has ended the window
            return true;
        if (!agreed)
            return false;
    }
    {
        const QScopedValueRollback unloading(form->m_unloading, true);
        Q_EMIT WindowUnloads(name);
        form->Unload();
    }
    m_loaded.remove(name);
    PutAway(form, m_active == form);
    End(form);
    LeaveModal(form);
    EndWhenLastWindowIsGone();
    return true;
}

/// Takes a window from the screen without an event. If the user worked in it, the previous one is active again.
void WindowRegister::PutAway(Form *form, bool wasActive)
{
    const bool toolkitIsThere = QApplication::activeWindow() == form;
    m_history.removeAll(form);
    if (m_active == form) {
        m_active = nullptr;
        m_notified = nullptr;
    }
    {
        const QScopedValueRollback moving(m_movingFocus, true);
        form->hide();
    }
    if (wasActive && !m_active)
        ActivatePrevious();
    else if (toolkitIsThere && m_active) // the toolkit's choice of the next window is not the user's
        Expect(m_active);
}

/// Deletes an ended window as soon as no handler can stand in it and no dialog can hang on it.
void WindowRegister::End(Form *form)
{
    const auto timers = form->findChildren<QTimer *>();
    for (QTimer *timer : timers)
        timer->stop();
    m_ended.append(form);
    DeleteEnded();
}

void WindowRegister::DeleteEnded()
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

bool WindowRegister::AnyVisible() const
{
    return std::any_of(m_loaded.begin(), m_loaded.end(), [](const Form *form) { return form->isVisible(); });
}

void WindowRegister::EndWhenLastWindowIsGone()
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
    DeleteEnded();
    if (Form *front = Front(); front && m_away == 0)
        Expect(front);
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
    m_notified = nullptr;
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
