#include "mainwindow/EndOfSession.h"

#include "foundation/BudgetFiles.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "platform/desk/Desk.h"
#include "platform/windows/WindowRegister.h"

#include <QScopedValueRollback>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Runs steps whose boxes go to the log, since nobody is there to answer them.
void Quietly(const std::function<void()> &steps)
{
    const QScopedValueRollback quiet(TheDesk.ShowMessage, {[](const Message &message) {
                                         qWarning("%s: %s", qPrintable(message.Title), qPrintable(message.Text));
                                         return Answer::No;
                                     }});
    steps();
}

/// The main window may be hidden, as while a guide is open. Before it is loaded, or after a start that was given up,
/// the settings are not read or only half of them.
bool HasSettings()
{
    return TheWindows.Loaded(WindowName::frmMain) && !State.InitializingVariables;
}

} // namespace

void SaveWithoutQuestion()
{
    if (HasSettings())
        Quietly(SaveEnvironmentSettings);
}

void LeaveWithoutQuestion()
{
    SaveWithoutQuestion();
    Quietly(EndProgram); // with the box that tells where pages were printed to
}
