// The window in which the user steps through pay periods: a look-ahead, then the budget, click by click.
#pragma once

#include "budget/BudgetGenerator.h"
#include "platform/windows/Window.h"
#include "ui_frmBudget.h"

class frmBudget : public Window<Ui::frmBudget>
{
public:
    frmBudget();
    void Load() override;
    void Activate() override;
    void Deactivate() override;
    void Unload() override;

private:
    void ClearBudgetGrid();
    void SetHeading(const QString &heading);
    void ShowResult(const StatementRow &result);
    void ShowNextRun();
    void ShowBudget(const Statement &budget);
    void cmdBudget_Click();
    void cmdCancel_Click();
};
