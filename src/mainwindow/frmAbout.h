// The program's title and version.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmAbout.h"

class frmAbout : public Window<Ui::frmAbout>
{
public:
    frmAbout();
    void Load() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void ShowIcon();
};
