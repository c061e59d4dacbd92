// What the user does while the program waits in the question dialogue: one reply after the other, each when the
// dialogue stands there.
#pragma once

#include "GuiDesk.h"

#include "foundation/WindowNames.h"

#include <QTimer>
#include <utility>

class Conversation
{
public:
    Conversation()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Go(); });
        m_timer.start(0);
    }
    ~Conversation()
    {
        if (!m_replies.isEmpty())
            Fail(QStringLiteral("%1 replies were not asked for").arg(m_replies.size()), LastAct());
    }
    Conversation(const Conversation &) = delete;
    Conversation &operator=(const Conversation &) = delete;

    /// Types the text and clicks OK.
    Conversation &Say(const QString &text)
    {
        return Do([text] {
            Type(WindowName::frmInput, QStringLiteral("txtInput"), text);
            Click(WindowName::frmInput, QStringLiteral("cmdOK"));
        });
    }
    /// Closes the dialogue without OK.
    Conversation &Dismiss()
    {
        return Do([] { CloseByFrame(WindowName::frmInput); });
    }
    Conversation &Do(const std::function<void()> &reply)
    {
        m_replies += reply;
        return *this;
    }

    /// Title, prompt and text of the dialogue before each reply, joined by " | ".
    QStringList Asked;

private:
    void Go()
    {
        if (m_replying || m_replies.isEmpty() || !IsShown(WindowName::frmInput))
            return;
        m_replying = true;
        Asked += QStringList{TheWindows.Loaded(WindowName::frmInput)->windowTitle(),
                             TextOf(WindowName::frmInput, QStringLiteral("lblPrompt")),
                             TextOf(WindowName::frmInput, QStringLiteral("txtInput"))}
                     .join(QStringLiteral(" | "));
        m_replies.takeFirst()();
        m_replying = false;
    }

    QTimer m_timer;
    QList<std::function<void()>> m_replies;
    bool m_replying = false;
};

inline const QString UnknownErrorText =
    QStringLiteral("An unknown error occured. This may be due to an invalid entry. If you need help press F1 for "
                   "assistance on this page. On the main menu click on Help->Search for Help On... or Help->How Do I? "
                   "or click on any of the help icons on the bottom right of the main window.");

/// Types the figures of the creditor at hand and clicks OK.
inline void EnterFigures(const QString &balance, const QString &rate, const QString &amount, const QString &dueDate)
{
    const QString window = WindowName::frmCreditorInfo;
    Type(window, QStringLiteral("txtBalanceOwed"), balance);
    Type(window, QStringLiteral("txtAnnualPercentageRate"), rate);
    Type(window, QStringLiteral("txtMonthlyPayment"), amount);
    Type(window, QStringLiteral("txtDueDate"), dueDate);
    Click(window, QStringLiteral("cmdOK"));
}
