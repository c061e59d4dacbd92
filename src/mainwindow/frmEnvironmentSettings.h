// The settings of the household: forecast length, paycheck, pay frequency, sales tax and average net percentage.
#pragma once

#include "mainwindow/Settings.h"
#include "platform/controls/OptionGroup.h"
#include "platform/windows/Window.h"
#include "ui_frmEnvironmentSettings.h"

#include <array>

class frmEnvironmentSettings : public Window<Ui::frmEnvironmentSettings>
{
public:
    frmEnvironmentSettings();
    void Load() override;
    void Activate() override;
    bool QueryUnload(CloseMode mode) override;

private:
    /// A field that applies when the window is left, and what it was given to show.
    struct ShownField {
        QLineEdit *Field;
        QString EnvironmentEntry::*Text;
        QString Shown = {};

        bool IsEdited() const { return Field->isModified() || Field->text() != Shown; }
    };

    void ShowSettings();
    void DescribePayDays();
    bool TakeSettings();
    void cmdExit_Click();
    void optPayFrequency_Click(qint16 frequency);
    void updForecastPeriods_Change(int step);

    ValueOptions<qint16> optPayFrequency;
    std::array<ShownField, 4> m_fields;
    bool loading = false; // the load event fills the fields
};
