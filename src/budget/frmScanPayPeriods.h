// The window of the pay dates ahead: for looking only, or to pick the date of an extra pay period.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmScanPayPeriods.h"

class frmScanPayPeriods : public Window<Ui::frmScanPayPeriods>
{
public:
    frmScanPayPeriods();
    void Unload() override;

private:
    void FillList();
    void PickDate();
};
