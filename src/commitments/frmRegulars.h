// The window of the regular items: amounts that are spent in every pay period.
#pragma once

#include "commitments/ListPanel.h"

#include <memory>

namespace Ui {
class frmRegulars;
}

class frmRegulars : public ListPanel
{
    Q_OBJECT
public:
    frmRegulars();
    ~frmRegulars() override;

private:
    void FillRegularList();
    void SaveAndReload();
    void CommitEntry();
    void cmdListRegularItems_Click();
    void cmdAddRegularItem_Click();
    void lstRegulars_Click();
    void cmdAddChangeRegularItem_Click();
    void cmdDeleteRegularItem_Click();
    void cmdQuit_Click();

    std::unique_ptr<Ui::frmRegulars> ui;
};
