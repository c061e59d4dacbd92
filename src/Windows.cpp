#include "Windows.h"

#include "budget/frmBudget.h"
#include "foundation/frmSplash.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/frmSetCurrentPayPeriod.h"
#include "platform/WindowRegister.h"

namespace {

template <class Window>
void Declare(const char *name)
{
    TheWindows.Declare(QString::fromLatin1(name), [] { return new Window; });
}

} // namespace

void DeclareWindows()
{
    Declare<frmSplash>("frmSplash");
    Declare<frmMain>("frmMain");
    Declare<frmSetCurrentPayPeriod>("frmSetCurrentPayPeriod");
    Declare<frmBudget>("frmBudget");
}
