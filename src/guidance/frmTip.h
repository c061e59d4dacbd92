// The tip of the day: a line of a text file, drawn at random.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmTip.h"

class frmTip : public Window<Ui::frmTip>
{
public:
    frmTip();
    void Load() override;
    bool ClosesOnEscape() const override { return true; }

private:
    void GiveTheTipItsRoom();
    bool LoadTips(const QString &path);
    void ChooseTip();
    void DisplayCurrentTip();

    QStringList Tips;
    qint32 CurrentTip = 0; ///< from 1; 0 before the first is drawn
};
