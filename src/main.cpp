#include "Windows.h"
#include "foundation/Options.h"
#include "platform/Application.h"
#include "platform/Icons.h"
#include "platform/RealDesk.h"
#include "platform/WindowRegister.h"

int main(int argc, char **argv)
{
    Application application(argc, argv);
    application.setWindowIcon(ThemedIcon(QStringLiteral("tallymere")));
    InstallRealDesk(QCoreApplication::applicationDirPath() + QStringLiteral("/printed"));
    DeclareWindows();
    const QString welcome = QStringLiteral("frmWelcome");
    TheWindows.Show(OptionValue(ShowWelcome) == 1 && TheWindows.Knows(welcome) ? welcome : QStringLiteral("frmSplash"));
    return application.exec();
}
