#include "foundation/frmSplash.h"

#include "foundation/Options.h"
#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Theme.h"
#include "platform/windows/WindowRegister.h"

frmSplash::frmSplash()
{
    StyleTitlePanel(ui.pnlTitle);
    QFont large = ui.lblTallymere->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    ui.lblTallymere->setFont(large);
    OnClick(ui.cmdContinue, [this] { cmdContinue_Click(); });
}

void frmSplash::Load()
{
    if (State.WelcomeLevelPending)
        TheWindows.Unload(WindowName::frmWelcome);
}

void frmSplash::cmdContinue_Click()
{
    // Who asked the welcome window for a guide (level 0 or 1) is not held up by a tip.
    const bool tipWanted = !State.WelcomeLevelPending || State.WelcomeLevel > 1;
    if (tipWanted && OptionValue(ShowTips) == 1)
        TheWindows.ShowModal(WindowName::frmTip);
    TheDesk.Hourglass(true);
    TheWindows.Show(WindowName::frmMain);
}
