// The edits of the extra pay periods: items, or credits, that fall into one particular pay period.
#pragma once

#include "commitments/CommitmentList.h"
#include "foundation/State.h"

/// The items of the open pay period with their panel of amount and name.
extern const CommitmentList ExtraItemList;

/// What the extras window holds on to; a test puts it back with one assignment.
struct ExtrasState {
    bool ExtrasListMode = false;       ///< the list shows pay periods; else the items of the open one
    qint16 SelectedExtraPayPeriod = 0; ///< index of the open pay period
};
inline ExtrasState Extras;

/// An amount that is no number or an empty name is refused.
std::optional<Refusal> ValidateExtraEntry(const QStringList &panel);

/// The amount's text when the credit box is clicked: its absolute value, negative if the box is checked, as currency
/// text. A text that is no number comes back unchanged.
QString AmountWithCredit(const QString &amount, bool credit);

/// Appends an item to the open pay period. Beyond 200 items: error 9, with the count already raised.
void AddExtraItem(const ExtraItemRecord &item);
/// Overwrites slot `slot` (1 to 200) of the open pay period; error 9 outside.
void ChangeExtraItem(int slot, const ExtraItemRecord &item);
/// Removes slot `slot` of the open pay period; items with an empty name disappear with it. Only slots 1 to 100 are
/// cleared on the way: a limit of its own, lower than the array's bound.
void DeleteExtraItem(int slot);
/// Removes the open pay period; the date is the mark.
void DeleteExtraPayPeriod();

/// The open pay period's date in words.
QString OpenPayPeriodName();
/// Whether an item of the open pay period is a credit.
bool IsCredit(int slot);
/// The dates of all pay periods as their list shows them.
QStringList PayPeriodNames();
/// The delete button of the pay periods: removes the open one, saves and reads back.
void RemovePayPeriodAndSave();
