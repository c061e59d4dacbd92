#include "debt/frmSelectMonth.h"

#include "debt/DebtState.h"
#include "foundation/WindowNames.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QKeyEvent>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

/// English like every date of the program. From 0; beyond the year, where a table too long for its grid may have left
/// off, there is none.
QString MonthName(int month)
{
    return QLocale::c().monthName(month + 1);
}

} // namespace

frmSelectMonth::frmSelectMonth()
{
    connect(ui.cboMonth, &DropDownList::Click, this, [this](bool changed) {
        // The month shown picked again is no choice: a table walks the chosen month on to January, and the next one
        // begins there unless another month is picked.
        if (!changed)
            return;
        Debt.SelectedStartMonth = ToInteger(ui.cboMonth->ListIndex());
        ui.lblNextTable->clear();
    });
    OnClick(ui.cmdOK, [] { TheWindows.Show(WindowName::frmAmortization); });
}

void frmSelectMonth::Load()
{
    constexpr int months = 12;
    for (int month = 0; month < months; ++month)
        ui.cboMonth->AddItem(MonthName(month));
    ui.cboMonth->SetListIndex(0);
}

void frmSelectMonth::Activate()
{
    Window::Activate();
    ui.lblNextTable->clear();
    const QString month = MonthName(Debt.SelectedStartMonth);
    // A table walks the month on, and the list goes on to show the one that was picked for it.
    if (!month.isEmpty() && Debt.SelectedStartMonth != ui.cboMonth->ListIndex())
        ui.lblNextTable->setText(u"The next table begins in %1. Pick another month to change that."_s.arg(month));
}

/// Enter on the closed list is as good as the button below it.
void frmSelectMonth::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat() && ui.cboMonth->hasFocus()) // a key held down is no second press
        ui.cmdOK->click();
    else
        Window::keyPressEvent(event);
}
