#include "mainwindow/frmSetCurrentPayPeriod.h"

#include "foundation/State.h"
#include "platform/desk/Desk.h"
#include "platform/desk/UnknownError.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmSetCurrentPayPeriod.h"

frmSetCurrentPayPeriod::frmSetCurrentPayPeriod() : ui(std::make_unique<Ui::frmSetCurrentPayPeriod>())
{
    ui->setupUi(this);
    Timer1.setParent(this); // found by name like every control
    Timer1.setObjectName(QStringLiteral("Timer1"));
    Timer1.setInterval(1000);
    connect(&Timer1, &QTimer::timeout, this, &frmSetCurrentPayPeriod::Timer1_Timer);
    connect(ui->cmdExit, &QPushButton::clicked, this, &frmSetCurrentPayPeriod::cmdExit_Click);
    OnEnter(ui->txtCurrentPayPeriod, [this] { TakeEntryAndLeave(); });
}

frmSetCurrentPayPeriod::~frmSetCurrentPayPeriod() = default;

void frmSetCurrentPayPeriod::Load()
{
    ui->txtCurrentPayPeriod->setText(FormatLongDate(State.CurrentPayPeriod));
    Timer1.start();
}

void frmSetCurrentPayPeriod::Activate()
{
    FocusOn(ui->txtCurrentPayPeriod);
}

void frmSetCurrentPayPeriod::Timer1_Timer()
{
    State.ClockTime = TheDesk.Now().time();
    ui->lblTime->setText(FormatClock(State.ClockTime));
}

bool frmSetCurrentPayPeriod::IsValidPayPeriodEntry()
{
    if (IsDate(ui->txtCurrentPayPeriod->text()))
        return true;
    ShowMessage(QStringLiteral("You have not entered a valid date"), QStringLiteral("Set Current Pay Period"),
                Icon::Warning);
    FocusOn(ui->txtCurrentPayPeriod);
    return false;
}

void frmSetCurrentPayPeriod::TakeEntryAndLeave()
{
    if (!IsValidPayPeriodEntry())
        return;
    State.CurrentPayPeriod = ui->txtCurrentPayPeriod->text(); // as typed: every reader parses it again
    TheWindows.Unload(objectName());
}

void frmSetCurrentPayPeriod::cmdExit_Click()
{
    // The button's errors are told under another window's title: a habit of this window that is kept.
    TrapUnknownError(QStringLiteral("Creditors"), [this] { TakeEntryAndLeave(); });
}

bool frmSetCurrentPayPeriod::QueryUnload(CloseMode mode)
{
    if (mode != CloseMode::CloseBox)
        return true; // Enter and the button have taken the entry already
    bool leave = true;
    TrapUnknownError(QStringLiteral("Set Current Pay Period"), [&] {
        leave = IsValidPayPeriodEntry();
        if (leave)
            State.CurrentPayPeriod = ui->txtCurrentPayPeriod->text();
    });
    return leave;
}

void frmSetCurrentPayPeriod::Unload()
{
    State.CurrentPayPeriodConfirmed = true;
}
