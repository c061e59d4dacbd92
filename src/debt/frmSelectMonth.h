// The question for the calendar month in which the payments of a loan begin.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmSelectMonth.h"

class frmSelectMonth : public Window<Ui::frmSelectMonth>
{
public:
    frmSelectMonth();
    void Load() override;
    void Activate() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
