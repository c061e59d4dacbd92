// Asks for the two pay days of a semimonthly household.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmSemiMonthlyPayInfo.h"

class frmSemiMonthlyPayInfo : public Window<Ui::frmSemiMonthlyPayInfo>
{
public:
    frmSemiMonthlyPayInfo();
    void Load() override;

private:
    bool ValidateSemimonthlyDates();
    void cmdOK_Click();
};
