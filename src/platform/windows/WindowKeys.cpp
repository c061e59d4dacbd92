// What the user's keys and clicks mean in every window.
#include "platform/windows/WindowRegister.h"

#include "platform/controls/Fields.h"
#include "platform/desk/Desk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcutEvent>

namespace {

bool KeyIsHeld = false; // the key that is being looked up as a shortcut repeats itself

struct {
    int Key = 0;
    quint64 At = 0; // 0: none yet
} LastRelease;

/// A window system does not mark every press of a held key as repeated; such a press comes at the very moment of a
/// release of that key.
bool IsHeld(const QKeyEvent &event)
{
    return event.isAutoRepeat() ||
           (event.timestamp() != 0 && event.timestamp() == LastRelease.At && event.key() == LastRelease.Key);
}

/// Whether a key pressed there may answer a box or dialog of the desk.
bool MayAnswer(const QWidget &widget, int key)
{
    if (!qobject_cast<const QDialog *>(widget.window()))
        return false;
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape: return true;
    case Qt::Key_Space: return qobject_cast<const QAbstractButton *>(&widget);
    default: break;
    }
    // In a message box the letter of an access key is enough.
    return qobject_cast<const QMessageBox *>(widget.window()) && key >= Qt::Key_A && key <= Qt::Key_Z;
}

} // namespace

void WindowRegister::Start()
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { FocusMoved(now); });
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
                SelectWhole(field);
            m_clicked = nullptr;
        }
        break;
    case QEvent::ShortcutOverride: // it comes before each shortcut
        KeyIsHeld = IsHeld(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::Shortcut:
        if (AccessKey(watched, *static_cast<QShortcutEvent *>(event)))
            return true;
        break;
    case QEvent::KeyPress:
        if (KeyPressed(watched, *static_cast<QKeyEvent *>(event)))
            return true;
        break;
    case QEvent::KeyRelease: {
        const auto *key = static_cast<QKeyEvent *>(event);
        LastRelease = {key->key(), key->timestamp()};
        break;
    }
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

/// An access key moves the focus before it clicks. One held down is one click.
bool WindowRegister::AccessKey(QObject *watched, const QShortcutEvent &event)
{
    const QPointer<QAbstractButton> button = qobject_cast<QAbstractButton *>(watched);
    Form *form = FormOf(button);
    if (!form && button && KeyIsHeld) // the key is still held that brought the box
        return qobject_cast<QMessageBox *>(button->window());
    if (!form || !button->isEnabled() || event.isAmbiguous())
        return false;
    if (KeyIsHeld)
        return true;
    if (button->focusPolicy() != Qt::NoFocus)
        MoveFocus(form, button);
    if (button)
        button->click();
    return true;
}

/// F1 asks for the page of its window. In a message box it is the help button, where there is one, and in any other box
/// or dialog it asks for the page of the window that this belongs to.
bool WindowRegister::HelpKeyPressed(QWidget *widget, bool isHeld)
{
    Form *form = FormOf(widget);
    if (!form && qobject_cast<QDialog *>(widget->window()))
        form = Front();
    if (!form)
        return false;
    if (isHeld)
        return true;
    const auto *box = qobject_cast<QMessageBox *>(widget->window());
    if (QAbstractButton *button = box ? box->button(QMessageBox::Help) : nullptr)
        button->click();
    else
        TheDesk.ShowHelp({QString(), form->HelpContext(), form->objectName()});
    return true;
}

bool WindowRegister::KeyPressed(QObject *watched, const QKeyEvent &event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    const bool isHeld = IsHeld(event);
    if (event.key() == Qt::Key_F1)
        return widget && HelpKeyPressed(widget, isHeld);
    // A key that is still held from before a box or dialog came was not pressed for it.
    if (isHeld && widget && MayAnswer(*widget, event.key()))
        return true;
    Form *form = FormOf(widget);
    if (!form)
        return false;
    if (isHeld && event.key() == Qt::Key_Space && qobject_cast<QAbstractButton *>(watched))
        return true;
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    auto *button = qobject_cast<QPushButton *>(watched);
    const bool inField = qobject_cast<QLineEdit *>(watched);
    if (isHeld) // a key held down counts once
        return button || inField;
    if (form->HandleEnter(watched) || inField) // in a field it never presses a button
        return true;
    if (button)
        button->click();
    return button;
}
