// The window of the savings forecast: a row a pay period, and the pick of a project's completion date.
#pragma once

#include "foundation/Statement.h"
#include "platform/windows/Window.h"
#include "ui_frmSavingsForecast.h"

class frmSavingsForecast : public Window<Ui::frmSavingsForecast>
{
public:
    frmSavingsForecast();
    void Load() override;
    void Activate() override;
    void Deactivate() override;
    void Unload() override;

private:
    void ShowForecast(const Statement &forecast);
    void PickCompletionDate();
    void grdSavingsForecast_GotFocus();
    void grdSavingsForecast_Click();
};
