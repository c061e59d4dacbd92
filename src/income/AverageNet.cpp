#include "income/AverageNet.h"

#include "foundation/State.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// No paycheck is refused for a gross of nothing; the division cannot fail either.
Currency GrossOf(const QString &text)
{
    const Currency gross = ToCurrency(text);
    return gross == Currency::Zero ? Currency::FromTenThousandths(Currency::Unit / 100) : gross;
}

float ShareOf(Currency net, Currency gross)
{
    return ToSingle(net.ToDouble() / gross.ToDouble());
}

} // namespace

void CalculateAverageNet(const PaychecksEntry &entry)
{
    IncomeState checks = Income;
    checks.FirstCheckGross = GrossOf(entry.FirstCheckGross);
    checks.FirstCheckNet = ToCurrency(entry.FirstCheckNet);
    checks.FirstCheckPercentage = ShareOf(checks.FirstCheckNet, checks.FirstCheckGross);
    checks.SecondCheckGross = GrossOf(entry.SecondCheckGross);
    checks.SecondCheckNet = ToCurrency(entry.SecondCheckNet);
    checks.SecondCheckPercentage = ShareOf(checks.SecondCheckNet, checks.SecondCheckGross);
    Income = checks;
    State.AverageNetPercentage =
        ToSingle((double(checks.FirstCheckPercentage) + double(checks.SecondCheckPercentage)) / 2);
}

QString AverageNetQuestion()
{
    const float perCent = ToSingle(double(State.AverageNetPercentage) * 100);
    return u"Do you wish to save %1% as the new Average Net Percentage?"_s.arg(SpacedText(perCent));
}
