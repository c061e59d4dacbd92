// Asks which pay period to budget. The first question of every run.
#pragma once

#include "platform/windows/Form.h"

#include <QTimer>
#include <memory>

namespace Ui {
class frmSetCurrentPayPeriod;
}

class frmSetCurrentPayPeriod : public Form
{
    Q_OBJECT
public:
    frmSetCurrentPayPeriod();
    ~frmSetCurrentPayPeriod() override;
    void Load() override;
    void Activate() override;
    bool QueryUnload(CloseMode mode) override;
    void Unload() override;

private:
    bool IsValidPayPeriodEntry();
    void TakeEntryAndLeave();
    void cmdExit_Click();
    void Timer1_Timer();

    std::unique_ptr<Ui::frmSetCurrentPayPeriod> ui;
    QTimer Timer1;
};
