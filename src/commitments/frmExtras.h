// The window of the extra items. Its one list shows the pay periods first, then the items of the one that was chosen.
#pragma once

#include "commitments/ListPanel.h"

#include <memory>

namespace Ui {
class frmExtras;
}

class frmExtras : public ListPanel
{
    Q_OBJECT
public:
    frmExtras();
    ~frmExtras() override;

protected:
    void ReadClicked() override;
    void AddClicked() override;
    void RowClicked() override;
    void DeleteClicked() override;
    void FillList() override;

private:
    void ShowPayPeriods();
    void TakePickedPayPeriod();
    void FillPayPeriodList();
    void EmptyPanel();
    void ClearCredit();
    void cmdAddPayPeriod_Click();
    void chkCredit_Click();
    void cmdDeletePayPeriod_Click();

    std::unique_ptr<Ui::frmExtras> ui;
};
