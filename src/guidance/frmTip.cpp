#include "guidance/frmTip.h"

#include "foundation/Options.h"
#include "guidance/Tips.h"
#include "platform/controls/Icons.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int Characters = 56; // of a usual tip, in a line
constexpr int Lines = 5;
} // namespace

frmTip::frmTip()
{
    ui.imgTip->Show(ThemedIcon(u"tip-of-the-day"_s));
    QFont heading = ui.lblHeading->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.25);
    ui.lblHeading->setFont(heading);
    connect(ui.chkLoadTipsAtStartup, &QCheckBox::toggled, this, [](bool on) { SaveOption(ShowTips, on); });
    OnClick(ui.cmdNextTip, [this] { ChooseTip(); });
    UnloadOn(ui.cmdOK);
    StartAt(ui.cmdOK);
}

void frmTip::Load()
{
    GiveTheTipItsRoom();
    // Not by State.ApplicationPath: the tip comes before the main window, which sets it.
    if (!LoadTips(TheDesk.ProgramFolder() + u"\\TIPOFDAY.TXT"_s))
        ui.lblTipText->setText(u"That the TIPOFDAY.TXT file was not found? \n\n"
                               "Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. Then place it "
                               "in the same directory as the application. "_s);
}

/// Room for a usual tip, so that the window keeps its size when the next one comes; a longer one is scrolled.
void frmTip::GiveTheTipItsRoom()
{
    ensurePolished();
    const QFontMetrics letters = ui.lblTipText->fontMetrics();
    ui.scrTipText->setMinimumSize(Characters * letters.averageCharWidth(), Lines * letters.lineSpacing());
}

bool frmTip::LoadTips(const QString &path)
{
    const auto tips = ReadTips(path);
    if (!tips)
        return false;
    Tips = *tips;
    ChooseTip();
    return true;
}

/// With replacement: the same tip may come twice in a row.
void frmTip::ChooseTip()
{
    CurrentTip = DrawTip(TheDesk.Random(), Tips.size());
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip()
{
    if (!Tips.isEmpty())
        ui.lblTipText->setText(Tips[CurrentTip - 1]);
}
