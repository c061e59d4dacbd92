// "Payment Due": the two options that the calculators of loans and savings have in common.
#pragma once

#include "debt/DebtState.h"
#include "platform/controls/OptionGroup.h"

class PaymentDueOptions
{
public:
    PaymentDueOptions(QRadioButton *beginning, QRadioButton *end)
        : m_options({{beginning, 1}, {end, 0}}, [](qint16 due) { Debt.LoanPaymentDue = due; })
    {
    }

    /// Shows what holds: another calculator may have changed it meanwhile, and a window that shows one thing and
    /// computes with another would spoil its result unseen. It leaves the shared value as it is.
    void ShowWhatHolds() { m_options.Select(Debt.LoanPaymentDue); }

private:
    ValueOptions<qint16> m_options;
};
