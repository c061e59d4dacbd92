#include "commitments/Extras.h"

#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

namespace {

// Clearing stops here although the array goes on to 200.
constexpr int LastClearedSlot = 100;

ExtraPayPeriodRecord &OpenPayPeriod()
{
    return State.ExtraPayPeriods(Extras.SelectedExtraPayPeriod);
}

/// No row stands for slot 0, although the array has one.
void CheckSlot(int slot)
{
    if (slot < 1 || slot > MostExtraItems)
        RaiseError(RuntimeError::SubscriptOutOfRange);
}

void ClearSlots(ExtraPayPeriodRecord &payPeriod)
{
    for (int slot = 1; slot <= LastClearedSlot; ++slot)
        payPeriod.ExtraItems(slot) = {};
}

} // namespace

std::optional<Refusal> ValidateExtraEntry(const ExtraPanel &panel)
{
    return FirstFailure({
        {IsNumeric(panel.Amount), "Please enter a numerical dollar amount in the Extra Item Amount field",
         "txtExtraItemAmount"},
        {!panel.Item.isEmpty(), "Please enter an extra item description in the Extra Item field", "txtExtraItem"},
    });
}

QString AmountWithCredit(const QString &amount, bool credit)
{
    if (!IsNumeric(amount))
        return amount;
    const Currency absolute = ToCurrency(amount).Abs();
    return FormatCurrency(credit ? -absolute : absolute);
}

void AddExtraItem(const ExtraItemRecord &item)
{
    ExtraPayPeriodRecord &payPeriod = OpenPayPeriod();
    payPeriod.NumberOfExtraItems = ToInteger(payPeriod.NumberOfExtraItems + 1);
    payPeriod.ExtraItems(payPeriod.NumberOfExtraItems) = item;
}

void ChangeExtraItem(int slot, const ExtraItemRecord &item)
{
    CheckSlot(slot);
    OpenPayPeriod().ExtraItems(slot) = item;
}

void DeleteExtraItem(int slot)
{
    CheckSlot(slot);
    ExtraPayPeriodRecord &payPeriod = OpenPayPeriod();
    ExtraPayPeriodRecord scratch;
    for (int i = 1; i <= payPeriod.NumberOfExtraItems; ++i)
        scratch.ExtraItems(i) = payPeriod.ExtraItems(i);
    ClearSlots(payPeriod);
    scratch.ExtraItems(slot).ExtraItem.clear();
    int next = 0;
    for (int i = 1; i <= payPeriod.NumberOfExtraItems; ++i)
        if (!scratch.ExtraItems(i).ExtraItem.isEmpty())
            payPeriod.ExtraItems(++next) = scratch.ExtraItems(i);
    --payPeriod.NumberOfExtraItems;
}

void DeleteExtraPayPeriod()
{
    if (State.NumberOfExtraPayPeriods < 2) {
        State.ExtraPayPeriods.Redim(0);
        State.NumberOfExtraPayPeriods = 0;
        return;
    }
    auto scratch = State.ExtraPayPeriods;
    scratch(Extras.SelectedExtraPayPeriod).PayPeriodDate = {};
    State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods - 1);
    int next = 0;
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        if (!scratch(i).PayPeriodDate.IsEmpty())
            State.ExtraPayPeriods(++next) = scratch(i);
    --State.NumberOfExtraPayPeriods;
}
