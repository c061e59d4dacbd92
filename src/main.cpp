#include "budget/frmBudget.h"
#include "foundation/Options.h"
#include "foundation/frmSplash.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/frmSetCurrentPayPeriod.h"
#include "platform/Application.h"
#include "platform/Icons.h"
#include "platform/RealDesk.h"
#include "platform/WindowRegister.h"

namespace {

template <class Window>
void Declare(const char *name)
{
    TheWindows.Declare(QString::fromLatin1(name), [] { return new Window; });
}

void DeclareWindows()
{
    Declare<frmSplash>("frmSplash");
    Declare<frmMain>("frmMain");
    Declare<frmSetCurrentPayPeriod>("frmSetCurrentPayPeriod");
    Declare<frmBudget>("frmBudget");
}

} // namespace

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
