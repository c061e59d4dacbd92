// The register of the program's windows: single instances, found by name. It raises the events of their life.
//
// The toolkit's activation events do not serve: there the new window is activated before the old one is deactivated,
// message boxes deactivate, and an X server may activate a third window in between. So showing, hiding, unloading and
// the user's own clicks on another window are fed into this register, and it raises Load, lost-focus, Deactivate,
// Activate and got-focus in that order before the call that caused them returns. Going to another program and coming
// back raises nothing; neither do message boxes, dialogs, menus and popups.
#pragma once

#include "platform/values/RuntimeError.h"
#include "platform/windows/Form.h"

#include <QDeadlineTimer>
#include <QStringList>
#include <functional>

class QEventLoop;
class QKeyEvent;
class QShortcutEvent;

class WindowRegister : public QObject, public FormHost
{
    Q_OBJECT
public:
    WindowRegister() { TheFormHost = this; }

    using Factory = std::function<Form *()>;

    /// Makes a window known. It comes into being at its first need.
    void Register(const QString &name, const Factory &factory);
    bool Knows(const QString &name) const { return m_factories.contains(name); }
    /// The names of all registered windows, in alphabetical order.
    QStringList Names() const;

    /// The window if it is loaded, else null.
    Form *Loaded(const QString &name) const { return m_loaded.value(name); }
    /// The window, loaded unseen where it is not loaded yet.
    Form &Touch(const QString &name);
    /// A control of a window, which is touched by that. Raises error 5 where the window has no such control.
    template <class Control>
    Control &ControlOf(const QString &window, const QString &control)
    {
        auto *found = Touch(window).findChild<Control *>(control);
        if (!found)
            RaiseError(RuntimeError::InvalidProcedureCall);
        return *found;
    }

    /// Shows a window beside the others; one that is visible comes to the front.
    void Show(const QString &name);
    /// The same for a window that takes no activation by itself: the user has asked for it and works in it now.
    void ShowAndActivate(const QString &name);
    /// Shows a window and returns when it is closed or hidden; by then its caller is active again. One that is visible
    /// comes to the front as it is, and this returns at once.
    void ShowModal(const QString &name);
    void Hide(const QString &name);
    /// Ends the instance unless its QueryUnload, which a withdrawal passes over, cancels. Returns whether the window is
    /// gone.
    bool Unload(const QString &name, Form::CloseMode mode = Form::CloseMode::Code);

    Form *Active() const { return m_active; }
    /// The active window, or while the activation is on its way the one that it goes to: what a dialog belongs to.
    Form *Front() const;
    bool AnyVisible() const;

    /// Runs something that is no window of the program, such as a message box: neither its showing nor its end is a
    /// move between windows.
    void WhileAway(const std::function<void()> &outside);

    /// Ends all instances without any event and forgets all windows; for tests.
    void Reset();

    bool Keeps(const Form *form) const override { return Loaded(form->objectName()) == form; }
    void MoveFocus(Form *form, QWidget *control) override;
    void CloseByFrame(Form *form) override { Unload(form->objectName(), Form::CloseMode::CloseBox); }
    /// Watches the application. Called once, when the application object exists.
    void Start();

Q_SIGNALS:
    /// A window comes into being; its Load follows. And it ends; its Unload follows.
    void WindowLoads(const QString &name);
    void WindowUnloads(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Busy;
    friend class Busy;

    // An X server needs a moment to activate what it was asked to; after that a late answer counts as the user's own.
    static constexpr int ActivationTime = 700; // milliseconds

    static Form *FormOf(QWidget *widget);
    void Present(Form &form, bool takesActivation);
    void MakeActive(Form *form, bool byUser);
    void Leave(Form *form);
    void ActivatePrevious();
    void Enter(Form *form, QWidget *control);
    void Expect(Form *form);
    Form *Expected() const;
    void WindowActivated(Form *form);
    void FocusMoved(QWidget *now);
    void PutAway(Form *form, bool wasActive);
    void End(Form *form);
    void DeleteEnded();
    void EndWhenLastWindowIsGone();
    void LeaveModal(Form *form);
    void Pressed(QWidget *widget);
    bool KeyPressed(QObject *watched, const QKeyEvent &event);
    bool HelpKeyPressed(QWidget *widget, bool isHeld);
    bool AccessKey(QObject *watched, const QShortcutEvent &event);

    struct Modal {
        Form *TheForm;
        QEventLoop *Loop;
    };

    QHash<QString, Factory> m_factories;
    QHash<QString, Form *> m_loaded;
    QList<Form *> m_history; // most recently active first
    QList<Modal> m_modals;
    QList<Form *> m_ended; // unloaded, but a handler below may still stand in them
    QPointer<Form> m_active;
    QPointer<Form> m_arriving;      // its Activate runs, its got-focus is still to come
    QPointer<QWidget> m_notified;   // the control that was notified last that it has the focus
    QPointer<QWidget> m_clicked;    // the field that a press of the mouse has just moved the focus to
    QPointer<Form> m_expected;      // the window that the toolkit was asked to activate
    QDeadlineTimer m_expectedUntil; // until then the activation of another one is not the user's choice
    int m_away = 0;                 // inside WhileAway
    int m_transition = 0;           // inside a showing or a load
    bool m_movingFocus = false;
    bool m_endAsked = false; // whether the last window is gone will be looked at
    bool m_endWaits = false; // the last window was gone while something was under way
    quint64 m_moves = 0;     // counts changes of the active window
    quint64 m_steps = 0;     // counts changes of the focus inside it
    quint64 m_resets = 0;
};
inline WindowRegister TheWindows;
