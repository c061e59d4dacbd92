// The hours of each week of a pay period, split into regular hours and overtime.
#pragma once

#include "income/TotalHours.h"
#include "platform/windows/Window.h"
#include "ui_frmTotalHours.h"

class frmTotalHours : public Window<Ui::frmTotalHours>
{
public:
    frmTotalHours();
    void Activate() override;
    /// The wage calculator shows it modally or not, and it behaves the same.
    bool ClosesOnEscape() const override { return true; }

private:
    bool ValidateTotalHours();
    void cmdOK_Click();

    struct Week {
        QLabel *Label;
        QLineEdit *Field;
    };
    const std::array<Week, MostWeeks> m_weeks;
};
