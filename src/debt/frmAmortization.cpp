#include "debt/frmAmortization.h"

#include "budget/BudgetGenerator.h"
#include "debt/Amortization.h"
#include "foundation/StatementGrid.h"
#include "foundation/WindowNames.h"
#include "platform/desk/UnknownError.h"
#include "platform/windows/WindowRegister.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int StartRows = 2; // the heading and one row; the table brings its own
constexpr int RowsInView = 19;
constexpr int MonthTwips = 750;
constexpr int AmountTwips = 1595;
} // namespace

frmAmortization::frmAmortization()
{
    ui.grdAmortization->SetColumns({{u"Month"_s, MonthTwips, Qt::AlignRight},
                                    {u"Payment"_s, AmountTwips, Qt::AlignRight},
                                    {u"Principal"_s, AmountTwips, Qt::AlignRight},
                                    {u"Interest"_s, AmountTwips, Qt::AlignRight}},
                                   StartRows);
    OnGotFocus(ui.grdAmortization, [this] { grdAmortization_GotFocus(); });
}

void frmAmortization::Load()
{
    TheWindows.Hide(
        WindowName::frmSelectMonth); // only now: a table that stands already leaves the question on the screen
}

void frmAmortization::Activate()
{
    TheDesk.Hourglass(true);
    ui.grdAmortization->SetRowsInView(RowsInView);
}

/// Each time the focus comes back, a whole new table is inserted above the rows that stand there, and is what is seen.
void frmAmortization::grdAmortization_GotFocus()
{
    const auto table = std::make_shared<Statement>();
    const bool whole = ResumeNext([&] { Amortize(*table); }, [](const RuntimeError &) {});
    InsertRows(*ui.grdAmortization, table);
    ui.grdAmortization->SetCurrentRow(0);
    ui.grdAmortization->scrollToTop();
    if (!whole) { // what was listed before the error stands, and the hourglass stays with it
        ShowUnknownError(windowTitle());
        return;
    }
    ui.grdAmortization->SetResultRow(int(table->Rows.size()));
    TheDesk.Hourglass(false);
}

/// The next budget pass is a look-ahead without a credit, whatever the budget's window was about to do.
void frmAmortization::Deactivate()
{
    RestartAlternation();
}

void frmAmortization::Unload()
{
    TheDesk.Hourglass(false); // a table that failed has left it
}
