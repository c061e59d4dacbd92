#include "platform/windows/Application.h"

#include "platform/controls/ClearEdges.h"
#include "platform/desk/Desk.h"
#include "platform/values/RuntimeError.h"
#include "platform/windows/WindowRegister.h"

#include <QScopedValueRollback>

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Tallymere"));
    setApplicationDisplayName(QString());
    setQuitOnLastWindowClosed(false); // the register decides
    setStyle(new ClearEdges);
    TheWindows.Start();
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    if (m_clickGuard.Swallows(receiver, *event))
        return true;
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError &error) {
        ReportFatalError(error);
        return true;
    }
}

void ReportFatalError(const RuntimeError &error)
{
    static bool reporting = false; // timers go on under the box, and what fails in them would pile up boxes
    if (reporting)
        return;
    const QScopedValueRollback once(reporting, true);
    TheDesk.Hourglass(false);
    ShowMessage(QStringLiteral("Run-time error '%1':\n\n%2").arg(int(error.Number)).arg(error.Description()), AppTitle,
                Icon::Stop);
    TheDesk.EndProgram();
}
