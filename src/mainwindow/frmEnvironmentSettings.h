// The settings of the household: forecast length, paycheck, pay frequency, sales tax and average net percentage.
#pragma once

#include "mainwindow/Settings.h"
#include "platform/controls/OptionGroup.h"
#include "platform/windows/Window.h"
#include "ui_frmEnvironmentSettings.h"

class frmEnvironmentSettings : public Window<Ui::frmEnvironmentSettings>
{
public:
    frmEnvironmentSettings();
    void Load() override;
    bool QueryUnload(CloseMode mode) override;

private:
    EnvironmentEntry Entry() const;
    bool TakeSettings();
    void cmdExit_Click();
    void optPayFrequency_Click(qint16 frequency);
    void updForecastPeriods_Change(int step);

    ValueOptions<qint16> optPayFrequency;
    bool loading = false; // the load event fills the fields
};
