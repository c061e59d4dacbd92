#include "mainwindow/frmMonthlyPaymentOption.h"

#include "foundation/State.h"

frmMonthlyPaymentOption::frmMonthlyPaymentOption()
    : optYesNo({{ui.optYesNo0, qint16(-1)}, {ui.optYesNo1, qint16(0)}}, [](qint16 pay) { State.MonthEndPay = pay; })
{
    UnloadOn(ui.cmdOK);
}

void frmMonthlyPaymentOption::Load()
{
    optYesNo.Select(State.MonthEndPay); // another value, from an edited file, selects neither
}
