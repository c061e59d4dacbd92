#include "commitments/Regulars.h"

#include "commitments/Compaction.h"
#include "platform/values/Numbers.h"

std::optional<Refusal> ValidateRegularEntry(const RegularPanel &panel)
{
    return FirstFailure({
        {IsNumeric(panel.Amount), "Please enter a numerical dollar amount in the Regular Amount field",
         "txtRegularAmount"},
        {!panel.Item.isEmpty(), "Please enter a regular item description in the Regular Item field", "txtRegularItem"},
    });
}

void AddRegular(const RegularRecord &record)
{
    const qint16 count = ToInteger(State.NumberOfRegulars + 1);
    State.Regulars.RedimPreserve(count);
    State.NumberOfRegulars = count;
    State.Regulars(count) = record;
}

void ChangeRegular(int index, const RegularRecord &record)
{
    State.Regulars(index) = record;
}

void DeleteRegular(int index)
{
    State.Regulars(index); // no selected row, no delete, not even of the last one
    if (State.NumberOfRegulars < 2) {
        State.Regulars.Redim(0);
        State.NumberOfRegulars = 0;
        return;
    }
    DeleteByMark(State.Regulars, State.NumberOfRegulars, index, &RegularRecord::RegularItem);
}
