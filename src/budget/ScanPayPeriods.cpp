#include "budget/ScanPayPeriods.h"

#include "foundation/Calendar.h"
#include "foundation/State.h"
#include "platform/Numbers.h"

#include <algorithm>

void FillScanPayPeriods()
{
    State.PayPeriodDate = State.CurrentPayPeriod;
    Scan.ScanDates[0] = State.PayPeriodDate;
    for (std::size_t i = 1; i < Scan.ScanDates.size(); ++i) {
        State.NextPeriodDate = NextPayPeriod(State.PayPeriodDate, State.PayFrequency);
        Scan.ScanDates[i] = State.NextPeriodDate;
        State.PayPeriodDate = State.NextPeriodDate;
    }
}

void NewExtraPayPeriod()
{
    const qint16 count = ToInteger(State.NumberOfExtraPayPeriods + 1);
    State.ExtraPayPeriods.RedimPreserve(count);
    State.NumberOfExtraPayPeriods = count;
    ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(count);
    payPeriod = {};
    payPeriod.PayPeriodDate = Scan.ScanPickedDate;
    payPeriod.NumberOfExtraItems = 1;
    payPeriod.ExtraItems(1).ExtraItem = QStringLiteral("New Item");
}

void SortExtraPayPeriods()
{
    const int count = State.NumberOfExtraPayPeriods;
    if (count == 1)
        return;
    std::vector<qint64> dates;
    for (int i = 1; i <= count; ++i)
        dates.push_back(State.ExtraPayPeriods(i).PayPeriodDate.JulianDay());
    std::vector<qint64> sorted = dates;
    std::sort(sorted.begin(), sorted.end());
    const OneBased<ExtraPayPeriodRecord> scratch = State.ExtraPayPeriods;
    for (int i = 1; i <= count; ++i) {
        const auto first = std::find(dates.begin(), dates.end(), sorted[std::size_t(i - 1)]);
        State.ExtraPayPeriods(i) = scratch(int(first - dates.begin()) + 1);
    }
}
