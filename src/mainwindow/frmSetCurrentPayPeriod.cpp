#include "mainwindow/frmSetCurrentPayPeriod.h"

#include "foundation/State.h"
#include "platform/desk/UnknownError.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr EntryRule<Ui::frmSetCurrentPayPeriod> Rules[] = {
    {&Ui::frmSetCurrentPayPeriod::txtCurrentPayPeriod, IsDate, "You have not entered a valid date"},
};
} // namespace

frmSetCurrentPayPeriod::frmSetCurrentPayPeriod()
    : Window({.Title = u"Set Current Pay Period"_s, .TheIcon = Icon::Warning})
{
    Timer1.setParent(this); // found by name like every control
    Timer1.setObjectName(u"Timer1"_s);
    Timer1.setInterval(1000);
    connect(&Timer1, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    OnEnter(ui.txtCurrentPayPeriod, [this] { TakeEntryAndLeave(); });
    // The button's errors are told under another window's title: a habit of this window that is kept.
    OnClick(ui.cmdExit, [this] { TrapUnknownError(u"Creditors"_s, [this] { TakeEntryAndLeave(); }); });
    StartAt(ui.txtCurrentPayPeriod);
}

void frmSetCurrentPayPeriod::Load()
{
    ui.txtCurrentPayPeriod->setText(FormatLongDate(State.CurrentPayPeriod));
    Timer1_Timer(); // the first second has its time, too
    Timer1.start();
}

void frmSetCurrentPayPeriod::Timer1_Timer()
{
    State.ClockTime = TheDesk.Now().time();
    ui.lblTime->setText(FormatClock(State.ClockTime));
}

bool frmSetCurrentPayPeriod::TakeEntry()
{
    if (!Accepts(Rules))
        return false;
    State.CurrentPayPeriod = ui.txtCurrentPayPeriod->text(); // as typed: every reader parses it again
    return true;
}

void frmSetCurrentPayPeriod::TakeEntryAndLeave()
{
    if (TakeEntry())
        Close();
}

bool frmSetCurrentPayPeriod::QueryUnload(CloseMode mode)
{
    bool leave = true; // Enter and the button have taken the entry already
    if (mode == CloseMode::CloseBox)
        Trap([&] { leave = TakeEntry(); });
    return leave;
}

void frmSetCurrentPayPeriod::Unload()
{
    State.CurrentPayPeriodConfirmed = true;
}
