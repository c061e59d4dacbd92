#include "Households.h"

#include "GuiDesk.h"
#include "Palettes.h"
#include "debt/PayOffPlan.h"
#include "debt/frmInput.h"
#include "foundation/Calendar.h"
#include "foundation/Tutor.h"
#include "guidance/TutorPages.h"
#include "platform/controls/DropDownList.h"

#include <QApplication>
#include <QDirIterator>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVariantAnimation>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SamplePeriods = 12;

/// What brings a window's content in the filled household: buttons, or the first rows of lists, drop-down lists and
/// grids, clicked one after the other.
const QHash<QString, QStringList> &FirstClicks()
{
    static const QHash<QString, QStringList> clicks{
        {u"frmAverageNetPercentage"_s, {u"cmdCalculate"_s}},
        {u"frmBudget"_s, {u"cmdBudget"_s, u"cmdBudget"_s}},
        {u"frmCalculateWages"_s, {u"cmdCalculate"_s}},
        {u"frmCreditors"_s, {u"cmdListCreditors"_s, u"lstCreditors"_s}},
        {u"frmExtras"_s, {u"cmdListPayPeriods"_s, u"lstExtraItems"_s, u"lstExtraItems"_s}}, // a period, then an item
        {u"frmCurrentShoppingList"_s, {u"grdCurrentShoppingList"_s}},
        {u"frmInterestRateCalculator"_s, {u"cmdCalculate"_s}},
        {u"frmPaymentCalculator"_s, {u"cmdCalculate"_s}},
        {u"frmMasterShoppingList"_s, {u"cboStoreList"_s, u"lstMasterShopper"_s}},
        {u"frmProjects"_s, {u"cmdListProjects"_s, u"lstProjects"_s}},
        {u"frmRegulars"_s, {u"cmdListRegularItems"_s, u"lstRegulars"_s}},
        {u"frmSavings"_s, {u"cmdCalculate"_s}},
    };
    return clicks;
}

/// What is typed into a window's fields before that.
const QHash<QString, QList<QPair<QString, QString>>> &FirstEntries()
{
    static const QHash<QString, QList<QPair<QString, QString>>> entries{
        {u"frmAverageNetPercentage"_s,
         {{u"txtFirstCheckGross"_s, u"$3,000.00"_s},
          {u"txtFirstCheckNet"_s, u"$2,340.00"_s},
          {u"txtSecondCheckGross"_s, u"$3,412.50"_s},
          {u"txtSecondCheckNet"_s, u"$2,627.63"_s}}},
        {u"frmCalculateWages"_s, {{u"txtHourlyPayRate"_s, u"$30.00"_s}}},
        {u"frmGettingStarted.pnlStartBudget1"_s, {{u"txtNumberOfIncomes"_s, u"2"_s}}},
        {u"frmGettingStarted.pnlStartBudget2"_s, {{u"txtAverageTakeHomePay"_s, u"$1,240.00"_s}}},
        {u"frmGettingStarted.pnlStartBudget5"_s, {{u"txtNumberOfCreditors"_s, u"2"_s}}},
        {u"frmGettingStarted.pnlStartBudget6"_s,
         {{u"txtCreditorDueDate"_s, u"15"_s}, {u"txtCreditorAmount"_s, u"$1,450.00"_s}, {u"txtCreditor"_s, u"Rent"_s}}},
        {u"frmGettingStarted.pnlStartBudget7"_s, {{u"txtNumberOfRegularItems"_s, u"2"_s}}},
        {u"frmGettingStarted.pnlStartBudget8"_s,
         {{u"txtRegularItemAmount"_s, u"$310.00"_s}, {u"txtRegularItem"_s, u"Groceries"_s}}},
        {u"frmInterestRateCalculator"_s,
         {{u"txtBorrowedAmount"_s, u"$200,000.00"_s},
          {u"txtMonthlyPayments"_s, u"$1,199.10"_s},
          {u"txtNumberOfMonthlyPayments"_s, u"360"_s}}},
        {u"frmPaymentCalculator"_s,
         {{u"txtBorrowedAmount"_s, u"$200,000.00"_s},
          {u"txtAnnualPercentageRate"_s, u"6"_s},
          {u"txtNumberOfMonthlyPayments"_s, u"360"_s}}},
        {u"frmSavings"_s,
         {{u"txtMonthlyDeposits"_s, u"$100.00"_s},
          {u"txtAnnualPercentageRate"_s, u"4.5"_s},
          {u"txtNumberOfMonthlyDeposits"_s, u"120"_s},
          {u"txtCurrentSavingsAmount"_s, u"$1,000.00"_s}}},
        {u"frmTotalHours"_s, {{u"txtWeek1"_s, u"42.5"_s}, {u"txtWeek2"_s, u"38"_s}, {u"txtWeek3"_s, u"16.25"_s}}},
    };
    return entries;
}

/// The welcome window's panel at its end: a level's, or a step of the tour with all that its timer brings.
void BringWelcomePanel(const QString &panel)
{
    const QString window = u"frmWelcome"_s;
    if (panel == u"pnlGettingStartedWithBudget"_s)
        return Click(window, u"lblLevelSelection0"_s);
    if (panel == u"pnlHowToDo"_s)
        return Click(window, u"lblLevelSelection1"_s);
    const QList<std::array<QString, 3>> tour{{u"pnlTipOfTheDay"_s, u"tmrTipOfTheDay"_s, u"cmdNext1"_s},
                                             {u"pnlBudgetTutor"_s, u"tmrBudgetTutor"_s, u"cmdNext2"_s},
                                             {u"pnlSearchForHelpOn"_s, u"tmrSearchForHelpOn"_s, u"cmdNext3"_s},
                                             {u"pnlHowDoI"_s, u"tmrHowDoI"_s, {}}};
    Click(window, u"lblLevelSelection2"_s);
    for (const auto &[step, timer, next] : tour) {
        auto &clock = Find<QTimer>(window, timer);
        while (clock.isActive()) {
            QMetaObject::invokeMethod(&clock, "timeout");
            while (auto *motion = TheWindows.Loaded(window)->findChild<QVariantAnimation *>()) {
                motion->setCurrentTime(motion->totalDuration());
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        }
        if (step == panel)
            return;
        Click(window, next);
    }
}

/// The panels of a window beside the one that it opens with, and how the user gets to one.
struct Panels {
    QStringList Names;
    std::function<void(const QString &panel)> BringToFront;
};

void FillIn(const QString &view)
{
    for (const auto &[field, text] : FirstEntries().value(view))
        Type(WindowOf(view), field, text);
}

/// Chooses the guided route of the panel and goes along, entering what is asked, until the panel is in front.
void WalkGuideTo(const QString &panel)
{
    const QString window = u"frmGettingStarted"_s;
    const auto buttons = [&] { // of the panel in front: the one that goes on, the one that leaves
        return Find<QStackedWidget>(window, u"stkPanels"_s).currentWidget()->findChildren<QPushButton *>();
    };
    Click(window, buttons().last()->objectName());
    Choose(panel.startsWith(u"pnlStartBudget"_s)     ? u"mnuStartBudget"_s
           : panel.startsWith(u"pnlStartShopping"_s) ? u"mnuStartShopping"_s
                                                     : u"mnuStartPayingOffBills"_s);
    while (true) {
        const QString front = buttons().first()->parentWidget()->objectName();
        FillIn(window + u'.' + front);
        if (front == panel)
            return;
        Click(window, buttons().first()->objectName());
        if (IsShown(u"frmMasterShoppingList"_s))
            CloseByFrame(u"frmMasterShoppingList"_s);
    }
}

QStringList Numbered(const QString &name, int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names += name + QString::number(i);
    return names;
}

/// The tutor's topics after the first one.
QStringList TopicPanels()
{
    QStringList panels;
    for (int page = 2; page <= 24; ++page)
        panels += TutorPage(page).Panel;
    return panels;
}

const QHash<QString, Panels> &FurtherPanels()
{
    static const QHash<QString, Panels> panels{
        {u"frmGettingStarted"_s,
         {Numbered(u"pnlStartBudget"_s, 2, 12) + Numbered(u"pnlStartShopping"_s, 1, 3) +
              Numbered(u"pnlStartPayOff"_s, 1, 2),
          WalkGuideTo}},
        {u"frmHowDoI"_s, {{u"SSPanel2"_s}, [](const QString &) { Click(u"frmHowDoI"_s, u"cmdMore"_s); }}},
        {u"frmTallymereTutor"_s,
         {TopicPanels(),
          [](const QString &panel) { Q_EMIT TheTutorRequests.PageWanted(2 + int(TopicPanels().indexOf(panel))); }}},
        {u"frmWelcome"_s,
         {{u"pnlGettingStartedWithBudget"_s, u"pnlHowToDo"_s, u"pnlTipOfTheDay"_s, u"pnlBudgetTutor"_s,
           u"pnlSearchForHelpOn"_s, u"pnlHowDoI"_s},
          BringWelcomePanel}},
    };
    return panels;
}

void ClickFirstLine(const QString &window, const QString &name)
{
    Grid &grid = Find<Grid>(window, name);
    const QPoint line = grid.visualRect(grid.model()->index(0, 0)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, line);
}

void ClickAllOf(const QString &window)
{
    for (const QString &control : FirstClicks().value(window))
        if (control.startsWith(u"lst"_s))
            ClickRow(window, control, 0);
        else if (control.startsWith(u"grd"_s))
            ClickFirstLine(window, control);
        else if (control.startsWith(u"cbo"_s))
            Find<DropDownList>(window, control).SetListIndex(0);
        else
            Click(window, control);
}

/// Three debts for the pay off plan, as far as the dialogue has named them or taken their figures.
void EnterDebts(bool withFigures)
{
    const QList<PayOffEntry> debts{{u"Department Store"_s, u"300"_s, u"21"_s, u"50"_s, u"1/20/2026"_s},
                                   {u"Credit Card"_s, u"5000"_s, u"18"_s, u"100"_s, u"1/15/2026"_s},
                                   {u"Dr. Miller"_s, u"640"_s, u"0"_s, u"80"_s, u"2/1/2026"_s}};
    RedimPayOffCreditors(QString::number(debts.size()));
    for (int i = 1; i <= debts.size(); ++i) {
        Debt.PayOffCreditorNames(i) = debts[i - 1].Name;
        if (withFigures)
            StorePayOffCreditor(i, debts[i - 1]);
    }
}

void PlanToPayOff()
{
    EnterDebts(true);
    CalculateMonthsToPay();
    SortPayOffCreditors();
    BuildPayOffPlan();
}

QByteArray Contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

void CopyFolder(const RecordingDesk &desk, const QString &folder)
{
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.endsWith(u".template"_s))
            desk.WriteFile(QDir(folder).relativeFilePath(path), Contents(path));
    }
}

} // namespace

void LayHouseholdOf(const RecordingDesk &desk, Household household)
{
    const QString root = QStringLiteral(PROJECT_FOLDER);
    CopyFolder(desk, root + u"/household"_s);
    if (household == Household::Empty)
        return;
    CopyFolder(desk, root + u"/examples"_s);
    // The dated files are templates: @PERIOD0@ is the current pay period, @PERIOD1@ the one after it, and so on.
    State.FirstPayDate = 1;
    State.SecondPayDate = 15;
    for (const QString &name : {u"extra.txt"_s, u"projects.txt"_s}) {
        QByteArray text = Contents(root + u"/examples/"_s + name + u".template"_s);
        DateText period = Format(desk.Now.date(), DateFormat::Dashes);
        for (int i = 0; i < SamplePeriods; ++i) {
            const QByteArray number = QByteArray::number(i) + '@';
            text.replace("@PERIOD" + number, Format(period.Date(), DateFormat::Dashes).toUtf8());
            text.replace("@LONGPERIOD" + number, FormatLongDate(period.Text()).toUtf8());
            period = NextPayPeriod(period, Semimonthly);
        }
        desk.WriteFile(name, text);
    }
}

QStringList Views()
{
    QStringList views;
    for (const QString &window : TheWindows.Names()) {
        views += window;
        for (const QString &panel : FurtherPanels().value(window).Names)
            views += window + u'.' + panel;
    }
    return views;
}

QString WindowOf(const QString &view)
{
    return view.section(u'.', 0, 0);
}

bool ShowAtWork(const QString &view, Household household)
{
    const QString window = WindowOf(view);
    const QString panel = view.section(u'.', 1);
    State.CurrentPayPeriodConfirmed = true; // its window is shown for itself
    if (window != u"frmSplash"_s && window != u"frmWelcome"_s)
        TheWindows.Show(u"frmMain"_s);
    if (window == u"frmSetCurrentPayPeriod"_s) // the main window tells it the day
        TheWindows.ControlOf<QLabel>(window, u"lblDate"_s).setText(Format(TheDesk.Now().date(), DateFormat::Weekday));
    if (window == u"frmViewProject"_s && household == Household::Filled) { // it shows the project chosen there
        Show(u"frmProjects"_s);
        ClickAllOf(u"frmProjects"_s);
    }
    if (window == u"frmAmortization"_s && household == Household::Filled) { // it lists the loan calculated there
        Show(u"frmPaymentCalculator"_s);
        FillIn(u"frmPaymentCalculator"_s);
        ClickAllOf(u"frmPaymentCalculator"_s);
    }
    if (window == u"frmCreditorInfo"_s) // the dialogue before it has taken the names
        EnterDebts(false);
    if (window == u"frmInput"_s && household == Household::Filled)
        frmInput::Prepare(
            {.Title = InputTitle::CreditorName,
             .Tip = u"The name that this debt has in the plan"_s,
             .Prompt = u"In the box below enter the name of the creditor or bill that would be Creditor # 1"_s,
             .Answer = u"Department Store"_s});
    if (window == u"frmGettingStarted"_s) // a guide without a route is seen by nobody
        Choose(u"mnuStartBudget"_s);
    else
        Show(window);
    if (window == u"frmTallymereTutor"_s) // it comes with a page
        Q_EMIT TheTutorRequests.PageWanted(1);
    if (window == u"frmPayOff"_s && household == Household::Filled)
        PlanToPayOff();
    for (const QString &clock : {u"frmMain"_s, u"frmSetCurrentPayPeriod"_s})
        if (Form *form = TheWindows.Loaded(clock))
            QMetaObject::invokeMethod(form->findChild<QTimer *>(u"Timer1"_s), "timeout");
    if (window == u"frmMain"_s && household == Household::Filled) {
        auto &button = Find<QToolButton>(window, u"Toolbar1Button6"_s);
        const QPointF middle = button.rect().center();
        QMouseEvent pointed(QEvent::MouseMove, middle, button.mapToGlobal(middle), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&button, &pointed);
    }
    if (window == u"frmCalculateWages"_s && household == Household::Filled) { // its hours come from their own window
        PressEnter(window, u"txtTotalHoursWorked"_s);
        FillIn(u"frmTotalHours"_s);
        Click(u"frmTotalHours"_s, u"cmdOK"_s);
    }
    if (household == Household::Filled) {
        FillIn(window);
        ClickAllOf(window);
    }
    if (!panel.isEmpty())
        FurtherPanels().value(window).BringToFront(panel);
    Settle();
    return IsShown(window);
}

void UseDesktop(bool dark, double fontSize)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPointSizeF(fontSize);
    QApplication::setFont(font);
    QApplication::setPalette(dark ? DarkPalette() : LightPalette());
}
