// The window that tells what a month costs, compared with what a month brings in.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmMonthlyOverhead.h"

class frmMonthlyOverhead : public Window<Ui::frmMonthlyOverhead>
{
public:
    frmMonthlyOverhead();
    void Load() override;
    void Activate() override;
    void Deactivate() override;

private:
    void ShowOverhead();
    void ClearOverheadGrid();
};
