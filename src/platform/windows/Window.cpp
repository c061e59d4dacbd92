#include "platform/windows/Window.h"

#include "platform/controls/Fields.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QAbstractButton>
#include <QKeyEvent>

bool Numeric(const QString &text)
{
    return IsNumeric(text);
}

bool NotEmpty(const QString &text)
{
    return !text.isEmpty();
}

void WindowBase::Activate()
{
    if (m_start)
        FocusOn(m_start);
}

void WindowBase::OnClick(QAbstractButton *button, const std::function<void()> &handler)
{
    connect(button, &QAbstractButton::clicked, this, [handler] { handler(); });
}

void WindowBase::OnClickTrapped(QAbstractButton *button, const std::function<void()> &handler)
{
    OnClick(button, [this, handler] { Trap(handler); });
}

void WindowBase::UnloadOn(QAbstractButton *button)
{
    OnClick(button, [this] { Close(); });
}

void WindowBase::Trap(const std::function<void()> &steps)
{
    TrapUnknownError(m_look.Title, steps);
}

void WindowBase::ShowText(const QString &text, int helpContext) const
{
    const bool help = m_look.TheButtons == Buttons::OkHelp;
    ShowMessage(text, m_look.Title.isEmpty() ? windowTitle() : m_look.Title, m_look.TheIcon, m_look.TheButtons,
                help ? (helpContext ? helpContext : m_look.HelpContext) : 0);
}

void WindowBase::Refuse(const QString &text, QWidget *field, int helpContext)
{
    // A window that is refused while another one is active comes to the front, or the user would not see the field.
    if (TheWindows.Active() != this && isVisible())
        TheWindows.Show(objectName());
    SetSubject(field);
    ShowText(text, helpContext); // over the window that it is about
    SetSubject(nullptr);
    FocusOn(field);
    if (auto *refused = qobject_cast<QLineEdit *>(field)) // also where it has the focus already
        SelectWhole(refused);
}

void WindowBase::Replace(QLineEdit *field, const QString &text)
{
    field->setText(text);
    SelectWhole(field);
}

void WindowBase::Close()
{
    TheWindows.Unload(objectName());
}

void WindowBase::keyPressEvent(QKeyEvent *event)
{
    // The key comes here when no control has a use of its own for it.
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier && ClosesOnEscape()) {
        if (!event->isAutoRepeat()) // a key held down closes one window
            close();
    } else
        Form::keyPressEvent(event);
}
