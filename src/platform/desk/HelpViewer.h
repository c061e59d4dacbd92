// The program's help. A program of its own shows it, so that it can be read and closed over a modal window and beside
// an open message box. There is at most one; it is started by the first question, hears each later one as a line of its
// standard input, and ends with the program, which closes that input.
#pragma once

#include "platform/desk/Desk.h"

#include <QProcess>

class HelpViewer : public QObject
{
public:
    /// program: the viewer. ownFile: the program's own help file, which a question without a file is about.
    HelpViewer(const QString &program, const std::function<QString()> &ownFile);
    ~HelpViewer() override;

    /// Shows the page that is asked for. Where the help cannot be shown, a box tells why; nothing else happens then.
    void Ask(const HelpQuestion &question);
    /// Whether the page of the last question is shown.
    bool HasAnswered() const { return m_viewer.state() == QProcess::Running && m_unanswered.isEmpty(); }
    /// Ends the viewer, if it runs.
    void Close();

private:
    bool Start(const QString &file);
    void Hear();
    void Ended();
    void BringForward() const;

    QString m_program;
    std::function<QString()> m_ownFile;
    QProcess m_viewer;
    QString m_edition;       // what tells the file that the viewer shows from another one, or from a newer one
    QByteArray m_unanswered; // the last question, until its page is shown
    HelpQuestion m_last;     // the same as it was asked
    QString m_complaint;     // why the viewer cannot read the file
};
