// The edits of the array of regular items: amounts that are spent in every pay period, in order of entry.
#pragma once

#include "commitments/CommitmentList.h"
#include "foundation/State.h"

/// The regular items' list with its panel of amount and description.
extern const CommitmentList RegularList;

/// An amount that is no number or an empty description is refused.
std::optional<Refusal> ValidateRegularEntry(const QStringList &panel);

void AddRegular(const RegularRecord &record);
/// Error 9 where there is no such record.
void ChangeRegular(int index, const RegularRecord &record);
/// As DeleteCreditor, with the description as the mark; the last one leaves nothing.
void DeleteRegular(int index);
