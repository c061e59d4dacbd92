#include "mainwindow/EndOfSession.h"

#include "foundation/BudgetFiles.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"
#include "platform/desk/Desk.h"
#include "platform/windows/WindowRegister.h"

#include <QScopedValueRollback>

using namespace Qt::Literals::StringLiterals;

void SaveWithoutQuestion()
{
    const Form *main = TheWindows.Loaded(u"frmMain"_s);
    if (!main || !main->isVisible() || State.InitializingVariables)
        return; // a start that was given up leaves settings that are half read
    const QScopedValueRollback quiet(TheDesk.ShowMessage, {[](const Message &message) {
                                         qWarning("%s: %s", qPrintable(message.Title), qPrintable(message.Text));
                                         return Answer::No;
                                     }});
    SaveEnvironmentSettings();
}

void LeaveWithoutQuestion()
{
    SaveWithoutQuestion();
    CloseCalculatorOnExit();
    TheDesk.EndProgram();
}
