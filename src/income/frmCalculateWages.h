// The wage calculator: regular and overtime pay of one pay period, and the net pay that may become the paycheck.
#pragma once

#include "platform/values/Currency.h"
#include "platform/windows/Window.h"
#include "ui_frmCalculateWages.h"

class frmCalculateWages : public Window<Ui::frmCalculateWages>
{
public:
    frmCalculateWages();
    void Load() override;
    void Activate() override;
    void Unload() override;

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void ShowHours(const QString &typed = {});
    void txtTotalHoursWorked_LostFocus();
    void cmdCalculate_Click();
    void cmdExit_Click();

    Currency RememberedPaycheckAmount; ///< as it was when the window was shown
    const QString m_regularHoursDescription;
    const QString m_hoursWorkedDescription;
};
