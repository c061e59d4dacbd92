// A window of the program. The register (WindowRegister.h) raises the events of its life and its activation,
// synchronously and in order; a window overrides what the register calls and never the toolkit's own activation events.
#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;

class Form;

/// What a window asks of the register, which includes this header.
class FormHost
{
public:
    virtual ~FormHost() = default;
    virtual bool Keeps(const Form *form) const = 0; ///< false once the window has ended
    virtual void MoveFocus(Form *form, QWidget *control) = 0;
    virtual void CloseByFrame(Form *form) = 0;
};
inline FormHost *TheFormHost = nullptr;

class Form : public QWidget
{
    Q_OBJECT
public:
    enum class CloseMode {
        CloseBox,
        Code,
        Withdrawal, ///< what the window shows holds no longer: it is asked nothing and cannot refuse
    };

    Form();

    /// Once, when the instance comes into being: at its first showing or when another window touches it.
    virtual void Load() {}
    /// The window has become the one among this program's windows that the user works in.
    virtual void Activate() {}
    virtual void Deactivate() {}
    /// Before every closing; false cancels it.
    virtual bool QueryUnload(CloseMode) { return true; }
    /// The instance ends.
    virtual void Unload() {}
    /// A control of this window got the focus, also each time the window is activated. The base selects the whole
    /// text of a field, seen from its beginning, and calls the handler of OnGotFocus.
    virtual void GotFocus(QWidget *control);
    virtual void LostFocus(QWidget *control);
    /// Where the help opens on F1 in this window; 0 for its contents.
    virtual int HelpContext() const { return 0; }
    /// A window that is only looked at, such as the tutor's, takes no activation when it is shown.
    virtual bool TakesActivation() const { return true; }
    /// Whether it opens beside the window that it was called from; else where the window system puts it.
    virtual bool StandsBesideItsCaller() const { return TakesActivation(); }

    /// Moves the focus to a control of this window. In the active window its got-focus comes at once, in any other
    /// with the next activation, and in the window's own Activate right after it. A disabled control is left alone.
    void FocusOn(QWidget *control);
    /// The control that has the focus or will have it when the window is activated.
    QWidget *FocusControl() const;
    /// What a box that stands over this window is about: the field whose entry is refused, else the control with the
    /// focus.
    QWidget *Subject() const { return m_subject ? m_subject.data() : FocusControl(); }
    void SetSubject(QWidget *field) { m_subject = field; }

Q_SIGNALS:
    /// The user comes to this window, for the first time or again; its Activate follows.
    void Arrives();
    /// The window is about to go to the screen; its size has settled.
    void Appears();

protected:
    /// Enter moves from each of these fields to the next one, round and round, and selects its text; the key is
    /// swallowed.
    void EnterRing(const QList<QLineEdit *> &ring);
    /// Each of these fields formats its text as currency when the focus leaves it; one that is no number stays.
    void CurrencyWhenLeft(const QList<QLineEdit *> &fields);
    /// Enter in one field does this instead; the key is swallowed.
    void OnEnter(QWidget *field, const std::function<void()> &handler);
    void OnGotFocus(QWidget *control, const std::function<void()> &handler);
    void OnLostFocus(QWidget *control, const std::function<void()> &handler);
    void closeEvent(QCloseEvent *event) final;
    bool event(QEvent *event) override;

private:
    friend class WindowRegister;
    QWidget *FirstControl() const;
    void GiveLinesTheirHeight();
    void ShowDescriptionsUnderThePointer();
    void GiveFieldsTheirWidth();
    bool CanHaveFocus(const QWidget *control) const;
    bool HandleEnter(QObject *control);

    /// The least height of a label of several lines: what the window wants for it, and what its lines were given.
    struct LinesHeight {
        int Reserved = 0;
        int Given = 0;
    };

    QPointer<QWidget> m_focus;
    QPointer<QWidget> m_subject;
    QList<CloseMode> m_asked; // the closings whose QueryUnload runs
    bool m_unloading = false; // Unload runs
    QHash<const QObject *, std::function<void()>> m_enter;
    QHash<const QObject *, std::function<void()>> m_gotFocus;
    QHash<const QObject *, std::function<void()>> m_lostFocus;
    QHash<const QLabel *, LinesHeight> m_linesHeights;
};
