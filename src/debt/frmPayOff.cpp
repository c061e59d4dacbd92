#include "debt/frmPayOff.h"

#include "debt/frmInput.h"
#include "foundation/State.h"
#include "foundation/Tutor.h"
#include "foundation/WindowNames.h"
#include "platform/windows/WindowRegister.h"

#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int RowsAtFirst = 13;
constexpr int LinesAtLeast = 10; // a creditor's
constexpr int WindowFrame = 40;  // pixels that a window system puts above and below at most

const QList<GridColumn> &Columns()
{
    static const QList<GridColumn> columns{
        {u"#"_s, 500},
        {u"Date"_s, 1113},
        {u"Previous Balance"_s, 1653, Qt::AlignRight},
        {u"Interest"_s, 1228, Qt::AlignRight},
        {u"New Balance"_s, 1653, Qt::AlignRight},
        {u"Payment"_s, 1653, Qt::AlignRight},
        {u"Next Balance"_s, 1653, Qt::AlignRight},
    };
    return columns;
}

/// An empty list does not tell, so one like it is asked.
int HeightOfLine(const QFont &font)
{
    ListBox list;
    list.setFont(font);
    list.AddItem(u"Creditor"_s);
    return list.sizeHintForRow(0);
}

/// Asks and waits. A dialog that is closed without OK leaves the answer from before, which then counts as this one.
QString Ask(const frmInput::Question &question)
{
    frmInput::Prepare(question);
    if (RememberedTutorTimer.contains(WindowName::frmPayOff))
        TheWindows.Hide(WindowName::frmTallymereTutor);
    TheWindows.ShowModal(WindowName::frmInput);
    return Debt.InputResult;
}

} // namespace

frmPayOff::frmPayOff() : Window({.Title = u"Pay Off"_s, .TheIcon = Icon::Warning})
{
    ui.grdPayOff->SetColumns(Columns(), 2);
    ui.grdPayOff->SetRowsAtFirst(RowsAtFirst);
    ui.grdPayOff->SetEndsWithText(true); // the rows of earlier plans stay, emptied, and each plan brings more
    ui.printSwitch->Set(State.PrintPayOffPlan);
    connect(&ThePayOffOutlet, &PayOffOutlet::Ready, this,
            [this](const std::shared_ptr<const PayOffPlan> &plan) { ShowPlan(plan); });
    connect(ui.printSwitch, &PrintSwitch::Click, this, &frmPayOff::Print_Click);
    OnClickTrapped(ui.cmdEnterCreditors, [this] { cmdEnterCreditors_Click(); });
    UnloadOn(ui.cmdExit);
}

bool frmPayOff::event(QEvent *event)
{
    const bool done = Window::event(event);
    if (event->type() == QEvent::Polish || event->type() == QEvent::FontChange)
        GiveListItsHeight();
    return done;
}

/// The list always has room for the lines of a creditor, or for as many as a small screen leaves beside the grid.
void frmPayOff::GiveListItsHeight()
{
    ListBox &list = *ui.lstPayOffInfo;
    list.ensurePolished();
    list.setMinimumHeight(0);
    const int leastOfAll = list.minimumSizeHint().height();
    const int others = minimumSizeHint().height() - leastOfAll;
    const int room = screen()->availableSize().height() - WindowFrame - others;
    const int lines = LinesAtLeast * HeightOfLine(list.font()) + 2 * list.frameWidth();
    list.setMinimumHeight(qMax(leastOfAll, qMin(lines, room)));
}

void frmPayOff::Load()
{
    if (State.GuidedSetupActive)
        TheWindows.Hide(WindowName::frmGettingStarted);
}

void frmPayOff::Unload()
{
    EndPrintedPlan();
    if (!State.GuidedSetupActive)
        return;
    State.GuidedSetupActive = false;
    State.GuidedSetupStep = 0;
    TheWindows.Unload(WindowName::frmGettingStarted);
}

void frmPayOff::Print_Click(bool on)
{
    State.PrintPayOffPlan = on;
    if (!on)
        EndPrintedPlan();
}

void frmPayOff::ShowPlan(const std::shared_ptr<const PayOffPlan> &plan)
{
    ui.grdPayOff->ClearBelowHeading();
    ui.grdPayOff->SetCurrentRow(0);
    ui.grdPayOff->AddRows(int(plan->Rows.size()), 1, [plan](int row) { return CellsOf(plan->Rows[std::size_t(row)]); });
    ui.grdPayOff->scrollToTop();
    ui.lstPayOffInfo->Clear();
    for (const PayOffLine &line : plan->Lines)
        ui.lstPayOffInfo->AddItem(line.Text);
}

void frmPayOff::cmdEnterCreditors_Click()
{
    const QString count =
        Ask({.Title = InputTitle::NumberOfCreditors,
             .Tip = u"How many debts the plan is to cover: a whole number from 1 on"_s,
             .Prompt = u"In the box below enter the number of creditors or bills you wish to pay off?"_s,
             .Answer = u"1"_s});
    if (count.isEmpty())
        return;
    RedimPayOffCreditors(count);
    for (int i = 1; i <= Debt.NumberOfPayOffCreditors; ++i) {
        const QString name = Ask({.Title = InputTitle::CreditorName,
                                  .Tip = u"The name that this debt has in the plan"_s,
                                  .Prompt = u"In the box below enter the name of the creditor or bill that would be "
                                            "Creditor # "_s +
                                            QString::number(i),
                                  .Answer = {}});
        Debt.PayOffCreditorNames(i) = name;
        if (name.isEmpty())
            return;
    }
    TheWindows.Show(WindowName::frmCreditorInfo);
}
