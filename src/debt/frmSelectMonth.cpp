#include "debt/frmSelectMonth.h"

#include "debt/DebtState.h"
#include "foundation/WindowNames.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QLocale>

frmSelectMonth::frmSelectMonth()
{
    connect(ui.cboMonth, &DropDownList::Click, this, [this](bool changed) {
        // The month shown picked again is no choice: a table walks the chosen month on to January, and the next one
        // begins there unless another month is picked.
        if (changed)
            Debt.SelectedStartMonth = ToInteger(ui.cboMonth->ListIndex());
    });
    OnClick(ui.cmdOK, [] { TheWindows.Show(WindowName::frmAmortization); });
}

void frmSelectMonth::Load()
{
    constexpr int months = 12;
    for (int month = 1; month <= months; ++month)
        ui.cboMonth->AddItem(QLocale::c().monthName(month)); // English like every date of the program
    ui.cboMonth->SetListIndex(0);
}
