// The edits of the array of creditors: bills that fall due on a fixed day of every month.
#pragma once

#include "commitments/CommitmentList.h"
#include "foundation/State.h"

constexpr qint16 LastDueDate = 28; ///< the last day that every month has

/// The creditors' list with its panel of due date, amount and name.
extern const CommitmentList CreditorList;

/// What the panel is refused for, if anything: a due day that is no number from 1 to 28, an amount that is no number,
/// an empty name. Numeric is what IsNumeric accepts.
std::optional<Refusal> ValidateCreditorEntry(const QStringList &panel);

/// Appends a record. A due day beyond 28 sounds the beep and becomes 28 in `record` itself.
void AddCreditor(CreditorRecord &record);
/// Overwrites the record `index`; the same guard. Error 9 where there is no such record.
void ChangeCreditor(int index, CreditorRecord &record);
/// Ascending by due day, ties in the order in which they stood. The search for the smallest day starts from 99, the
/// mark of a record that was taken; so a due day of 99 or above does not survive.
void SortCreditors();
/// Removes the record `index`; records with an empty name, the mark of deletion, disappear with it. A single record
/// goes whatever the index, and leaves a blank one behind a count of 0; of several, error 9 where there is no such
/// record, with nothing changed.
void DeleteCreditor(int index);
