#include "foundation/PayFrequency.h"

#include "foundation/WindowNames.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

const QList<PayFrequencyOption> &PayFrequencyOptions()
{
    static const QList<PayFrequencyOption> options{
        {Weekly, u"Calculate Wages (Weekly)"_s, {}},
        {Biweekly, u"Calculate Wages (Biweekly)"_s, {}},
        {Semimonthly, u"Calculate Wages (Semimonthly)"_s, WindowName::frmSemiMonthlyPayInfo},
        {Monthly, u"Calculate Wages (Monthly)"_s, WindowName::frmMonthlyPaymentOption},
    };
    return options;
}

int OptionOfPayFrequency(qint16 frequency)
{
    const QList<PayFrequencyOption> &options = PayFrequencyOptions();
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&](const PayFrequencyOption &one) { return one.Frequency == frequency; });
    return option == options.end() ? -1 : int(option - options.begin());
}
