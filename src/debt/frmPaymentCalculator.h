// The monthly payment of a loan, and the way to its amortization table.
#pragma once

#include "debt/PaymentDueOptions.h"
#include "platform/windows/Window.h"
#include "ui_frmPaymentCalculator.h"

class frmPaymentCalculator : public Window<Ui::frmPaymentCalculator>
{
public:
    frmPaymentCalculator();
    void Load() override;
    void Activate() override;

private:
    void cmdCalculate_Click();

    PaymentDueOptions optPaymentDue;
};
