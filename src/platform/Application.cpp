#include "platform/Application.h"

#include "platform/Desk.h"
#include "platform/RuntimeError.h"
#include "platform/WindowRegister.h"

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Tallymere"));
    setApplicationDisplayName(QString());
    setQuitOnLastWindowClosed(false); // the register decides
    TheWindows.Start();
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError &error) {
        ReportFatalError(error);
        return true;
    }
}

void ReportFatalError(const RuntimeError &error)
{
    ShowMessage(QStringLiteral("Run-time error '%1':\n\n%2").arg(int(error.Number)).arg(error.Description()), AppTitle,
                Icon::Stop);
    TheDesk.EndProgram();
}
