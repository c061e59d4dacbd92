#include "commitments/Creditors.h"

#include "commitments/Compaction.h"
#include "platform/values/Numbers.h"

#include <algorithm>

namespace {

constexpr qint16 TakenMark = 99;

void GuardDueDate(CreditorRecord &record)
{
    if (record.CreditorDueDate <= LastDueDate)
        return;
    TheDesk.Beep();
    record.CreditorDueDate = LastDueDate;
}

} // namespace

std::optional<Refusal> ValidateCreditorEntry(const CreditorPanel &panel)
{
    constexpr const char *dueDateText = "Please enter a number between 1 and 28 in the Creditor Due Date field";
    const bool dueDateIsNumeric = IsNumeric(panel.DueDate);
    const double dueDate = dueDateIsNumeric ? ToDouble(panel.DueDate) : 0;
    return FirstFailure({
        {dueDateIsNumeric, dueDateText, "txtCreditorDueDate"},
        {dueDate >= 1 && dueDate <= LastDueDate, dueDateText, "txtCreditorDueDate"},
        {IsNumeric(panel.Amount), "Please enter a numerical dollar amount in the Creditor Amount field",
         "txtCreditorAmount"},
        // The caret goes to the amount although the name is missing: a habit of this window that its users know.
        {!panel.Creditor.isEmpty(), "Please enter a creditor name or description in the Creditor field",
         "txtCreditorAmount"},
    });
}

void AddCreditor(CreditorRecord &record)
{
    const qint16 count = ToInteger(State.NumberOfCreditors + 1);
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
    State.Creditors(index); // no selected row, no delete, not even of the last one
    if (State.NumberOfCreditors < 2) {
        State.Creditors.Redim(1);
        State.NumberOfCreditors = 0;
        return;
    }
    DeleteByMark(State.Creditors, State.NumberOfCreditors, index, &CreditorRecord::CreditorName);
}
