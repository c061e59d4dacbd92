#include "mainwindow/Settings.h"

#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/values/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double LastFirstPayDate = 27;
constexpr double LastSecondPayDate = 28;

/// A number that no double can hold lies beyond every range.
double ValueOrInfinity(const QString &text)
{
    double value = std::numeric_limits<double>::infinity();
    IgnoreErrors([&] { value = ToDouble(text); });
    return value;
}

} // namespace

EnvironmentEntry ShownEnvironment()
{
    return {.ForecastPeriods = Format(int(State.ForecastPeriods), NumberFormat::GeneralNumber),
            .PaycheckAmount = FormatCurrency(State.PaycheckAmount),
            .SalesTax = PerCent(State.SalesTax),
            .AverageNetPercentage = PerCent(State.AverageNetPercentage)};
}

QString BoundedForecastPeriods(const QString &text)
{
    const qint16 periods = ToInteger(text);
    if (periods > MostForecastPeriods)
        return PlainText(MostForecastPeriods);
    return periods < LeastForecastPeriods ? PlainText(LeastForecastPeriods) : text;
}

QString SteppedForecastPeriods(const QString &text, int step, int maximum)
{
    QString stepped = text;
    IgnoreErrors([&] {
        const double periods = std::nearbyint(ToDouble(text)) + step;
        stepped = PlainText(int(std::clamp(periods, double(LeastForecastPeriods), double(maximum))));
    });
    return stepped;
}

void TakeEnvironmentEntry(const EnvironmentEntry &entry)
{
    if (!entry.ForecastPeriods.isNull())
        State.ForecastPeriods = ToInteger(entry.ForecastPeriods);
    if (!entry.PaycheckAmount.isNull())
        State.PaycheckAmount = ToCurrency(entry.PaycheckAmount);
    if (!entry.SalesTax.isNull())
        State.SalesTax = FractionOf(entry.SalesTax);
    if (!entry.AverageNetPercentage.isNull())
        State.AverageNetPercentage = FractionOf(entry.AverageNetPercentage);
}

QString SemimonthlyPayDays()
{
    const QString second = State.SecondPayDate == 0 ? u"the end of the month"_s : PlainText(State.SecondPayDate);
    return u"Pay days %1 and %2. To change them choose another frequency, then this one again."_s.arg(
        PlainText(State.FirstPayDate), second);
}

QString MonthlyPayDay()
{
    QString day = u"Not known whether paid at the end of the month"_s; // an edited file may hold another value
    if (State.MonthEndPay == -1)
        day = u"Paid at the end of the month"_s;
    else if (State.MonthEndPay == 0)
        day = u"Not paid at the end of the month"_s;
    return day + u". To change this choose another frequency, then this one again."_s;
}

std::optional<Refusal> ValidateSemimonthlyEntry(const QString &firstPayDate, const QString &secondPayDate)
{
    const double first = ValueOrInfinity(firstPayDate);
    const double second = ValueOrInfinity(secondPayDate);
    // The bounds differ, and equal dates and a first date of 0 pass: the calendar steps from them as they are.
    return FirstFailure({
        {IsNumeric(firstPayDate), "First Pay Date does not contain a valid numeric amount", "txtFirstPayDate"},
        {IsNumeric(secondPayDate), "Second Pay Date does not contain a valid numeric amount", "txtSecondPayDate"},
        {first >= 0 && first <= LastFirstPayDate && second >= 0 && second <= LastSecondPayDate,
         "Dates are out of acceptable range", "txtFirstPayDate"},
        {second == 0 || first <= second,
         "First Pay Date cannot be greater than Second Pay Date unless you get paid at the end of the month",
         "txtFirstPayDate"},
    });
}

void TakeSemimonthlyEntry(const QString &firstPayDate, const QString &secondPayDate)
{
    State.FirstPayDate = ToInteger(firstPayDate);
    State.SecondPayDate = ToInteger(secondPayDate);
}
