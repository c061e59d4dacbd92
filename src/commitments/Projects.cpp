#include "commitments/Projects.h"

#include "budget/SavingsForecast.h"
#include "foundation/BudgetFiles.h"
#include "foundation/OneMore.h"
#include "foundation/Report.h"
#include "platform/desk/Printer.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

enum Field { Name, Amount, CompletionDate };
constexpr int NotEnoughFundsHelp = 4; ///< help context

void RedimProjects(int count, bool preserve)
{
    const auto redim = [&](auto &array) { preserve ? array.RedimPreserve(count) : array.Redim(count); };
    redim(State.ProjectNames);
    redim(State.ProjectAmounts);
    redim(State.ProjectEntryCounts);
    redim(State.ProjectEntryDates);
    redim(State.ProjectEntryAmounts);
}

QStringList Names()
{
    QStringList names;
    for (int i = 1; i <= State.NumberOfProjects; ++i)
        names += State.ProjectNames(i);
    return names;
}

/// The last installment's date is the completion date.
QStringList PanelOf(int project)
{
    return {State.ProjectNames(project), FormatCurrency(State.ProjectAmounts(project)),
            FormatLongDate(State.ProjectEntryDates(project)(EntriesOf(project)))};
}

/// What an entry has left in memory and not in the file, because it failed half-way, is dropped before the next edit.
void DropUnsaved()
{
    if (std::exchange(Projects.Unsaved, false))
        InputProjects();
}

EntryOutcome Commit(QStringList &panel, const QString &, int)
{
    if (const auto refusal = ValidateProjectEntry(panel))
        return Refuse(ProjectList, *refusal);
    const Currency amount = ToCurrency(panel[Amount]);
    panel[Amount] = FormatCurrency(amount);
    if (const auto shortage = ValidateProjectFunds(amount))
        return {.Objection = shortage};
    DropUnsaved();
    Projects.Unsaved = true;
    AddProject(panel[Name], amount);
    SaveAndReload(ProjectList);
    Projects.Unsaved = false;
    return {.Saved = true};
}

/// The project that was clicked last goes, whichever row is marked by now.
void Remove(int)
{
    DropUnsaved();
    DeleteProject();
}

} // namespace

const CommitmentList ProjectList{.Title = u"Projects"_s,
                                 .HelpContext = 25,
                                 .Fields = {u"txtProject"_s, u"txtProjectAmount"_s, u"txtProjectCompletionDate"_s},
                                 .Input = InputProjects,
                                 .Save = SaveProjects,
                                 .Names = Names,
                                 .PanelOf = PanelOf,
                                 .Commit = Commit,
                                 .Remove = Remove};

std::optional<Refusal> ValidateProjectEntry(const QStringList &panel)
{
    return FirstFailure({
        {IsNumeric(panel[Amount]), "Please enter a numerical dollar amount in the Project Amount field",
         "txtProjectAmount"},
        {!panel[Name].isEmpty(), "Please enter a project description in the Project field", "txtProject"},
    });
}

std::optional<Message> ValidateProjectFunds(Currency amount)
{
    if (Forecast.ForecastPickAccumulated >= amount)
        return {};
    return Message{u"Tallymere did not find enough funds by the selected Completion Date. Double-click on the "
                   "Completion Date box to select a later completion date which has at least the Project Amount "
                   "available in the Accumulated column."_s,
                   ProjectList.Title, Icon::Warning, Buttons::OkHelp, NotEnoughFundsHelp};
}

void AddProject(const QString &name, Currency amount)
{
    const int picked = Forecast.ForecastPickRow;
    if (picked > 0 && ToCurrency(Forecast.ForecastAccumulated(picked)) == Currency::Zero)
        RaiseError(RuntimeError::DivisionByZero); // before anything is added: there is nothing to be proportional to
    const qint16 count = OneMore(State.NumberOfProjects);
    RedimProjects(count, true);
    State.NumberOfProjects = count;
    State.ProjectNames(count) = name;
    State.ProjectAmounts(count) = amount;
    State.ProjectEntryCounts(count) = Forecast.ForecastPickRow;
    for (int entry = 1; entry <= picked; ++entry) {
        const double savings = ToCurrency(Forecast.ForecastSavingsAmounts(entry)).ToDouble();
        const double accumulated = ToCurrency(Forecast.ForecastAccumulated(picked)).ToDouble();
        State.ProjectEntryDates(count).At(entry) = Forecast.ForecastDates(entry);
        State.ProjectEntryAmounts(count).At(entry) = Currency::FromDouble(savings / accumulated * amount.ToDouble());
    }
}

void DeleteProject()
{
    if (State.NumberOfProjects < 2) {
        RedimProjects(0, false);
        State.NumberOfProjects = 0;
        return;
    }
    auto names = State.ProjectNames;
    const auto amounts = State.ProjectAmounts;
    const auto counts = State.ProjectEntryCounts;
    const auto dates = State.ProjectEntryDates;
    const auto entryAmounts = State.ProjectEntryAmounts;
    names(Projects.SelectedProject).clear();
    RedimProjects(State.NumberOfProjects - 1, false);
    int next = 0;
    for (int i = 1; i <= State.NumberOfProjects; ++i) {
        if (names(i).isEmpty())
            continue;
        State.ProjectNames(++next) = names(i);
        State.ProjectAmounts(next) = amounts(i);
        State.ProjectEntryCounts(next) = counts(i);
        State.ProjectEntryDates(next) = dates(i);
        State.ProjectEntryAmounts(next) = entryAmounts(i);
    }
    --State.NumberOfProjects;
}

Statement ProjectStatement(int project)
{
    Statement statement{.Heading = State.ProjectNames(project),
                        .Opening = {{u"Pay Period"_s, u"Installment"_s, u"Accumulated"_s}},
                        .Name = State.ProjectNames(project)};
    Currency total;
    for (int entry = 1; entry <= EntriesOf(project); ++entry) {
        const Currency amount = State.ProjectEntryAmounts(project)(entry);
        total += amount;
        statement.Rows.push_back(
            {{FormatLongDate(State.ProjectEntryDates(project)(entry))}, {amount, total}, StatementRow::Signed});
    }
    return statement;
}

void PrintProject(int project)
{
    PrintStatement(ProjectStatement(project), TablePage);
    ThePrinter.EndDoc();
}
