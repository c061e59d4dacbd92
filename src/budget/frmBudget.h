// The window in which the user steps through pay periods: a look-ahead, then the budget, click by click.
#pragma once

#include "budget/BudgetGenerator.h"
#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmBudget;
}

class frmBudget : public Form
{
    Q_OBJECT
public:
    frmBudget();
    ~frmBudget() override;
    void Load() override;
    void Activate() override;
    void Deactivate() override;
    void Unload() override;

private:
    void ClearBudgetGrid();
    void SetHeading(const QString &heading);
    void ShowBudget(const Statement &budget);
    void cmdBudget_Click();
    void cmdCancel_Click();
    void pbPrintOn_Click();
    void pbPrintOff_Click();

    std::unique_ptr<Ui::frmBudget> ui;
};
