#include "mainwindow/frmMonthlyPaymentOption.h"

#include "foundation/State.h"

#include <QKeyEvent>

frmMonthlyPaymentOption::frmMonthlyPaymentOption()
    : optYesNo({{ui.optYesNo0, qint16(-1)}, {ui.optYesNo1, qint16(0)}}, [](qint16 pay) { State.MonthEndPay = pay; })
{
    UnloadOn(ui.cmdOK);
}

void frmMonthlyPaymentOption::Load()
{
    optYesNo.Select(State.MonthEndPay); // another value, from an edited file, selects neither
}

/// Enter on an option, which has no use of its own for it, answers the question as its button does.
void frmMonthlyPaymentOption::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Close();
    else
        Window::keyPressEvent(event);
}
