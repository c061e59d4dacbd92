// The window of the pay off plan: it starts the entry of some debts and shows in which order and when they are paid.
#pragma once

#include "debt/PayOffPlan.h"
#include "platform/windows/Window.h"
#include "ui_frmPayOff.h"

class frmPayOff : public Window<Ui::frmPayOff>
{
public:
    frmPayOff();
    void Load() override;
    void Unload() override;

protected:
    bool event(QEvent *event) override;

private:
    void GiveListItsHeight();
    void ShowPlan(const std::shared_ptr<const PayOffPlan> &plan);
    static void Print_Click(bool on);
    void cmdEnterCreditors_Click();
};
