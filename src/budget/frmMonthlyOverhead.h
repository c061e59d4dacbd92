// The window that tells what a month costs, compared with what a month brings in.
#pragma once

#include "platform/windows/Form.h"

#include <memory>

namespace Ui {
class frmMonthlyOverhead;
}

class frmMonthlyOverhead : public Form
{
    Q_OBJECT
public:
    frmMonthlyOverhead();
    ~frmMonthlyOverhead() override;
    void Activate() override;
    void Deactivate() override;

private:
    void ShowOverhead();
    void ClearOverheadGrid();
    void cmdPrint_Click();
    void cmdQuit_Click();

    std::unique_ptr<Ui::frmMonthlyOverhead> ui;
};
