#include "commitments/Extras.h"

#include "budget/ScanPayPeriods.h"
#include "foundation/BudgetFiles.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

enum Field { Amount, Item };

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
        payPeriod.ExtraItems.At(slot) = {};
}

QStringList Names()
{
    const ExtraPayPeriodRecord &payPeriod = OpenPayPeriod();
    QStringList names;
    for (int i = 1; i <= ItemsOf(payPeriod); ++i)
        names += payPeriod.ExtraItems(i).ExtraItem;
    return names;
}

QStringList PanelOf(int slot)
{
    const ExtraItemRecord &item = std::as_const(OpenPayPeriod()).ExtraItems(slot);
    return {FormatCurrency(item.ExtraItemAmount), item.ExtraItem};
}

EntryOutcome Commit(QStringList &panel, const QString &caption, int slot)
{
    if (const auto refusal = ValidateExtraEntry(panel))
        return Refuse(ExtraItemList, *refusal);
    const ExtraItemRecord item{panel[Item], ToCurrency(panel[Amount])};
    panel[Amount] = FormatCurrency(item.ExtraItemAmount);

    DropUnsavedPayPeriods();
    Scan.PayPeriodsUnsaved = true;
    if (caption == NewCaption)
        AddExtraItem(item);
    else if (caption == ChangeCaption)
        ChangeExtraItem(slot, item);
    else
        return {};
    SaveAndReload(ExtraItemList);
    Scan.PayPeriodsUnsaved = false;
    return {.Saved = true};
}

void Remove(int slot)
{
    DropUnsavedPayPeriods();
    DeleteExtraItem(slot);
}

} // namespace

const CommitmentList ExtraItemList{.Title = u"Extras"_s,
                                   .HelpContext = 24,
                                   .Fields = {u"txtExtraItemAmount"_s, u"txtExtraItem"_s},
                                   .Input = InputPayPeriods,
                                   .Save = SavePayPeriods,
                                   .Names = Names,
                                   .PanelOf = PanelOf,
                                   .Commit = Commit,
                                   .Remove = Remove};

std::optional<Refusal> ValidateExtraEntry(const QStringList &panel)
{
    return FirstFailure({
        {IsNumeric(panel[Amount]), "Please enter a numerical dollar amount in the Extra Item Amount field",
         "txtExtraItemAmount"},
        {!panel[Item].isEmpty(), "Please enter an extra item description in the Extra Item field", "txtExtraItem"},
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
    payPeriod.ExtraItems.At(payPeriod.NumberOfExtraItems) = item;
}

void ChangeExtraItem(int slot, const ExtraItemRecord &item)
{
    CheckSlot(slot);
    OpenPayPeriod().ExtraItems.At(slot) = item;
}

void DeleteExtraItem(int slot)
{
    CheckSlot(slot);
    ExtraPayPeriodRecord &payPeriod = OpenPayPeriod();
    ExtraPayPeriodRecord scratch;
    for (int i = 1; i <= payPeriod.NumberOfExtraItems; ++i)
        scratch.ExtraItems.At(i) = payPeriod.ExtraItems(i);
    ClearSlots(payPeriod);
    scratch.ExtraItems.At(slot).ExtraItem.clear();
    int next = 0;
    for (int i = 1; i <= payPeriod.NumberOfExtraItems; ++i)
        if (!scratch.ExtraItems(i).ExtraItem.isEmpty())
            payPeriod.ExtraItems.At(++next) = scratch.ExtraItems(i);
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

QString OpenPayPeriodName()
{
    return FormatLongDate(OpenPayPeriod().PayPeriodDate);
}

bool IsCredit(int slot)
{
    return OpenPayPeriod().ExtraItems(slot).ExtraItemAmount.IsNegative();
}

QStringList PayPeriodNames()
{
    QStringList names;
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        names += FormatLongDate(State.ExtraPayPeriods(i).PayPeriodDate);
    return names;
}

void RemovePayPeriodAndSave()
{
    DeleteExtraPayPeriod();
    SaveAndReload(ExtraItemList);
}
