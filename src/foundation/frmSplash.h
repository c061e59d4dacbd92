// The title of the program and the button that goes on to the main window.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmSplash.h"

class frmSplash : public Window<Ui::frmSplash>
{
public:
    frmSplash();
    void Load() override;
    bool ClosesOnEscape() const override { return false; } // that would end the program

private:
    void cmdContinue_Click();
};
