// Asks whether a monthly paycheck comes at the month's end.
#pragma once

#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmMonthlyPaymentOption;
}
class OptionGroup;

class frmMonthlyPaymentOption : public Form
{
    Q_OBJECT
public:
    frmMonthlyPaymentOption();
    ~frmMonthlyPaymentOption() override;
    void Load() override;

private:
    void cmdOK_Click();
    void optYesNo_Click(int index);

    std::unique_ptr<Ui::frmMonthlyPaymentOption> ui;
    std::unique_ptr<OptionGroup> optYesNo;
};
