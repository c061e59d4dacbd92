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
    void Load() override;
    void Unload() override;

private:
    void FillPayPeriodList();
    void FillExtraItemList();
    void ShowPayPeriods();
    void ListPayPeriods();
    void TakePickedPayPeriod();
    void EmptyPanel();
    void DropUnsaved();
    void ShowExtraItem();
    void SaveAndReload();
    void CommitEntry();
    void cmdListPayPeriods_Click();
    void cmdAddPayPeriod_Click();
    void lstExtraItems_Click();
    void cmdAddExtraItem_Click();
    void chkCredit_Click();
    void cmdAddChangeExtraItem_Click();
    void cmdDeleteExtraItem_Click();
    void cmdDeletePayPeriod_Click();
    void cmdQuit_Click();

    bool m_unsaved = false; ///< an entry was taken into the arrays and not yet into the file
    std::unique_ptr<Ui::frmExtras> ui;
};
