#include "platform/windows/Application.h"

#include "platform/controls/ClearEdges.h"
#include "platform/desk/Desk.h"
#include "platform/values/RuntimeError.h"
#include "platform/windows/WindowRegister.h"

#include <QScopedValueRollback>
#include <new>

using namespace Qt::Literals::StringLiterals;

Application::Application(int &argc, char **argv, const QString &name) : QApplication(argc, argv)
{
    setApplicationName(name);
    setApplicationDisplayName(QString());
    setDesktopFileName(name.toLower());
    setQuitOnLastWindowClosed(false); // the register decides
    // The session manager asks for a checkpoint as well as before a logout, which the user may still call off: so this
    // only saves. The logout itself comes as QEvent::Quit.
    connect(this, &QGuiApplication::commitDataRequest, this, &Application::SaveRequested);
    connect(this, &QGuiApplication::saveStateRequest, this, &Application::SaveRequested);
    setStyle(new ClearEdges);
    TheWindows.Start();
}

bool Application::event(QEvent *event)
{
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    Q_EMIT EndRequested(); // the toolkit would close window by window, each with its questions
    return true;
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    if (m_clickGuard.Swallows(receiver, *event))
        return true;
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError &error) {
        ReportFatalError(error);
    } catch (const std::bad_alloc &) {
        ReportFatalError(RuntimeError(RuntimeError::OutOfMemory));
    } catch (const std::exception &error) { // a library's
        qWarning("%s", error.what());
        ReportFatalError(RuntimeError(RuntimeError::InternalError));
    }
    return true;
}

void ReportFatalError(const RuntimeError &error)
{
    static bool reporting = false; // timers go on under the box, and what fails in them would pile up boxes
    if (reporting)
        return;
    const QScopedValueRollback once(reporting, true);
    TheDesk.Hourglass(false);
    ShowMessage(u"Run-time error '%1':\n\n%2"_s.arg(int(error.Number)).arg(error.Description()), TheDesk.ProgramTitle,
                Icon::Stop);
    TheDesk.EndProgram();
}
