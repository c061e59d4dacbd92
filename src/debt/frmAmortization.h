// The amortization table of the loan that was calculated last.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmAmortization.h"

class frmAmortization : public Window<Ui::frmAmortization>
{
public:
    frmAmortization();
    void Load() override;
    void Activate() override;
    void Deactivate() override;
    void Unload() override;

private:
    void grdAmortization_GotFocus();
};
