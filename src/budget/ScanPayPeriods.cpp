#include "budget/ScanPayPeriods.h"

#include "foundation/BudgetFiles.h"
#include "foundation/Calendar.h"
#include "foundation/OneMore.h"
#include "foundation/State.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Numbers.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Raises error 13, before anything is changed, if one of the dates that would be sorted is none.
void CheckDates()
{
    if (State.NumberOfExtraPayPeriods < 1)
        return; // a single record is not sorted
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        State.ExtraPayPeriods(i).PayPeriodDate.JulianDay();
    DateText(Scan.ScanPickedDate).JulianDay();
}

} // namespace

void FillScanPayPeriods()
{
    State.PayPeriodDate = State.CurrentPayPeriod;
    auto dates = Scan.ScanDates;
    dates[0] = State.PayPeriodDate;
    for (std::size_t i = 1; i < dates.size(); ++i) {
        State.NextPeriodDate = NextPayPeriod(State.PayPeriodDate, State.PayFrequency);
        dates[i] = State.NextPeriodDate;
        State.PayPeriodDate = State.NextPeriodDate;
    }
    Scan.ScanDates = dates;
}

void NewExtraPayPeriod()
{
    const qint16 count = OneMore(State.NumberOfExtraPayPeriods);
    State.ExtraPayPeriods.RedimPreserve(count);
    State.NumberOfExtraPayPeriods = count;
    ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(count);
    payPeriod = {};
    payPeriod.PayPeriodDate = Scan.ScanPickedDate;
    payPeriod.NumberOfExtraItems = 1;
    payPeriod.ExtraItems.At(1).ExtraItem = u"New Item"_s;
}

void SortExtraPayPeriods()
{
    const int count = State.NumberOfExtraPayPeriods;
    if (count == 1)
        return;
    const OneBased<ExtraPayPeriodRecord> scratch = State.ExtraPayPeriods;
    std::vector<int> order(std::size_t(std::max(count, 0)));
    std::iota(order.begin(), order.end(), 1);
    const auto day = [&](int index) { return scratch(index).PayPeriodDate.JulianDay(); };
    std::stable_sort(order.begin(), order.end(), [&](int one, int other) { return day(one) < day(other); });
    for (int i = 1, first = 0; i <= count; ++i) {
        const int found = order[std::size_t(i - 1)];
        if (first == 0 || day(found) != day(first))
            first = found;
        State.ExtraPayPeriods(i) = scratch(first);
    }
}

QStringList ScanRows()
{
    QStringList rows;
    for (const DateText &date : Scan.ScanDates)
        rows += FormatLongDate(date);
    return rows;
}

bool PickScanDate(int row)
{
    Scan.ScanPickedDate = Format(Scan.ScanDates.at(std::size_t(row)).Text(), DateFormat::Dashes);
    if (!State.ScanCalledFromExtras)
        return false;
    TrapUnknownError(ScanTitle, [] {
        DropUnsavedPayPeriods();
        CheckDates();
        NewExtraPayPeriod();
        State.ScanCalledFromExtras = false;
        SortExtraPayPeriods();
        SavePayPeriods();
        InputPayPeriods();
    });
    return !State.ScanCalledFromExtras;
}

void DropUnsavedPayPeriods()
{
    if (std::exchange(Scan.PayPeriodsUnsaved, false))
        InputPayPeriods();
}
