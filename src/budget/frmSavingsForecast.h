// The window of the savings forecast: a row a pay period, and the pick of a project's completion date.
#pragma once

#include "foundation/Statement.h"
#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmSavingsForecast;
}

class frmSavingsForecast : public Form
{
    Q_OBJECT
public:
    frmSavingsForecast();
    ~frmSavingsForecast() override;
    void Load() override;
    void Activate() override;
    void Deactivate() override;
    void Unload() override;

private:
    void ShowForecast(const Statement &forecast);
    void PickCompletionDate();
    void grdSavingsForecast_GotFocus();
    void grdSavingsForecast_Click();

    std::unique_ptr<Ui::frmSavingsForecast> ui;
};
