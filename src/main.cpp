#include "Windows.h"
#include "foundation/Identity.h"
#include "foundation/State.h"
#include "mainwindow/EndOfSession.h"
#include "platform/controls/Icons.h"
#include "platform/desk/RealDesk.h"
#include "platform/windows/Application.h"
#include "platform/windows/EndSignals.h"
#include "platform/windows/WindowRegister.h"

#include <QTimer>

int main(int argc, char **argv)
{
    Application application(argc, argv, ProgramName);
    application.setWindowIcon(ThemedIcon(ProgramName.toLower()));
    const QString folder = QCoreApplication::applicationDirPath();
    InstallRealDesk(AppTitle, folder + QStringLiteral("/printed"), [folder] {
        // The first windows stand there before the state is filled.
        return State.HelpFile.isEmpty() ? folder + HelpFileName : State.HelpFile;
    });
    RegisterWindows();
    QObject::connect(&application, &Application::SaveRequested, SaveWithoutQuestion);
    QObject::connect(&application, &Application::EndRequested, LeaveWithoutQuestion);
    TakeEndSignals(application);
    // Within the loop, where an error that nobody traps has its one place.
    QTimer::singleShot(0, &application, [] { TheWindows.Show(FirstWindow()); });
    return application.exec();
}
