// The register of the program's windows: single instances, found by name, with a life that this register tells.
//
// The toolkit's activation events do not serve: there the new window is activated before the old one is deactivated,
// message boxes deactivate, and an X server may activate a third window in between. So showing, hiding, unloading and
// the user's own clicks on another window are fed into this register, and it raises Load, lost-focus, Deactivate,
// Activate and got-focus in that order before the call that caused them returns. Going to another program and coming
// back raises nothing; neither do message boxes, dialogs, menus and popups.
#pragma once

#include "platform/Form.h"

#include <QDeadlineTimer>
#include <QStringList>
#include <functional>

class QEventLoop;

class WindowRegister : public QObject
{
    Q_OBJECT
public:
    using Factory = std::function<Form *()>;

    /// Makes a window known. It comes into being at its first need.
    void Declare(const QString &name, const Factory &factory);
    bool Knows(const QString &name) const { return m_factories.contains(name); }

    /// The window if it is loaded, else null.
    Form *Loaded(const QString &name) const { return m_loaded.value(name); }
    /// The window, loaded unseen where it is not loaded yet.
    Form &Touch(const QString &name);
    /// A control of a window, which is touched by that.
    template <class Control>
    Control &ControlOf(const QString &window, const QString &control)
    {
        auto *found = Touch(window).findChild<Control *>(control);
        Q_ASSERT_X(found, "ControlOf", qPrintable(window + QLatin1Char('.') + control));
        return *found;
    }

    /// Shows a window beside the others; one that is visible comes to the front.
    void Show(const QString &name);
    /// Shows a window and returns when it is closed or hidden; by then its caller is active again.
    void ShowModal(const QString &name);
    void Hide(const QString &name);
    /// Ends the instance unless its QueryUnload cancels. Returns whether the window is gone.
    bool Unload(const QString &name, Form::CloseMode mode = Form::CloseMode::Code);

    Form *Active() const { return m_active; }
    bool AnyVisible() const;

    /// Runs something that is no window of the program, such as a message box: while it lasts and when it ends,
    /// nothing counts as a move between windows.
    void WhileAway(const std::function<void()> &outside);

    /// Ends all instances without a word and forgets all windows; for tests.
    void Reset();

    void MoveFocus(Form *form, QWidget *control);
    /// Watches the application. Called once, when the application object exists.
    void Start();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Present(Form &form);
    void MakeActive(Form *form, bool byUser);
    void ActivatePrevious();
    void Enter(Form *form, QWidget *control);
    void Expect(Form *form);
    void WindowActivated(Form *form);
    void FocusMoved(QWidget *now);
    void EndWhenLastIsGone();
    void LeaveModal(Form *form);

    struct Modal {
        Form *TheForm;
        QEventLoop *Loop;
    };

    QHash<QString, Factory> m_factories;
    QHash<QString, Form *> m_loaded;
    QList<Form *> m_history; // most recently active first
    QList<Modal> m_modals;
    QPointer<Form> m_active;
    QPointer<Form> m_expected; // the window that the toolkit was asked to activate and has not yet
    QDeadlineTimer m_patience; // how long it is waited for
    int m_away = 0;       // inside WhileAway
    int m_transition = 0; // inside a showing or a load
    bool m_movingFocus = false;
    quint64 m_moves = 0; // counts changes of the active window
};
inline WindowRegister TheWindows;
