#include "foundation/frmSplash.h"

#include "foundation/Options.h"
#include "foundation/State.h"
#include "platform/controls/Theme.h"
#include "platform/desk/Desk.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmSplash.h"

frmSplash::frmSplash() : ui(std::make_unique<Ui::frmSplash>())
{
    ui->setupUi(this);
    StyleTitlePanel(ui->pnlTitle);
    QFont large = ui->lblTallymere->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    ui->lblTallymere->setFont(large);
    connect(ui->cmdContinue, &QPushButton::clicked, this, &frmSplash::cmdContinue_Click);
}

frmSplash::~frmSplash() = default;

void frmSplash::Load()
{
    if (State.WelcomeLevelPending)
        TheWindows.Unload(QStringLiteral("frmWelcome"));
}

void frmSplash::cmdContinue_Click()
{
    // Who asked the welcome window for a guide (level 0 or 1) is not held up by a tip.
    const bool tipWanted = !State.WelcomeLevelPending || State.WelcomeLevel > 1;
    const QString tip = QStringLiteral("frmTip");
    if (tipWanted && OptionValue(ShowTips) == 1 && TheWindows.Knows(tip))
        TheWindows.ShowModal(tip);
    TheDesk.Hourglass(true);
    TheWindows.Show(QStringLiteral("frmMain"));
}
