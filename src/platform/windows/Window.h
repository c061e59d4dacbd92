// The base of every window of the program: it owns the window's design and the habits that windows share, so that a
// window states what is its own: the table of its entry rules, its event table, its load and its calculations.
#pragma once

#include "platform/desk/Desk.h"
#include "platform/windows/Form.h"

#include <QLineEdit>

class QAbstractButton;

/// How the messages of a window look, and where its help opens on F1 and from their help button.
struct MessageLook {
    QString Title; ///< empty: the one that the window has at the time
    Icon TheIcon = Icon::Stop;
    Buttons TheButtons = Buttons::Ok;
    int HelpContext = 0;
};

// What an entry rule tests.
bool Numeric(const QString &text);
bool NotEmpty(const QString &text);

/// One test of a field. A window's rules stand in a table in the order in which they are tested; the first that fails
/// shows its text and moves the focus.
template <class UiForm>
struct EntryRule {
    QLineEdit *UiForm::*Field;
    bool (*Holds)(const QString &text);
    const char *Text;
    QLineEdit *UiForm::*Focus = nullptr; ///< where the focus goes if not to the field itself
    int HelpContext = 0;                 ///< of the refusal's help button if not the window's
    const char *Instead = nullptr;       ///< what the field shows after the refusal in place of the refused text
};

/// What needs no knowledge of the window's design.
class WindowBase : public Form
{
    Q_OBJECT
public:
    explicit WindowBase(const MessageLook &look) : m_look(look) {}

    /// Derived windows with an Activate of their own call this one where the focus is to be moved.
    void Activate() override;
    int HelpContext() const override { return m_look.HelpContext; }
    /// Whether Esc closes the window as its close box does. A modal window does not unless it says so.
    virtual bool ClosesOnEscape() const { return !isModal(); }

protected:
    void OnClick(QAbstractButton *button, const std::function<void()> &handler);
    /// An error that the handler raises ends it with the unknown-error box under the window's title.
    void OnClickTrapped(QAbstractButton *button, const std::function<void()> &handler);
    void UnloadOn(QAbstractButton *button);
    /// The field that gets the focus at every activation.
    void StartAt(QWidget *field) { m_start = field; }

    /// Runs steps; an error ends them with the unknown-error box under the window's title.
    void Trap(const std::function<void()> &steps);
    /// Shows a message of the window. A help context of 0 is the window's.
    void ShowText(const QString &text, int helpContext = 0) const;
    /// Shows why an entry is refused and moves the focus to where it can be mended.
    void Refuse(const QString &text, QWidget *field, int helpContext = 0);
    /// Puts another text into a field, selected, so that typing replaces it.
    static void Replace(QLineEdit *field, const QString &text);
    /// Closes the window as its exit button does.
    void Close();

    void keyPressEvent(QKeyEvent *event) override;

private:
    MessageLook m_look;
    QPointer<QWidget> m_start;
};

/// A window of the design `UiForm`: `class frmSavings : public Window<Ui::frmSavings>`.
template <class UiForm>
class Window : public WindowBase
{
public:
    explicit Window(const MessageLook &look = {}) : WindowBase(look) { ui.setupUi(this); }

protected:
    /// Walks a table of rules. Returns whether all hold; the first that does not is shown.
    template <std::size_t count>
    bool Accepts(const EntryRule<UiForm> (&rules)[count])
    {
        for (const EntryRule<UiForm> &rule : rules) {
            if (rule.Holds((ui.*rule.Field)->text()))
                continue;
            Refuse(QString::fromUtf8(rule.Text), ui.*(rule.Focus ? rule.Focus : rule.Field), rule.HelpContext);
            if (rule.Instead)
                Replace(ui.*rule.Field, QString::fromUtf8(rule.Instead));
            return false;
        }
        return true;
    }

    UiForm ui;
};
