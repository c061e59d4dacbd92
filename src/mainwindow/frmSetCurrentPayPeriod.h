// Asks which pay period to budget. The first question of every run.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmSetCurrentPayPeriod.h"

#include <QTimer>

class frmSetCurrentPayPeriod : public Window<Ui::frmSetCurrentPayPeriod>
{
public:
    frmSetCurrentPayPeriod();
    void Load() override;
    bool QueryUnload(CloseMode mode) override;
    void Unload() override;

private:
    bool TakeEntry();
    void TakeEntryAndLeave();
    void Timer1_Timer();

    QTimer Timer1;
};
