// The window of the extra items. Its one list shows the pay periods first, then the items of the one that was chosen.
#pragma once

#include "commitments/ListPanel.h"
#include "ui_frmExtras.h"

class frmExtras : public ListWindow<Ui::frmExtras>
{
public:
    frmExtras();

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
    void AddPayPeriod();
    void TurnAmount();
    void GoToDelete();
    void DeletePayPeriod();
};
