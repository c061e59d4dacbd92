#include "mainwindow/frmMonthlyPaymentOption.h"

#include "foundation/State.h"
#include "platform/controls/OptionGroup.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmMonthlyPaymentOption.h"

namespace {
constexpr std::array<qint16, 2> MonthEndPays{-1, 0}; // of "Yes" and "No"
} // namespace

frmMonthlyPaymentOption::frmMonthlyPaymentOption() : ui(std::make_unique<Ui::frmMonthlyPaymentOption>())
{
    ui->setupUi(this);
    optYesNo = std::make_unique<OptionGroup>(QList{ui->optYesNo0, ui->optYesNo1},
                                             [this](int index) { optYesNo_Click(index); });
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmMonthlyPaymentOption::cmdOK_Click);
}

frmMonthlyPaymentOption::~frmMonthlyPaymentOption() = default;

void frmMonthlyPaymentOption::Load()
{
    for (int index = 0; index < int(MonthEndPays.size()); ++index)
        if (State.MonthEndPay == MonthEndPays[index]) // another value, from an edited file, selects neither
            optYesNo->Select(index);
}

void frmMonthlyPaymentOption::optYesNo_Click(int index)
{
    State.MonthEndPay = MonthEndPays[index];
}

void frmMonthlyPaymentOption::cmdOK_Click()
{
    TheWindows.Unload(objectName());
}
