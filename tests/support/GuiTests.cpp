// The program of the window tests: the program's own application object, a United States desktop, no motion.
#include "TestProgram.h"
#include "Watchdog.h"
#include "foundation/Identity.h"
#include "platform/controls/ClearEdges.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv)
{
    Application application(argc, argv, ProgramName);
    QApplication::setStyle(new ClearEdges(u"Fusion"_s));
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    const Watchdog watchdog(qEnvironmentVariable("TALLYMERE_MODAL_LIMIT", u"10000"_s).toInt());
    return RunRegisteredTest(argc, argv);
}
