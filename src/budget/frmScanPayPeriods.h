// The window of the pay dates ahead: for looking only, or to pick the date of an extra pay period.
#pragma once

#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmScanPayPeriods;
}

class frmScanPayPeriods : public Form
{
    Q_OBJECT
public:
    frmScanPayPeriods();
    ~frmScanPayPeriods() override;
    void Unload() override;

private:
    void lstScanPayPeriods_GotFocus();
    void lstScanPayPeriods_Click();

    std::unique_ptr<Ui::frmScanPayPeriods> ui;
};
