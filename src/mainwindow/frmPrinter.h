// The printer and the font of all reports, and a page to try them.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmPrinter.h"

class frmPrinter : public Window<Ui::frmPrinter>
{
public:
    frmPrinter();

private:
    void ShowWhatHolds();
};
