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

/// Stores the fraction of a percentage, unless the text is what the window shows of the present one: then its further
/// decimals, which the text leaves out, are kept.
void TakePercentage(float &fraction, const QString &perCent)
{
    if (perCent != PerCent(fraction))
        fraction = FractionOf(perCent);
}

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
    State.ForecastPeriods = ToInteger(entry.ForecastPeriods);
    State.PaycheckAmount = ToCurrency(entry.PaycheckAmount);
    TakePercentage(State.SalesTax, entry.SalesTax);
    TakePercentage(State.AverageNetPercentage, entry.AverageNetPercentage);
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
