#include "guidance/frmGettingStarted.h"

#include "foundation/GuidedSetup.h"
#include "foundation/Options.h"
#include "foundation/PayFrequency.h"
#include "foundation/Tutor.h"
#include "foundation/WindowFields.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Icons.h"
#include "platform/controls/Theme.h"
#include "platform/windows/WindowRegister.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using Design = Ui::frmGettingStarted;
constexpr char NoCount[] = "Please enter a numeric value in the textbox";
constexpr EntryRule<Design> IncomesRules[] = {{&Design::txtNumberOfIncomes, Numeric, NoCount}};
constexpr EntryRule<Design> CreditorsRules[] = {{&Design::txtNumberOfCreditors, Numeric, NoCount}};
constexpr EntryRule<Design> RegularsRules[] = {{&Design::txtNumberOfRegularItems, Numeric, NoCount}};
constexpr EntryRule<Design> TakeHomePayRules[] = {
    {.Field = &Design::txtAverageTakeHomePay,
     .Holds = Numeric,
     .Text = "Please enter a valid dollar amount for the wage earner's average take home pay",
     .Instead = ""},
};
// The due date is not held to the range that its message names: any number passes, and the budget places it.
constexpr EntryRule<Design> CreditorRules[] = {
    {&Design::txtCreditorDueDate, NotEmpty, "Please enter a due date"},
    {.Field = &Design::txtCreditorDueDate,
     .Holds = Numeric,
     .Text = "Please enter a valid due date (a date between 1 and 28) without suffixes like 'st', 'nd', 'rd', etc.",
     .Instead = "1"},
    {&Design::txtCreditorAmount, NotEmpty, "Please enter the monthly amount owed to the 'creditor'"},
    {.Field = &Design::txtCreditorAmount,
     .Holds = Numeric,
     .Text = "Please enter a valid dollar amount for the monthly obligation",
     .Instead = "0.00"},
    {&Design::txtCreditor, NotEmpty, "Please enter creditor's name or description"},
};
constexpr EntryRule<Design> RegularRules[] = {
    {&Design::txtRegularItemAmount, NotEmpty, "Please enter the regular amount owed for the regular item"},
    {.Field = &Design::txtRegularItemAmount,
     .Holds = Numeric,
     .Text = "Please enter a valid dollar amount for the regular item",
     .Instead = "0.00"},
    {&Design::txtRegularItem, NotEmpty, "Please enter regular item description"},
};

/// The windows that show the household's lists and settings, or what is computed from them. The others show nothing of
/// it, or read it anew whenever the user comes to them.
const QStringList &ProfileWindows()
{
    using namespace WindowName;
    static const QStringList windows{
        frmAverageNetPercentage,
        frmBudget,
        frmCalculateWages,
        frmCreditors,
        frmCurrentShoppingList,
        frmEnvironmentSettings,
        frmExtras,
        frmMasterShoppingList,
        frmMonthlyOverhead,
        frmProjects,
        frmRegulars,
        frmSavingsForecast,
        frmScanPayPeriods,
        frmViewProject,
    };
    return windows;
}

/// Another profile has taken the place of the one that these windows show: a row of an old list would stand for a
/// record that is another one by now, or none.
void WithdrawProfileWindows()
{
    // A shopping route that was left half-way would show the guide again, or end it.
    State.GuidedSetupActive = false;
    State.GuidedSetupStep = 0;
    for (const QString &window : ProfileWindows()) {
        if (RememberedTutorTimer.remove(window)) // the guide rests the timer for it from now on
            RememberedTutorTimer.insert(WindowName::frmGettingStarted);
        TheWindows.Unload(window, Form::CloseMode::Withdrawal);
    }
}

const QString BeginsAgain = u"Coming back from another window before a pay frequency was clicked in step 3 starts the "
                            "setup again. Please enter your incomes once more."_s;
constexpr int LineCharacters = 68;
constexpr double PromptSize = 1.1;
constexpr double HeadingSize = 1.25;
constexpr QSize PictureSize(48, 48);

void SetSize(QLabel *label, double factor, bool bold)
{
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    label->setFont(font);
}

} // namespace

frmGettingStarted::frmGettingStarted()
    : Window({.Title = u"Budget Setup"_s, .TheIcon = Icon::Warning}),
      m_routes{{RouteTitle::Budget,
                {ui.pnlStartBudget1, ui.pnlStartBudget2, ui.pnlStartBudget3, ui.pnlStartBudget4, ui.pnlStartBudget5,
                 ui.pnlStartBudget6, ui.pnlStartBudget7, ui.pnlStartBudget8, ui.pnlStartBudget9, ui.pnlStartBudget10,
                 ui.pnlStartBudget11, ui.pnlStartBudget12}},
               {RouteTitle::Shopping, {ui.pnlStartShopping1, ui.pnlStartShopping2, ui.pnlStartShopping3}},
               {RouteTitle::PayOff, {ui.pnlStartPayOff1, ui.pnlStartPayOff2}}},
      optPayFrequencyWE({ui.optPayFrequencyWE0, ui.optPayFrequencyWE1, ui.optPayFrequencyWE2, ui.optPayFrequencyWE3},
                        [](int) {}),
      optPayFrequency({ui.optPayFrequency0, ui.optPayFrequency1, ui.optPayFrequency2, ui.optPayFrequency3},
                      [this](int index) { optPayFrequency_Click(index); })
{
    optPayFrequencyWE.Select(0);
    optPayFrequency.Select(0);
    m_designing = false;

    OnClickTrapped(ui.cmdNextBS1, [this] { cmdNextBS1_Click(); });
    OnClickTrapped(ui.cmdNextBS2, [this] { cmdNextBS2_Click(); });
    OnClickTrapped(ui.cmdNextBS3, [this] { cmdNextBS3_Click(); });
    OnClick(ui.cmdNextBS4, [this] { BringToFront(ui.pnlStartBudget5); });
    OnClickTrapped(ui.cmdNextBS5, [this] { cmdNextBS5_Click(); });
    OnClickTrapped(ui.cmdNextBS6, [this] { cmdNextBS6_Click(); });
    OnClickTrapped(ui.cmdNextBS7, [this] { cmdNextBS7_Click(); });
    OnClickTrapped(ui.cmdNextBS8, [this] { cmdNextBS8_Click(); });
    OnClickTrapped(ui.cmdNextBS9, [this] { ShowOverheadSummary(); });
    OnClick(ui.cmdNextBS10, [this] { BringToFront(ui.pnlStartBudget11); });
    OnClick(ui.cmdSaveBS11, [this] { cmdSaveBS11_Click(); });
    connect(&optPayFrequency, &QButtonGroup::idClicked, this, &frmGettingStarted::PressedAgain);
    OnClick(ui.cmdNextSS1, [this] { WorkIn(WindowName::frmMasterShoppingList, ShoppingRoute, 1, 25); });
    OnClick(ui.cmdNextSS2, [this] { WorkIn(WindowName::frmMasterShoppingList, ShoppingRoute, 2, 26); });
    OnClick(ui.cmdNextSS3, [this] { WorkIn(WindowName::frmCurrentShoppingList, ShoppingRoute, 3, 4); });
    OnClick(ui.cmdNextSP1, [this] { BringToFront(ui.pnlStartPayOff2); });
    // Step 2 from the start: coming back to this window would change no panel, and the work window ends the route.
    OnClick(ui.cmdNextSP2, [this] { WorkIn(WindowName::frmPayOff, PayOffRoute, 2, 13); });
    for (QPushButton *cancel :
         {ui.cmdCancelBS1, ui.cmdCancelBS2, ui.cmdCancelBS3, ui.cmdCancelBS4, ui.cmdCancelBS5, ui.cmdCancelBS6,
          ui.cmdCancelBS7, ui.cmdCancelBS8, ui.cmdCancelBS9, ui.cmdCancelBS10, ui.cmdCancelBS11, ui.cmdCancelBS12,
          ui.cmdCancelSS1, ui.cmdCancelSS2, ui.cmdCancelSS3, ui.cmdCancelSP1, ui.cmdCancelSP2})
        UnloadOn(cancel);
    EnterGoesOn();
    Style();
}

void frmGettingStarted::Style()
{
    StyleTitlePanel(ui.pnlTitle);
    SetSize(ui.lblTitle, HeadingSize, true);
    for (QLabel *heading : {ui.lblWageEarner, ui.lblIncomeSummaryTitle, ui.lblExpenseSummaryTitle,
                            ui.lblOverheadSummaryTitle, ui.lblMainMenuPrompt})
        SetSize(heading, HeadingSize, true);
    for (QLabel *prompt : ui.stkPanels->findChildren<QLabel *>())
        if (prompt->wordWrap())
            SetSize(prompt, PromptSize, false);
    ui.stkPanels->setMinimumWidth(LineCharacters * ui.lblIncomesPrompt->fontMetrics().averageCharWidth());
    connect(this, &QWidget::windowTitleChanged, ui.lblTitle, &QLabel::setText);
    ui.lblTitle->setText(windowTitle());
    ShowPictures();
    ShowStep();
    // The next panel has its button where the last one had it: a double-click would pass over a panel unseen.
    for (QPushButton *button : ui.stkPanels->findChildren<QPushButton *>())
        button->installEventFilter(this);
}

bool frmGettingStarted::event(QEvent *event)
{
    const bool done = Window::event(event);
    if (event->type() == QEvent::FontChange)
        m_roomFor = 0;
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show || event->type() == QEvent::FontChange)
        ReserveRoom();
    return done;
}

/// Room for the tallest panel from the start, with the longest texts that it can show, so that no step changes the
/// window's size.
void frmGettingStarted::ReserveRoom()
{
    const int width = ui.stkPanels->width();
    if (width == std::exchange(m_roomFor, width))
        return;
    QList<std::pair<QLabel *, QString>> texts;
    for (QLabel *label : ui.stkPanels->findChildren<QLabel *>()) {
        const QString longest = label->property("longestText").toString();
        if (longest.isEmpty())
            continue;
        texts.emplaceBack(label, label->text());
        label->setText(longest);
    }
    int height = 0;
    for (int i = 0; i < ui.stkPanels->count(); ++i)
        height = qMax(height, ui.stkPanels->widget(i)->layout()->totalHeightForWidth(width));
    for (const auto &[label, text] : texts)
        label->setText(text);
    ui.stkPanels->setMinimumHeight(height);
}

bool frmGettingStarted::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() == QEvent::MouseButtonDblClick || Window::eventFilter(watched, event);
}

void frmGettingStarted::changeEvent(QEvent *event)
{
    Window::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowPictures();
}

/// The two icons that the last panel of the budget speaks of.
void frmGettingStarted::ShowPictures()
{
    for (const auto &[picture, icon] : {std::pair{ui.Picture1, u"budget"_s}, std::pair{ui.Picture2, u"overhead"_s}})
        picture->setPixmap(ThemedIcon(icon).pixmap(PictureSize, devicePixelRatioF()));
}

/// Enter goes through the fields of a panel and from the last one to its button, which it presses only there.
void frmGettingStarted::EnterGoesOn()
{
    const QList<QList<QWidget *>> ways{
        {ui.txtNumberOfIncomes, ui.cmdNextBS1},
        {ui.txtNumberOfCreditors, ui.cmdNextBS5},
        {ui.txtCreditorDueDate, ui.txtCreditorAmount, ui.txtCreditor, ui.cmdNextBS6},
        {ui.txtNumberOfRegularItems, ui.cmdNextBS7},
        {ui.txtRegularItemAmount, ui.txtRegularItem, ui.cmdNextBS8},
    };
    for (const QList<QWidget *> &way : ways)
        for (qsizetype i = 0; i + 1 < way.size(); ++i)
            OnEnter(way[i], [this, next = way[i + 1]] { FocusOn(next); });
    OnEnter(ui.txtAverageTakeHomePay, [this] { FocusOn(optPayFrequencyWE.checkedButton()); });
    for (QAbstractButton *option : optPayFrequencyWE.buttons())
        OnEnter(option, [this] { FocusOn(ui.cmdNextBS2); });
    for (QAbstractButton *option : optPayFrequency.buttons())
        OnEnter(option, [this] { FocusOn(ui.cmdNextBS3); });
}

void frmGettingStarted::Load()
{
    TheWindows.Hide(WindowName::frmMain);
}

void frmGettingStarted::Activate()
{
    ShowFrequencyHint();
    // The questions of the pay frequency come back here and must not throw the user back to the first panel.
    if (PayOptionClicked)
        return;
    if (!State.GuidedSetupActive) {
        for (const Route &route : std::as_const(m_routes))
            if (route.Title == windowTitle()) {
                if (route.Panels.indexOf(Panel()) > 0)
                    ui.lblBeginsAgain->setText(BeginsAgain);
                BringToFront(route.Panels.first());
            }
        return;
    }
    // A route that goes on: its step is the panel, from 0. That of a route that was left half-way stands until another
    // one takes its place.
    for (const auto &[route, title] :
         {std::pair{ShoppingRoute, RouteTitle::Shopping}, std::pair{PayOffRoute, RouteTitle::PayOff}})
        if (State.GuidedSetupRoute == route)
            for (const Route &one : std::as_const(m_routes))
                if (one.Title == title && State.GuidedSetupStep > 0 && State.GuidedSetupStep < one.Panels.size())
                    BringToFront(one.Panels[State.GuidedSetupStep]);
}

void frmGettingStarted::Unload()
{
    // Who has switched the tutor off has had its pages for this way only, unless he keeps one.
    if (m_tutorShown && OptionValue(ShowTutor) == 0 && !WindowField::TutorIsFrozen())
        TheWindows.Unload(WindowName::frmTallymereTutor);
    TheWindows.Show(WindowName::frmMain);
}

/// The focus goes to the panel's first field, or to its button where it has none.
void frmGettingStarted::BringToFront(QWidget *panel)
{
    ui.stkPanels->setCurrentWidget(panel);
    ShowStep();
    for (QWidget *control = panel->nextInFocusChain(); control != panel; control = control->nextInFocusChain()) {
        if (panel->isAncestorOf(control) && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus)) {
            FocusOn(control);
            return;
        }
    }
}

void frmGettingStarted::ShowStep()
{
    for (const Route &route : std::as_const(m_routes))
        if (const qsizetype place = route.Panels.indexOf(Panel()); place >= 0)
            ui.lblStep->setText(u"Step %1 of %2"_s.arg(place + 1).arg(route.Panels.size()));
}

/// Steps that enter something: where one fails, nothing is entered.
void frmGettingStarted::Change(const std::function<void(BudgetSetup &)> &steps)
{
    BudgetSetup changed = m_setup;
    steps(changed);
    m_setup = std::move(changed);
}

bool frmGettingStarted::ValidateTakeHomePay()
{
    return Accepts(TakeHomePayRules);
}

bool frmGettingStarted::ValidateSetupCreditor()
{
    return Accepts(CreditorRules);
}

bool frmGettingStarted::ValidateSetupRegular()
{
    return Accepts(RegularRules);
}

void frmGettingStarted::cmdNextBS1_Click()
{
    if (!Accepts(IncomesRules))
        return;
    const QString count = BoundedNumberOfIncomes(ui.txtNumberOfIncomes->text());
    Change([&](BudgetSetup &setup) { TakeNumberOfIncomes(setup, count); });
    ui.txtNumberOfIncomes->setText(count);
    ui.lblBeginsAgain->clear();
    AskForIncome();
}

/// For the one that comes next.
void frmGettingStarted::AskForIncome()
{
    ui.lblWageEarner->setText(u"Information for Corvelle # %1..."_s.arg(m_setup.IncomeIndex + 1));
    ui.txtAverageTakeHomePay->setText(u"0.00"_s);
    optPayFrequencyWE.Select(0);
    BringToFront(ui.pnlStartBudget2);
}

void frmGettingStarted::cmdNextBS2_Click()
{
    if (!ValidateTakeHomePay())
        return;
    Change([this](BudgetSetup &setup) {
        TakeIncome(setup, ui.txtAverageTakeHomePay->text(), BudgetFrequencyNames()[optPayFrequencyWE.Selected()]);
    });
    if (m_setup.IncomeIndex < m_setup.NumberOfIncomes)
        AskForIncome();
    else
        BringToFront(ui.pnlStartBudget3);
}

/// The only place where the setup sets the pay frequency. Leaving "Weekly" selected without a click keeps the one from
/// before, under a budget that is called weekly.
void frmGettingStarted::optPayFrequency_Click(int index)
{
    if (m_designing)
        return;
    PayOptionClicked = true;
    const PayFrequencyOption &chosen = PayFrequencyOptions()[index];
    State.PayFrequency = chosen.Frequency;
    ShowFrequencyHint();
    if (!chosen.DatesWindow.isEmpty())
        TheWindows.ShowModal(chosen.DatesWindow);
}

/// A press on the option that is selected already is no change of the group, but it says what the user wants. It asks
/// for pay days only where they are not those of the settings.
void frmGettingStarted::PressedAgain(int index)
{
    PayOptionClicked = true;
    if (State.PayFrequency != PayFrequencyOptions()[index].Frequency)
        optPayFrequency_Click(index);
}

/// Which pay frequency the settings have where it is not the selected one.
void frmGettingStarted::ShowFrequencyHint()
{
    const auto caption = [this](int option) { return optPayFrequency.button(option)->text(); };
    const int selected = optPayFrequency.Selected();
    const int set = OptionOfPayFrequency(State.PayFrequency);
    if (selected == set)
        ui.lblFrequencyHint->clear();
    else
        ui.lblFrequencyHint->setText(
            u"Click the frequency of your budget, even if it is marked already: "_s +
            (set < 0 ? u"the settings name none yet."_s : u"until then the settings keep \"%1\"."_s.arg(caption(set))));
}

void frmGettingStarted::cmdNextBS3_Click()
{
    Change([this](BudgetSetup &setup) {
        ChooseBudgetFrequency(setup, BudgetFrequencyNames()[optPayFrequency.Selected()]);
    });
    ui.lblIncomeSummary->setText(IncomeSummary(m_setup));
    ui.lblIncomeHint->setText(IncomeHint(m_setup));
    BringToFront(ui.pnlStartBudget4);
}

void frmGettingStarted::cmdNextBS5_Click()
{
    if (!Accepts(CreditorsRules))
        return;
    Change([this](BudgetSetup &setup) { TakeNumberOfCreditors(setup, ui.txtNumberOfCreditors->text()); });
    if (m_setup.NumberOfSetupCreditors < 1) // the prompt of the regular items keeps its own words then
        BringToFront(ui.pnlStartBudget7);
    else
        AskForCreditor();
}

void frmGettingStarted::AskForCreditor()
{
    ui.fraCreditorInformation->setTitle(
        m_setup.SetupCreditorIndex == 0 ? u"Information for Creditor (Monthly Obligation) # 1"_s
                                        : u"Information for Creditor # %1..."_s.arg(m_setup.SetupCreditorIndex + 1));
    ui.txtCreditorDueDate->setText(u"1"_s);
    ui.txtCreditorAmount->setText(u"0.00"_s);
    ui.txtCreditor->clear();
    BringToFront(ui.pnlStartBudget6);
}

void frmGettingStarted::cmdNextBS6_Click()
{
    if (!ValidateSetupCreditor())
        return;
    Change([this](BudgetSetup &setup) {
        TakeCreditor(setup, ui.txtCreditorDueDate->text(), ui.txtCreditorAmount->text(), ui.txtCreditor->text());
    });
    if (m_setup.SetupCreditorIndex < m_setup.NumberOfSetupCreditors) {
        AskForCreditor();
        return;
    }
    ui.lblRegularsPrompt->setText(RegularsPrompt(m_setup));
    BringToFront(ui.pnlStartBudget7);
}

void frmGettingStarted::cmdNextBS7_Click()
{
    if (!Accepts(RegularsRules))
        return;
    Change([this](BudgetSetup &setup) {
        TakeNumberOfRegulars(setup, ui.txtNumberOfRegularItems->text());
        if (setup.NumberOfSetupRegulars < 1)
            AddUpExpenses(setup);
    });
    if (m_setup.NumberOfSetupRegulars < 1)
        ShowExpenseSummary();
    else
        AskForRegular();
}

void frmGettingStarted::AskForRegular()
{
    ui.fraRegularItemInformation->setTitle(
        m_setup.SetupRegularIndex == 0 ? u"Information for Regular Item # 1"_s
                                       : u"Information for Regular Item # %1..."_s.arg(m_setup.SetupRegularIndex + 1));
    ui.txtRegularItemAmount->setText(u"0.00"_s);
    ui.txtRegularItem->clear();
    ui.lblRegularHint->setText(RegularHint(m_setup));
    BringToFront(ui.pnlStartBudget8);
}

void frmGettingStarted::cmdNextBS8_Click()
{
    if (!ValidateSetupRegular())
        return;
    Change([this](BudgetSetup &setup) {
        TakeRegular(setup, ui.txtRegularItemAmount->text(), ui.txtRegularItem->text());
        if (setup.SetupRegularIndex == setup.NumberOfSetupRegulars)
            AddUpExpenses(setup);
    });
    if (m_setup.SetupRegularIndex < m_setup.NumberOfSetupRegulars)
        AskForRegular();
    else
        ShowExpenseSummary();
}

void frmGettingStarted::ShowExpenseSummary()
{
    ui.lblExpenseSummary->setText(ExpenseSummary(m_setup));
    BringToFront(ui.pnlStartBudget9);
}

void frmGettingStarted::ShowOverheadSummary()
{
    Change(AddUpOverhead);
    ui.lblOverheadSummary->setText(OverheadSummary(m_setup));
    BringToFront(ui.pnlStartBudget10);
}

void frmGettingStarted::cmdSaveBS11_Click()
{
    SaveProfile(m_setup);
    WithdrawProfileWindows();
    ShowMessage(u"Profile saved."_s, u"Budget Setup"_s, Icon::Information);
    BringToFront(ui.pnlStartBudget12);
}

/// Leaves the route to a work window, which brings this one back or ends it. The tutor's page comes whether or not its
/// option is on.
void frmGettingStarted::WorkIn(const QString &window, qint32 route, qint16 step, int tutorPage)
{
    State.GuidedSetupActive = true;
    State.GuidedSetupRoute = route;
    State.GuidedSetupStep = step;
    m_tutorShown = true;
    const Form *before = TheWindows.Loaded(window);
    const bool stood = before && before->isVisible();
    TheWindows.Show(window);
    // The load of the work window hides this one; one that was loaded unseen has had it earlier.
    if (!stood && TheWindows.Loaded(window) && isVisible())
        TheWindows.Hide(objectName());
    Q_EMIT TheTutorRequests.PageWanted(tutorPage);
}
