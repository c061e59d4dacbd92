#include "platform/desk/HelpViewer.h"

#include "platform/desk/DesktopWindows.h"
#include "platform/files/DataFile.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LongestEnd = 1000; // milliseconds that a viewer is given to clean up

void Complain(const QString &text)
{
    ShowMessage(text, TheDesk.ProgramTitle, Icon::Warning);
}

/// The question as the viewer understands it. A file that is named is opened at its contents, with the search beside.
QByteArray LineOf(const HelpQuestion &question)
{
    if (!question.Topic.isEmpty())
        return "topic " + question.Topic.toUtf8() + '\n';
    if (question.Context != 0)
        return "context " + QByteArray::number(question.Context) + '\n';
    return "contents\n";
}

} // namespace

HelpViewer::HelpViewer(const QString &program, const std::function<QString()> &ownFile)
    : m_program(program), m_ownFile(ownFile)
{
    m_viewer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_viewer, &QProcess::readyReadStandardOutput, this, &HelpViewer::Hear);
    connect(&m_viewer, &QProcess::finished, this, &HelpViewer::Ended);
}

HelpViewer::~HelpViewer()
{
    m_viewer.disconnect(this);
    Close();
}

void HelpViewer::Ask(const HelpQuestion &question)
{
    const QString file = ExistingPath(question.File.isEmpty() && m_ownFile ? m_ownFile() : question.File);
    const QFileInfo found(file);
    if (!found.isFile())
        return Complain(u"The help file is missing:\n%1"_s.arg(file));
    const QString edition = u"%1 %2 %3"_s.arg(file).arg(found.size()).arg(found.lastModified().toMSecsSinceEpoch());
    if (edition != m_edition)
        Close();
    m_edition = edition;
    if (m_viewer.state() == QProcess::NotRunning && !Start(file))
        return;
    m_last = question;
    m_unanswered = LineOf(question);
    m_viewer.write(m_unanswered);
}

bool HelpViewer::Start(const QString &file)
{
    m_complaint.clear();
    m_viewer.start(m_program, {u"--listen"_s, file});
    if (m_viewer.waitForStarted())
        return true;
    Complain(QFileInfo::exists(m_program) ? u"The program that shows the help cannot be started:\n%1\n%2"_s.arg(
                                                m_program, m_viewer.errorString())
                                          : u"The program that shows the help is missing:\n%1"_s.arg(m_program));
    return false;
}

void HelpViewer::Hear()
{
    while (m_viewer.canReadLine()) {
        const QString line = QString::fromUtf8(m_viewer.readLine()).trimmed();
        if (line.section(u' ', 0, 0) == u"shown"_s) {
            m_unanswered.clear();
            BringForward();
        } else if (line.startsWith(u"error "_s)) {
            m_complaint = line.section(u' ', 1).replace(u'\t', u'\n');
        }
    }
}

void HelpViewer::Ended()
{
    Hear();
    if (std::exchange(m_unanswered, {}).isEmpty())
        return; // the user has closed it
    if (!m_complaint.isEmpty())
        Complain(m_complaint);
    else if (m_viewer.exitStatus() == QProcess::NormalExit && m_viewer.exitCode() == 0)
        Ask(m_last); // it was closed in the moment of the question
    else
        Complain(u"The program that shows the help has ended by itself:\n%1"_s.arg(m_program));
}

void HelpViewer::BringForward() const
{
    // A window that asks for it itself is only marked in the task bar by some window managers.
    const QByteArray noName = "viewer-" + QByteArray::number(m_viewer.processId());
    if (const DesktopWindow window = FindDesktopWindow(m_viewer.processId(), noName))
        ActivateDesktopWindow(window);
}

void HelpViewer::Close()
{
    m_unanswered.clear();
    if (m_viewer.state() == QProcess::NotRunning)
        return;
    m_viewer.closeWriteChannel();
    if (!m_viewer.waitForFinished(LongestEnd))
        m_viewer.kill();
    m_viewer.waitForFinished(LongestEnd);
}
