// The program of the window tests: the program's own application object, a United States desktop, no motion.
#include "TestProgram.h"
#include "Watchdog.h"
#include "foundation/Identity.h"
#include "platform/controls/ClearEdges.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"

int main(int argc, char **argv)
{
    Application application(argc, argv, ProgramName);
    QApplication::setStyle(new ClearEdges(QStringLiteral("Fusion")));
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    const Watchdog watchdog(qEnvironmentVariable("TALLYMERE_MODAL_LIMIT", QStringLiteral("10000")).toInt());
    return RunRegisteredTest(argc, argv);
}
