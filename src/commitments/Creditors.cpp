#include "commitments/Creditors.h"

#include "foundation/BudgetFiles.h"
#include "foundation/Compaction.h"
#include "foundation/OneMore.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint16 TakenMark = 99;
enum Field { DueDate, Amount, Name };

void GuardDueDate(CreditorRecord &record)
{
    if (record.CreditorDueDate <= LastDueDate)
        return;
    TheDesk.Beep();
    record.CreditorDueDate = LastDueDate;
}

QStringList Names()
{
    QStringList names;
    for (int i = 1; i <= State.NumberOfCreditors; ++i)
        names += State.Creditors(i).CreditorName;
    return names;
}

QStringList PanelOf(int record)
{
    const CreditorRecord &creditor = State.Creditors(record);
    return {PlainText(creditor.CreditorDueDate), FormatCurrency(creditor.CreditorAmount), creditor.CreditorName};
}

EntryOutcome Commit(QStringList &panel, const QString &caption, int record)
{
    if (const auto refusal = ValidateCreditorEntry(panel))
        return Refuse(CreditorList, *refusal);
    const auto showDueDate = [&](qint16 day) { panel[DueDate] = Format(day, NumberFormat::GeneralNumber); };
    CreditorRecord creditor;
    creditor.CreditorDueDate = ToInteger(panel[DueDate]);
    showDueDate(creditor.CreditorDueDate);
    creditor.CreditorAmount = ToCurrency(panel[Amount]);
    panel[Amount] = FormatCurrency(creditor.CreditorAmount);
    creditor.CreditorName = panel[Name];

    if (caption == NewCaption)
        AddCreditor(creditor);
    else if (caption == ChangeCaption)
        ChangeCreditor(record, creditor);
    else
        return {};
    showDueDate(creditor.CreditorDueDate); // both guard the day by themselves
    SortCreditors();
    SaveAndReload(CreditorList);
    return {.Saved = true};
}

} // namespace

const CommitmentList CreditorList{.Title = u"Creditors"_s,
                                  .HelpContext = 22,
                                  .Fields = {u"txtCreditorDueDate"_s, u"txtCreditorAmount"_s, u"txtCreditor"_s},
                                  .Input = InputCreditors,
                                  .Save = SaveCreditors,
                                  .Names = Names,
                                  .PanelOf = PanelOf,
                                  .Commit = Commit,
                                  .Remove = DeleteCreditor};

std::optional<Refusal> ValidateCreditorEntry(const QStringList &panel)
{
    constexpr const char *dueDateText = "Please enter a number between 1 and 28 in the Creditor Due Date field";
    const bool dueDateIsNumeric = IsNumeric(panel[DueDate]);
    const double dueDate = dueDateIsNumeric ? ToDouble(panel[DueDate]) : 0;
    return FirstFailure({
        {dueDateIsNumeric, dueDateText, "txtCreditorDueDate"},
        {dueDate >= 1 && dueDate <= LastDueDate, dueDateText, "txtCreditorDueDate"},
        {IsNumeric(panel[Amount]), "Please enter a numerical dollar amount in the Creditor Amount field",
         "txtCreditorAmount"},
        // The caret goes to the amount although the name is missing: a habit of this window that its users know.
        {!panel[Name].isEmpty(), "Please enter a creditor name or description in the Creditor field",
         "txtCreditorAmount"},
    });
}

void AddCreditor(CreditorRecord &record)
{
    const qint16 count = OneMore(State.NumberOfCreditors);
    State.Creditors.RedimPreserve(count);
    State.NumberOfCreditors = count;
    GuardDueDate(record);
    State.Creditors(count) = record;
}

void ChangeCreditor(int index, CreditorRecord &record)
{
    GuardDueDate(record);
    State.Creditors(index) = record;
}

void SortCreditors()
{
    const int count = State.NumberOfCreditors;
    std::vector<CreditorRecord> sorted;
    const CreditorRecord *firstMarked = nullptr;
    for (int i = 1; i <= count; ++i) {
        const CreditorRecord &creditor = State.Creditors(i);
        if (creditor.CreditorDueDate < TakenMark)
            sorted.push_back(creditor);
        if (creditor.CreditorDueDate <= TakenMark && !firstMarked)
            firstMarked = &creditor;
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const CreditorRecord &one, const CreditorRecord &other) {
        return one.CreditorDueDate < other.CreditorDueDate;
    });
    // Once every day below the mark is taken, the search finds the first marked record again and again.
    CreditorRecord again;
    if (firstMarked) {
        again = *firstMarked;
        again.CreditorDueDate = TakenMark;
    }
    sorted.resize(std::size_t(count), again);
    for (int i = 1; i <= count; ++i)
        State.Creditors(i) = sorted[std::size_t(i - 1)];
}

void DeleteCreditor(int index)
{
    if (State.NumberOfCreditors < 2) {
        State.Creditors.Redim(1);
        State.NumberOfCreditors = 0;
        return;
    }
    DeleteByMark(State.Creditors, State.NumberOfCreditors, index, &CreditorRecord::CreditorName);
}
