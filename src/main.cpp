#include "Windows.h"
#include "platform/Application.h"
#include "platform/Icons.h"
#include "platform/RealDesk.h"
#include "platform/WindowRegister.h"

#include <QTimer>

int main(int argc, char **argv)
{
    Application application(argc, argv);
    application.setWindowIcon(ThemedIcon(QStringLiteral("tallymere")));
    InstallRealDesk(QCoreApplication::applicationDirPath() + QStringLiteral("/printed"));
    DeclareWindows();
    // Within the loop, where an error that nobody traps has its one place.
    QTimer::singleShot(0, &application, [] { TheWindows.Show(FirstWindow()); });
    return application.exec();
}
