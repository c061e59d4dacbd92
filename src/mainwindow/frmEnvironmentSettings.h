// The settings of the household: forecast length, paycheck, pay frequency, sales tax and average net percentage.
#pragma once

#include "mainwindow/Settings.h"
#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmEnvironmentSettings;
}
class OptionGroup;

class frmEnvironmentSettings : public Form
{
    Q_OBJECT
public:
    frmEnvironmentSettings();
    ~frmEnvironmentSettings() override;
    void Load() override;
    void Activate() override;
    bool QueryUnload(CloseMode mode) override;

private:
    EnvironmentEntry Entry() const;
    bool ValidateEnvironmentSettings();
    bool TakeSettings();
    void cmdExit_Click();
    void optPayFrequency_Click(int index);
    void updForecastPeriods_Change(int step);

    std::unique_ptr<Ui::frmEnvironmentSettings> ui;
    std::unique_ptr<OptionGroup> optPayFrequency;
    bool loading = false; // the load event fills the fields
};
