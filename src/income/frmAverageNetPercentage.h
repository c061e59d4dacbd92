// The average net percentage: what share of gross pay is paid out, from two sample paychecks.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmAverageNetPercentage.h"

class frmAverageNetPercentage : public Window<Ui::frmAverageNetPercentage>
{
public:
    frmAverageNetPercentage();
    void Load() override;
    void Activate() override;
    bool QueryUnload(CloseMode mode) override;

private:
    void cmdCalculate_Click();
    void ShowPercentage();

    float RememberedAverageNetPercentage = 0; ///< as it was when the window was loaded
};
