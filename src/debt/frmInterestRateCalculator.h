// The yearly rate of a loan, from its amount, its monthly payment and its length.
#pragma once

#include "debt/PaymentDueOptions.h"
#include "platform/windows/Window.h"
#include "ui_frmInterestRateCalculator.h"

class frmInterestRateCalculator : public Window<Ui::frmInterestRateCalculator>
{
public:
    frmInterestRateCalculator();
    void Load() override;
    void Activate() override;

private:
    void cmdCalculate_Click();

    PaymentDueOptions optPaymentDue;
};
