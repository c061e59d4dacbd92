// Asks for the two pay days of a semimonthly household.
#pragma once

#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmSemiMonthlyPayInfo;
}

class frmSemiMonthlyPayInfo : public Form
{
    Q_OBJECT
public:
    frmSemiMonthlyPayInfo();
    ~frmSemiMonthlyPayInfo() override;
    void Load() override;

private:
    bool ValidateSemimonthlyDates();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmSemiMonthlyPayInfo> ui;
};
