#include "foundation/StartAndEnd.h"

#include "foundation/BudgetFiles.h"
#include "foundation/Identity.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/State.h"
#include "platform/desk/Desk.h"
#include "platform/files/DataFile.h"

void InitializeVariables()
{
    bool abandoned = false;
    const auto step = [&](const std::function<void()> &statement) {
        if (abandoned)
            return;
        ResumeNext(statement, [&](const RuntimeError &error) {
            if (error.Number == RuntimeError::FileNotFound) {
                // Meant for a missing calculator; a missing tutor or settings file greys its entry just the same.
                State.MathCalculatorMissing = true;
                return;
            }
            ShowMessage(error.Text(), QStringLiteral("Initialize Variables"), Icon::Stop);
            abandoned = true;
        });
    };

    State.InitializingVariables = true;
    State.ApplicationPath = TheDesk.ProgramFolder();
    State.StoresDirectory = State.ApplicationPath + QStringLiteral("\\stores\\");
    State.HelpFile = State.ApplicationPath + HelpFileName;

    ReadEnvironmentSettings(step);
    if (abandoned)
        return;

    State.CurrentPayPeriod = Format(TheDesk.Now().date(), DateFormat::Dashes);
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.PrintFontName = QStringLiteral("Courier");
    State.PrintFontSize = 8;
    State.PrintFontBold = State.PrintFontItalic = State.PrintFontUnderline = State.PrintFontStrikethru = false;
    State.PrintFontColor = 0;
    step(LoadTutorInstructions);
    if (abandoned)
        return;
    for (const auto load : {InputCreditors, InputRegulars, InputPayPeriods, InputProjects, InputMasterShoppingList,
                            InputCurrentShoppingList})
        load(); // each tells its own errors
    step([] { TheDesk.StartCalculator(); });
    if (!abandoned)
        State.InitializingVariables = false;
}

void LoadTutorInstructions()
{
    const QString footer = QStringLiteral("For more information press F1\n"
                                          "Use the browse (<< and >>) buttons at the top to move \n"
                                          "forward and backward through the instructions");
    const QString path = State.ApplicationPath + QStringLiteral("\\help\\Instruction.txt");
    if (!FileExists(path)) // also where the whole folder is missing: the start goes on without the pages
        RaiseError(RuntimeError::FileNotFound);
    InputFile file;
    file.Open(path);
    State.TutorInstructions.Redim(MostTutorPages);
    int page = 0;
    while (!file.AtEnd()) {
        const QString line = file.InputLine();
        if (!line.startsWith(QLatin1Char(';'))) {
            State.TutorInstructions(page) += QLatin1Char('\n') + line;
            continue;
        }
        if (page >= 1)
            State.TutorInstructions(page) += QStringLiteral("\n\n") + footer;
        ++page;
    }
}

void CloseCalculatorOnExit()
{
    IgnoreErrors([] { TheDesk.CloseCalculator(); });
}

void EndProgram()
{
    CloseCalculatorOnExit();
    IgnoreErrors([] { ThePrinter.EndDoc(); }); // a switch that is still on keeps its pages till now
    TheDesk.EndProgram();
}

void LeaveProgram()
{
    SaveEnvironmentSettings();
    EndProgram();
}

void ApplyPrintSettings()
{
    ThePrinter.Font = {State.PrintFontName,      State.PrintFontSize,       State.PrintFontBold, State.PrintFontItalic,
                       State.PrintFontUnderline, State.PrintFontStrikethru, State.PrintFontColor};
}
