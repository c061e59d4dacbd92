// "Payment Due": the two options that the calculators of loans and savings have in common.
#pragma once

#include "debt/DebtState.h"
#include "platform/controls/OptionGroup.h"

#include <QLabel>

class PaymentDueOptions
{
public:
    /// changed: the line that tells that another calculator has changed what the window shows.
    PaymentDueOptions(QRadioButton *beginning, QRadioButton *end, QLabel *changed)
        : m_options({{beginning, 1}, {end, 0}}, [](qint16 due) { Debt.LoanPaymentDue = due; }), m_changed(changed)
    {
    }

    /// Shows what holds: another calculator may have changed it meanwhile, and a window that shows one thing and
    /// computes with another would spoil its result unseen. It leaves the shared value as it is, and tells where the
    /// window has shown another.
    void ShowWhatHolds()
    {
        const std::optional<qint16> shown = m_options.Selected();
        if (shown && *shown != Debt.LoanPaymentDue)
            m_changed->setText(
                QStringLiteral("Another calculator has changed when payments are due. Press Calculate again."));
        m_options.Select(Debt.LoanPaymentDue);
    }
    /// The window's result has been calculated with what it shows.
    void HoldsForTheResult() { m_changed->clear(); }

private:
    ValueOptions<qint16> m_options;
    QLabel *m_changed;
};
