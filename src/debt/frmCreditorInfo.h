// Asks for the figures of one creditor of the pay off plan after the other, and then for the plan. Whenever the user
// comes back to it from another window, it starts again with the first creditor.
#pragma once

#include "platform/values/Dates.h"
#include "platform/windows/Window.h"
#include "ui_frmCreditorInfo.h"

#include <QDeadlineTimer>

class frmCreditorInfo : public Window<Ui::frmCreditorInfo>
{
public:
    frmCreditorInfo();
    void Activate() override;
    void Unload() override;

private:
    void AskForFigures(DateFormat dueDate);
    void MakePlan();
    void cmdOK_Pressed();
    void cmdOK_Click();

    QDeadlineTimer m_sameDoubleClick; // until then a press of OK belongs to the click that took the figures before
    bool m_swallows = false;          // the press of OK under way
    bool m_busy = false;              // the pointer, while a plan is made and after one that failed
};
