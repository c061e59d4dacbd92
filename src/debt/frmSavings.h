// What savings will be worth after a number of equal monthly deposits.
#pragma once

#include "debt/PaymentDueOptions.h"
#include "platform/windows/Window.h"
#include "ui_frmSavings.h"

class frmSavings : public Window<Ui::frmSavings>
{
public:
    frmSavings();
    void Load() override;
    void Activate() override;

private:
    void cmdCalculate_Click();

    PaymentDueOptions optPaymentDue;
};
