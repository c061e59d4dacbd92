// Asks for the figures of one creditor of the pay off plan after the other, and then for the plan. Whenever the user
// comes back to it from another window, it starts again with the first creditor.
#pragma once

#include "platform/values/Dates.h"
#include "platform/windows/Window.h"
#include "ui_frmCreditorInfo.h"

class frmCreditorInfo : public Window<Ui::frmCreditorInfo>
{
public:
    frmCreditorInfo();
    void Activate() override;

private:
    void AskForFigures(DateFormat dueDate);
    void MakePlan();
    void cmdOK_Click();
};
