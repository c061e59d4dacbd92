// Asks whether a monthly paycheck comes at the month's end.
#pragma once

#include "platform/controls/OptionGroup.h"
#include "platform/windows/Window.h"
#include "ui_frmMonthlyPaymentOption.h"

class frmMonthlyPaymentOption : public Window<Ui::frmMonthlyPaymentOption>
{
public:
    frmMonthlyPaymentOption();
    void Load() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    ValueOptions<qint16> optYesNo;
};
