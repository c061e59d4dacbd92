// The main window: its tables of menus, toolbar and state lines, its options, its timers, the start and the ways out.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/Tutor.h"
#include "mainwindow/frmMain.h"

#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Main = u"frmMain"_s;
const QString Question = u"frmSetCurrentPayPeriod"_s;

struct MenuRow {
    const char *Menu;
    const char *Caption;
    const char *Name;
    const char *Shortcut;
    const char *Window;
    int TutorPage;
};

/// Every menu entry in order. Without a caption: a separator.
const MenuRow MenuRows[] = {
    {"menuBar", "&File", "mnuFile", "", "", 0},
    {"mnuFile", "C&reditors", "mnuFileCreditors", "", "frmCreditors", 3},
    {"mnuFile", "Re&gular Items", "mnuFileRegulars", "", "frmRegulars", 17},
    {"mnuFile", "&Extra Items", "mnuFileExtras", "", "frmExtras", 6},
    {"mnuFile", "&Projects", "mnuFileProjects", "Ctrl+J", "frmProjects", 16},
    {"mnuFile", "", "FileSeparator", "", "", 0},
    {"mnuFile", "E&xit", "mnuFileExit", "Ctrl+X", "", 0},
    {"menuBar", "&Income", "mnuIncome", "", "", 0},
    {"mnuIncome", "&Scan Pay Periods", "mnuIncomeScanPayPeriods", "F6", "frmScanPayPeriods", 20},
    {"mnuIncome", "&Average Net Percentage", "mnuIncomeAverageNetPercentage", "", "frmAverageNetPercentage", 1},
    {"mnuIncome", "&Calculate Wages", "mnuIncomeCalculateWages", "F5", "frmCalculateWages", 24},
    {"menuBar", "&Budget", "mnuBudget", "", "", 0},
    {"mnuBudget", "&Current Overhead", "mnuBudgetCurrentOverhead", "Ctrl+O", "frmMonthlyOverhead", 12},
    {"mnuBudget", "&View Budget", "mnuBudgetViewBudget", "Ctrl+B", "frmBudget", 2},
    {"mnuBudget", "&Savings Forecast", "mnuBudgetSavingsForecast", "Ctrl+F", "frmSavingsForecast", 19},
    {"menuBar", "&Shopper", "mnuShopper", "", "", 0},
    {"mnuShopper", "&Open Store List...", "mnuShopperOpenStoreList", "", "", 11},
    {"mnuShopper", "&Review Current List", "mnuShopperReviewCurrentList", "Ctrl+S", "frmCurrentShoppingList", 4},
    {"mnuShopper", "&Print Current List", "mnuShopperPrintCurrentList", "", "", 14},
    {"mnuShopper", "", "mnuShopperSeparator", "", "", 0},
    {"mnuShopper", "&Master Shopping List", "mnuShopperMasterShoppingList", "Ctrl+M", "frmMasterShoppingList", 9},
    {"menuBar", "Fi&nance", "mnuFinance", "", "", 0},
    {"mnuFinance", "&Savings", "mnuFinanceSavings", "", "frmSavings", 18},
    {"mnuFinance", "&Loans...", "mnuFinanceLoans", "", "", 0},
    {"mnuFinanceLoans", "&Payments", "mnuFinanceLoansPayments", "", "frmPaymentCalculator", 8},
    {"mnuFinanceLoans", "&Interest Rates", "mnuFinanceLoansInterestRates", "", "frmInterestRateCalculator", 7},
    {"mnuFinance", "&Pay Off", "mnuFinancePayOff", "Ctrl+Y", "frmPayOff", 13},
    {"mnuFinance", "", "FinanceSeparator", "", "", 0},
    {"mnuFinance", "&Math Calculator", "mnuFinanceMathCalculator", "Ctrl+C", "", 10},
    {"menuBar", "&Options", "mnuOptions", "", "", 0},
    {"mnuOptions", "Set &Current Pay Period", "mnuOptionsSetCurrentPayPeriod", "F7", "", 22},
    {"mnuOptions", "&Printer Setup...", "mnuOptionsPrinterSetup", "F2", "frmPrinter", 15},
    {"mnuOptions", "", "OptionsSeparator", "", "", 0},
    {"mnuOptions", "&Environment Setting", "mnuOptionsEnvironmentSettings", "Ctrl+E", "frmEnvironmentSettings", 5},
    {"mnuOptions", "&Tip of the Day on Startup", "mnuTipOfTheDay", "", "", 0},
    {"mnuOptions", "&Tallymere Tutor", "mnuTallymereTutor", "", "", 0},
    {"mnuOptions", "&Welcome Screen", "mnuWelcomeScreen", "", "", 0},
    {"menuBar", "&Help", "mnuHelp", "", "", 0},
    {"mnuHelp", "&Search for Help On...", "mnuHelpSearch", "", "", 0},
    {"mnuHelp", "&Getting Started", "mnuGettingStarted", "", "", 0},
    {"mnuGettingStarted", "Getting Started With Your &Budget", "mnuStartBudget", "", "frmGettingStarted", 0},
    {"mnuGettingStarted", "Getting Started With &Shopping", "mnuStartShopping", "", "frmGettingStarted", 0},
    {"mnuGettingStarted", "Getting Started With &Paying Off Bills", "mnuStartPayingOffBills", "", "frmGettingStarted",
     0},
    {"mnuHelp", "Ho&w Do I...?", "mnuHowDoI", "", "frmHowDoI", 0},
    {"mnuHelp", "&About", "mnuHelpAbout", "", "frmAbout", 0},
};

struct ToolbarRow {
    const char *ToolTip;
    const char *Entry;
    const char *Hint;
};

const ToolbarRow ToolbarRows[] = {
    {"Projects", "mnuFileProjects",
     "Use the Projects window for anything you have to save up money for by a particular date (pay period)"},
    {"Scan Pay Periods", "mnuIncomeScanPayPeriods",
     "Use this feature to \"foresee\" your upcoming pay periods starting with the current pay period in the Set "
     "Current Pay Period window"},
    {"Average Net Percentage", "mnuIncomeAverageNetPercentage",
     "Use the Average Net Percentage window as a calculator to help you quickly project future income"},
    {"Wage Calculator", "mnuIncomeCalculateWages",
     "Use the Calculate Wages window as a calculator to determine what your wages will be for a particular pay period "
     "or project your monthly and yearly income"},
    {"Overhead", "mnuBudgetCurrentOverhead",
     "Use this feature to determine at a glance if you are \"in the red\" and, if so, what areas you need to adjust to "
     "improve your financial picture"},
    {"Budget", "mnuBudgetViewBudget",
     "After entering your income and expenses information, this feature takes that information and sets up a budget "
     "for you - pay period after pay period"},
    {"Savings Forecast", "mnuBudgetSavingsForecast",
     "This feature records and displays the balances left over from each budget and keeps a running total, enabling "
     "you to forecast your savings, if any"},
    {"Current Shopping List", "mnuShopperReviewCurrentList",
     "This feature is your on-line shopping list complete with item names, units, prices, sales tax and coupon values "
     "you can include to reduce your grocery bill"},
    {"Master Shopping List", "mnuShopperMasterShoppingList",
     "Use this feature to build a master list from which you can prepare shopping lists (sublists) each time you go "
     "shopping at your favorite stores"},
    {"Savings", "mnuFinanceSavings",
     "Use this feature to determine what the future value of your planned investment will be at the end of your "
     "savings program"},
    {"Loan Payments", "mnuFinanceLoansPayments",
     "After you indicate the amount you wish to borrow, the expected annual percentage rate (APR) of your loan and the "
     "number of monthly payments you would like to make, this feature will tell you what you can expect to pay per "
     "month for the loan itself"},
    {"Loan Interest Rates", "mnuFinanceLoansInterestRates",
     "After you indicate the amount you wish to borrow, the desired monthly payments you would like to make and the "
     "number of months you intend to make these payments, this feature will indicate what annual percentage rate your "
     "loan needs to be set at"},
    {"Pay Off", "mnuFinancePayOff",
     "After obtaining information, this feature proceeds to display a pay off plan that pays off your creditors/bills "
     "in the shortest time possible considering the money you have to work with"},
    {"Set Current Pay Period", "mnuOptionsSetCurrentPayPeriod",
     "The Set Current Pay Period window allows you to set whatever pay period you wish to budget, using any valid date "
     "format you desire"},
    {"Printer Setup", "mnuOptionsPrinterSetup",
     "The Printer Setup window allows you to adjust your printer settings to take advantage of the information "
     "Tallymere provides"},
    {"Environment Settings", "mnuOptionsEnvironmentSettings",
     "The Environment Settings window is used by Tallymere to retain information peculiar to your financial "
     "circumstances so as to avoid repeatedly entering this information each time you switch on your computer and use "
     "Tallymere"},
};

struct OptionRow {
    const char *Entry;
    const char *Window; ///< what the option is about
    const char *Key;
    const char *Title;
    const char *TurnedOn;
    const char *TurnedOff;
};

const OptionRow OptionRows[] = {
    {"mnuTipOfTheDay", "frmTip", "show tips at startup", "Options - Tip of the Day",
     "Tip of the Day will be displayed the next time you start Tallymere",
     "Tip of the Day will not be displayed the next time you start Tallymere"},
    {"mnuTallymereTutor", "frmTallymereTutor", "show tallymere tutor", "Options - Tallymere Tutor",
     "Tallymere Tutor will be displayed automatically in 10 seconds.",
     "Tallymere Tutor will not be displayed automatically. To get help from the Tutor again recheck this option or "
     "click Help->How Do I...?"},
    {"mnuWelcomeScreen", "frmWelcome", "show welcome at startup", "Options - Welcome Screen",
     "The Welcome screen will be displayed the next time you start Tallymere",
     "The Welcome screen will not be displayed the next time you start Tallymere"},
};

QString Text(const char *text)
{
    return QString::fromLatin1(text);
}

/// Stands in for a window of another folder.
class Toy : public Form
{
public:
    void Unload() override { ++Unloads; }
    inline static int Unloads = 0;
};

/// The settings window with the one field that the main window writes.
class SettingsToy : public Form
{
public:
    SettingsToy()
    {
        auto *field = new QLineEdit(this);
        field->setObjectName(u"txtStoreFile"_s);
    }
};

class DamagedToy : public Form
{
public:
    void Load() override { RaiseError(RuntimeError::PathNotFound); }
};

template <class Window>
void DeclareToy(const QString &name)
{
    TheWindows.Register(name, [] { return new Window; });
}

/// Toys under the names of all windows that the menus open.
void DeclareToys()
{
    for (const MenuRow &row : MenuRows)
        if (*row.Window)
            DeclareToy<Toy>(Text(row.Window));
    DeclareToy<SettingsToy>(u"frmEnvironmentSettings"_s);
    for (const OptionRow &row : OptionRows)
        if (Text(row.Window) != u"frmTallymereTutor"_s) // the real one answers whoever wants a page
            DeclareToy<Toy>(Text(row.Window));
}

/// Records the pages that the tutor is asked to show.
class TutorPages
{
public:
    TutorPages()
    {
        QObject::connect(&TheTutorRequests, &TutorRequests::PageWanted, &m_context, [this](int page) {
            Pages += page;
            ActiveThen = ActiveWindow();
        });
    }

    QList<int> Pages;
    QString ActiveThen; ///< the window that was active when the last page was asked for

private:
    QObject m_context;
};

/// Answers the modal question for the pay period as soon as it stands there, each time.
class QuestionAnswerer
{
public:
    QuestionAnswerer()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (!IsShown(Question))
                return;
            ++Asked;
            Offered = TextOf(Question, u"txtCurrentPayPeriod"_s);
            ActiveThen = ActiveWindow();
            for (const QString &wish : {u"frmGettingStarted"_s, u"frmHowDoI"_s})
                if (IsShown(wish))
                    WishesThen += wish;
            Type(Question, u"txtCurrentPayPeriod"_s, u"1/7/2004"_s);
            PressEnter(Question, u"txtCurrentPayPeriod"_s);
        });
        m_timer.start(10);
    }
    int Asked = 0;
    QString Offered;
    QString ActiveThen;
    QStringList WishesThen; ///< what the welcome was asked for and stands there already

private:
    QTimer m_timer;
};

QTimer &TheTutorTimer()
{
    return Find<QTimer>(Main, u"tmrAutoTutor"_s);
}

bool Tick(const QString &timer)
{
    return QMetaObject::invokeMethod(&Find<QTimer>(Main, timer), "timeout");
}

QAction &Entry(const QString &name)
{
    return Find<QAction>(Main, name);
}

QToolButton &ToolbarButton(int index)
{
    return Find<QToolButton>(Main, u"Toolbar1Button%1"_s.arg(index));
}

void PointAt(const QWidget &control)
{
    // From the status bar: a pointer that is there already does not move.
    QTest::mouseMove(control.window()->windowHandle(), control.window()->rect().bottomLeft());
    QTest::mouseMove(control.window()->windowHandle(), control.mapTo(control.window(), control.rect().center()));
    Settle();
}

/// Goes to another window of the program and comes back.
void LeaveAndReturn()
{
    DeclareToy<Toy>(u"frmElsewhere"_s);
    Show(u"frmElsewhere"_s);
    Show(Main);
}

} // namespace

class gui_frmMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Toy::Unloads = 0; }

    // The tables

    void EveryMenuHasItsEntriesInOrder()
    {
        GuiDesk desk;
        desk.StartProgram();
        QMap<QString, QList<QAction *>> expected;
        for (const MenuRow &row : MenuRows)
            expected[Text(row.Menu)] += &Entry(Text(row.Name));
        QCOMPARE(expected.size(), 10);
        QCOMPARE(Find<QMenuBar>(Main, u"menuBar"_s).actions(), expected.take(u"menuBar"_s));
        for (auto menu = expected.begin(); menu != expected.end(); ++menu)
            QCOMPARE(Entry(menu.key()).menu()->actions(), menu.value());
    }

    void EveryEntryHasItsCaptionAndShortcut()
    {
        GuiDesk desk;
        desk.StartProgram();
        for (const MenuRow &row : MenuRows) {
            const QAction &entry = Entry(Text(row.Name));
            QCOMPARE(entry.text(), Text(row.Caption));
            QCOMPARE(entry.shortcut(), QKeySequence(Text(row.Shortcut)));
            QCOMPARE(entry.isSeparator(), *row.Caption == '\0');
            QCOMPARE(entry.isCheckable(),
                     std::any_of(std::begin(OptionRows), std::end(OptionRows),
                                 [&](const auto &option) { return Text(option.Entry) == entry.objectName(); }));
        }
    }

    void EveryEntryOpensItsWindowAndShowsTheTutorsPage()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        desk.Answers += Answer::No;
        for (const MenuRow &row : MenuRows) {
            if (!*row.Window)
                continue;
            tutor.Pages.clear();
            Choose(Text(row.Name));
            QCOMPARE(ActiveWindow(), Text(row.Window));
            QCOMPARE(tutor.Pages, row.TutorPage > 0 ? QList<int>{row.TutorPage} : QList<int>());
            if (row.TutorPage > 0)
                QCOMPARE(tutor.ActiveThen, Main); // the page comes before the window
            TheWindows.Unload(Text(row.Window));
            Settle();
        }
        QCOMPARE(desk.TakeMessage().Title, u"Savings Forecast"_s);
        QVERIFY(desk.TakeBeep());
    }

    void EveryShortcutActsFromTheList()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        desk.Answers += Answer::No;
        int pressed = 0;
        for (const MenuRow &row : MenuRows) {
            if (!*row.Window || !*row.Shortcut)
                continue;
            const QKeyCombination key = QKeySequence(Text(row.Shortcut))[0];
            QTest::keyClick(&Find(Main, u"lstBudgetState"_s), key.key(), key.keyboardModifiers());
            Settle();
            QCOMPARE(ActiveWindow(), Text(row.Window));
            TheWindows.Unload(Text(row.Window));
            Settle();
            ++pressed;
        }
        QCOMPARE(pressed, 11);
        QTest::keyClick(&Find(Main, u"lstBudgetState"_s), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"forward"_s});
        QCOMPARE(desk.TakeMessage().Title, u"Savings Forecast"_s);
        QVERIFY(desk.TakeBeep());
    }

    void EveryToolbarButtonActsAsItsEntry()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        QuestionAnswerer answerer;
        desk.Answers += Answer::No;
        int index = 0;
        for (const ToolbarRow &row : ToolbarRows) {
            QToolButton &button = ToolbarButton(++index);
            QCOMPARE(button.toolTip(), Text(row.ToolTip));
            QCOMPARE(button.accessibleName(), Text(row.ToolTip));
            QVERIFY(!button.icon().isNull());
            const auto entry = std::find_if(std::begin(MenuRows), std::end(MenuRows),
                                            [&](const MenuRow &one) { return Text(one.Name) == Text(row.Entry); });
            QVERIFY(entry != std::end(MenuRows));
            tutor.Pages.clear();
            Click(Main, button.objectName());
            QCOMPARE(tutor.Pages, QList<int>{entry->TutorPage});
            if (*entry->Window) {
                QCOMPARE(ActiveWindow(), Text(entry->Window));
                TheWindows.Unload(Text(entry->Window));
                Settle();
            }
        }
        QCOMPARE(index, 16);
        QCOMPARE(answerer.Asked, 1); // button 14
        QCOMPARE(desk.TakeMessage().Title, u"Savings Forecast"_s);
        QVERIFY(desk.TakeBeep());
    }

    void TheToolbarStandsInFourRowsOfFour()
    {
        GuiDesk desk;
        desk.StartProgram();
        for (int index = 1; index <= 16; ++index) {
            const QPoint place = ToolbarButton(index).pos();
            QCOMPARE(place.x(), ToolbarButton((index - 1) % 4 + 1).x());     // the column of the first row
            QCOMPARE(place.y(), ToolbarButton((index - 1) / 4 * 4 + 1).y()); // the row of the first column
            if (index % 4 != 1)
                QVERIFY(place.x() > ToolbarButton(index - 1).x());
            if (index > 4)
                QVERIFY(place.y() > ToolbarButton(index - 4).y());
        }
    }

    void TheIconsGrowAndShrinkWithTheWindow()
    {
        GuiDesk desk;
        desk.StartProgram();
        Form &main = *TheWindows.Loaded(Main);
        const auto icon = [&](const QSize &size) {
            main.resize(size);
            Settle();
            const QSize shown = ToolbarButton(1).iconSize();
            for (int index = 2; index <= 16; ++index)
                if (ToolbarButton(index).iconSize() != shown)
                    return QSize();
            return shown;
        };
        QCOMPARE(icon(main.minimumSizeHint()), QSize(24, 24));
        QCOMPARE(icon({3000, 2000}), QSize(128, 128));
        for (const QSize &size : {QSize(900, 640), QSize(1400, 1000)}) {
            const QSize between = icon(size);
            QVERIFY(between.width() > 24 && between.width() < 128);
            QCOMPARE(between.width(), between.height());
        }
        QCOMPARE(icon(main.minimumSizeHint()), QSize(24, 24)); // what has grown does not hold the window
    }

    void OnALargeScreenTheContentKeepsTogether()
    {
        GuiDesk desk;
        desk.StartProgram();
        Form &main = *TheWindows.Loaded(Main);
        const auto spanOf = [&] { // of list and toolbar
            const auto &list = Find(Main, u"lstBudgetState"_s);
            const auto &toolbar = Find(Main, u"Toolbar1"_s);
            return QRect(list.mapTo(&main, QPoint()), list.size())
                .united(QRect(toolbar.mapTo(&main, QPoint()), toolbar.size()));
        };
        for (const QSize &size : {QSize(1920, 1040), QSize(3000, 2000)}) {
            main.resize(size);
            Settle();
            QVERIFY(qAbs(spanOf().center().x() - main.rect().center().x()) <= 1);
            QCOMPARE(spanOf().width(), 1608); // room for the largest icons
            const auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
            for (int row = 0; row < list.count(); ++row)
                QCOMPARE(list.visualItemRect(list.item(row)).height(), 56);
            QCOMPARE(Find(Main, u"staMain"_s).width(), size.width()); // which reaches from edge to edge
        }
        main.resize(1000, 640);
        Settle();
        QCOMPARE(spanOf().left(), 16);
        QCOMPARE(spanOf().right(), 1000 - 16 - 1);
    }

    void ButtonsAndStatusBarStayWhateverTheSize()
    {
        GuiDesk desk;
        desk.StartProgram();
        Form &main = *TheWindows.Loaded(Main);
        for (const QSize &size : {main.minimumSizeHint(), QSize(960, 480), QSize(1600, 1000)}) {
            main.resize(size);
            Settle();
            QCOMPARE(main.size(), size); // 1920 x 1080 at 200 per cent is as small as that
            for (const QString &name :
                 {u"cmdExit"_s, u"cmdTutor"_s, u"cmdHowDoI"_s, u"cmdGettingStarted"_s, u"staMain"_s, u"lblToolbar"_s}) {
                const QWidget &control = Find(Main, name);
                QVERIFY2(main.rect().contains(QRect(control.mapTo(&main, QPoint()), control.size())), qPrintable(name));
            }
            auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
            list.scrollToBottom();
            QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(list.count() - 1))));
        }
    }

    void HintsComeUnderThePointerAndStay()
    {
        GuiDesk desk;
        desk.StartProgram();
        QCOMPARE(TextOf(Main, u"lblToolbar"_s), QString());
        auto &hint = Find<QLabel>(Main, u"lblToolbar"_s);
        const QRect place = hint.geometry();
        int index = 0;
        for (const ToolbarRow &row : ToolbarRows) {
            PointAt(ToolbarButton(++index));
            QCOMPARE(hint.text(), Text(row.Hint));
            QCOMPARE(hint.geometry(), place); // nothing jumps
            QVERIFY(hint.heightForWidth(hint.width()) <= hint.height());
        }
        const QPoint gap = (ToolbarButton(1).geometry().topRight() + ToolbarButton(2).geometry().topLeft()) / 2;
        auto &toolbar = Find(Main, u"Toolbar1"_s);
        QVERIFY(!toolbar.childAt(gap));
        QTest::mouseMove(TheWindows.Loaded(Main)->windowHandle(), toolbar.mapTo(toolbar.window(), gap));
        Settle();
        QCOMPARE(hint.text(), Text(ToolbarRows[15].Hint));
        PointAt(Find(Main, u"lstBudgetState"_s));
        QCOMPARE(hint.text(), Text(ToolbarRows[15].Hint));
        PointAt(ToolbarButton(3));
        QCOMPARE(hint.text(), Text(ToolbarRows[2].Hint));
    }

    void AToolbarThatComesUnderAPointerAtRestLeavesTheHintAlone()
    {
        GuiDesk desk;
        desk.StartProgram();
        const QPointF middle = ToolbarButton(2).rect().center();
        QEnterEvent enters(middle, middle, ToolbarButton(2).mapToGlobal(middle));
        QCoreApplication::sendEvent(&ToolbarButton(2), &enters); // as when a window closes over it
        QCOMPARE(TextOf(Main, u"lblToolbar"_s), QString());
        PointAt(ToolbarButton(3));
        QCoreApplication::sendEvent(&ToolbarButton(2), &enters);
        QCOMPARE(TextOf(Main, u"lblToolbar"_s), Text(ToolbarRows[2].Hint));
        PointAt(ToolbarButton(2));
        QCOMPARE(TextOf(Main, u"lblToolbar"_s), Text(ToolbarRows[1].Hint));
    }

    void TheMenuLeavesTheHintAlone()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        for (const ToolbarRow &row : ToolbarRows)
            Entry(Text(row.Entry)).hover();
        QCOMPARE(TextOf(Main, u"lblToolbar"_s), QString()); // empty until the pointer comes to the toolbar
        PointAt(ToolbarButton(3));
        Entry(Text(ToolbarRows[0].Entry)).hover();
        QCOMPARE(TextOf(Main, u"lblToolbar"_s), Text(ToolbarRows[2].Hint));
    }

    void TheStateOfTheBudgetHasNineLines()
    {
        GuiDesk desk;
        desk.StartProgram();
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s),
                 (QStringList{u"Creditors: 0"_s, u"Regular Items: 0"_s, u"Extra Item Pay Periods: 0"_s,
                              u"Projects: 0"_s, u"Average Net Percentage: 90.00%"_s, u"Paycheck Amount: $1,000.00"_s,
                              u"Current Shopping List: untitled.lst"_s, u"Savings Forecast: 26 Pay Periods"_s,
                              u"Current Sales Tax: 6.00%"_s}));
    }

    void ChangesShowWithTheNextActivationAndNotBefore()
    {
        GuiDesk desk;
        desk.StartProgram();
        DeclareToy<Toy>(u"frmElsewhere"_s);
        Show(u"frmElsewhere"_s);
        State.NumberOfCreditors = 1200;
        State.NumberOfRegulars = 3;
        State.NumberOfExtraPayPeriods = 4;
        State.NumberOfProjects = 5;
        State.AverageNetPercentage = 0.8125F;
        State.PaycheckAmount = Currency::FromTenThousandths(12345050);
        State.CurrentStoreFile = u"weekly.lst"_s;
        State.ForecastPeriods = 1000;
        State.SalesTax = 0.0725F;
        Settle();
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s).first(), u"Creditors: 0"_s);
        Show(Main);
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s),
                 (QStringList{u"Creditors: 1200"_s, u"Regular Items: 3"_s, u"Extra Item Pay Periods: 4"_s,
                              u"Projects: 5"_s, u"Average Net Percentage: 81.25%"_s, u"Paycheck Amount: $1,234.51"_s,
                              u"Current Shopping List: weekly.lst"_s, u"Savings Forecast: 1000 Pay Periods"_s,
                              u"Current Sales Tax: 7.25%"_s}));
    }

    void EveryLineIsToldInFullUnderThePointer()
    {
        GuiDesk desk;
        DeclareToys();
        const QString name = u"the weekly shopping list of the whole family.lst"_s;
        desk.WriteFile(u"stores\\"_s + name, "0\r\n");
        desk.StartProgram();
        const auto tips = [] {
            const auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
            QStringList texts;
            for (int row = 0; row < list.count(); ++row)
                texts += list.item(row)->toolTip();
            return texts;
        };
        QCOMPARE(tips()[0], u"Creditors: 0"_s);
        QCOMPARE(tips(), RowsOf(Main, u"lstBudgetState"_s));
        desk.FileAnswers += name;
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(tips()[6], u"Current Shopping List: "_s + name);
        QCOMPARE(tips(), RowsOf(Main, u"lstBudgetState"_s));
    }

    void AfterComingBackTheKeysBeginAnew()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
        list.setFocus();
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down})
            QTest::keyClick(&list, key);
        QCOMPARE(list.currentRow(), 2);
        LeaveAndReturn();
        QCOMPARE(list.currentRow(), 0);
        QTest::keyClick(&list, Qt::Key_Return); // on a line that nobody has chosen since
        QCOMPARE(ActiveWindow(), Main);
        QCOMPARE(list.ListIndex(), -1);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(&list, key);
        QCOMPARE(ActiveWindow(), u"frmExtras"_s);
        Show(Main);
        QCOMPARE(list.ListIndex(), -1);
    }

    void AClickOnALineOpensItsWindowWithoutTheTutor()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        const QStringList windows{u"frmCreditors"_s,
                                  u"frmRegulars"_s,
                                  u"frmExtras"_s,
                                  u"frmProjects"_s,
                                  u"frmAverageNetPercentage"_s,
                                  u"frmEnvironmentSettings"_s,
                                  u"frmCurrentShoppingList"_s,
                                  u"frmEnvironmentSettings"_s,
                                  u"frmEnvironmentSettings"_s};
        for (int row = 0; row < windows.size(); ++row) {
            ClickRow(Main, u"lstBudgetState"_s, row);
            QCOMPARE(ActiveWindow(), windows[row]);
            TheWindows.Unload(windows[row]);
            Settle();
        }
        QCOMPARE(tutor.Pages, QList<int>());
    }

    void WithoutASelectedLineAClickOpensNothing()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
        QCOMPARE(list.ListIndex(), -1);
        QVERIFY(QMetaObject::invokeMethod(&list, "Click"));
        const QRect last = list.visualItemRect(list.item(list.count() - 1));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(last.center().x(), last.bottom() + 3));
        Settle();
        QCOMPARE(ActiveWindow(), Main);
        QCOMPARE(desk.Messages.size(), 0);
    }

    void TheCaptionsAreTheDesigns()
    {
        GuiDesk desk;
        desk.StartProgram();
        QCOMPARE(TheWindows.Loaded(Main)->windowTitle(), u"The Corvelle's Tallymere 1.0"_s);
        QCOMPARE(TextOf(Main, u"lblBudgetState"_s), u"State of the Budget"_s);
        QCOMPARE(TextOf(Main, u"lblBudgetStateSubtitle"_s), u"Click on an item for details"_s);
        QCOMPARE(TextOf(Main, u"lblToolbarTitle"_s), u"Easy Access Toolbar"_s);
        QCOMPARE(TextOf(Main, u"cmdExit"_s), u"E&xit"_s);
        QCOMPARE(TextOf(Main, u"cmdTutor"_s), u"Tutor On/Off"_s);
        QCOMPARE(TextOf(Main, u"cmdHowDoI"_s), u"How Do I?"_s);
        QCOMPARE(TextOf(Main, u"cmdGettingStarted"_s), u"Getting Started"_s);
    }

    // Status bar

    void TheStatusBarTellsThePayPeriodTheDayAndTheTime()
    {
        GuiDesk desk;
        desk.StartProgram();
        QCOMPARE(TextOf(Main, u"staMain1"_s), u"Current Pay Period: January 5, 2004"_s);
        QCOMPARE(TextOf(Main, u"staMain2"_s), u"Monday  January 5, 2004"_s);
        auto &clock = Find<QTimer>(Main, u"Timer1"_s);
        QVERIFY(clock.isActive());
        QCOMPARE(clock.interval(), 1000);
        desk.Now = QDateTime(QDate(2004, 1, 6), QTime(0, 5, 9));
        QVERIFY(Tick(u"Timer1"_s));
        QCOMPARE(TextOf(Main, u"staMain3"_s), u"12:05:09 AM"_s);
        QCOMPARE(State.ClockTime, QTime(0, 5, 9));
        QCOMPARE(TextOf(Main, u"staMain2"_s), u"Monday  January 5, 2004"_s); // until the next activation
        desk.Now = QDateTime(QDate(2004, 1, 6), QTime(14, 30, 0));
        QVERIFY(Tick(u"Timer1"_s));
        QCOMPARE(TextOf(Main, u"staMain3"_s), u"02:30:00 PM"_s);
        LeaveAndReturn();
        QCOMPARE(TextOf(Main, u"staMain2"_s), u"Tuesday  January 6, 2004"_s);
    }

    void ThePanelsKeepTheirPlacesWhateverTheySay()
    {
        GuiDesk desk;
        desk.StartProgram();
        const auto places = [] {
            Settle();
            QList<QRect> rectangles;
            for (int panel = 1; panel <= 3; ++panel)
                rectangles += Find(Main, u"staMain%1"_s.arg(panel)).geometry();
            return rectangles;
        };
        QCOMPARE(TextOf(Main, u"staMain3"_s), QString());
        const QList<QRect> before = places();
        for (const QDateTime &now : {QDateTime(QDate(2004, 9, 29), QTime(0, 0, 0)), // a Wednesday
                                     QDateTime(QDate(2005, 5, 1), QTime(11, 11, 11))}) {
            desk.Now = now;
            QVERIFY(Tick(u"Timer1"_s));
            State.CurrentPayPeriod = Format(now.date(), DateFormat::Dashes);
            LeaveAndReturn();
            QCOMPARE(places(), before);
            for (int panel = 1; panel <= 3; ++panel) {
                const auto &label = Find<QLabel>(Main, u"staMain%1"_s.arg(panel));
                QVERIFY2(label.sizeHint().width() <= label.width(), qPrintable(label.text()));
                QVERIFY2(label.parentWidget()->rect().contains(label.geometry()), qPrintable(label.text()));
            }
        }
    }

    void TheClockGoesOnUnderTheQuestion()
    {
        GuiDesk desk;
        bool went = false;
        bool stood = false;
        QTimer::singleShot(0, [&] {
            stood = IsShown(Question) && TheWindows.Loaded(Question)->isModal();
            desk.Now = QDateTime(QDate(2004, 1, 5), QTime(14, 5, 9));
            went = QTest::qWaitFor([] { return TextOf(Main, u"staMain3"_s) == u"02:05:09 PM"_s; }, 3000);
            stood = stood && IsShown(Question);
            PressEnter(Question, u"txtCurrentPayPeriod"_s);
        });
        Show(Main);
        QVERIFY(stood);
        QVERIFY(went);
        QVERIFY(!IsShown(Question));
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
    }

    // Options

    void AnOptionOf5AtTheStartIsNeitherOnNorOff()
    {
        GuiDesk desk;
        for (const OptionRow &row : OptionRows)
            desk.Options[Text(row.Key)] = u"5"_s;
        DeclareToys();
        desk.StartProgram();
        for (const OptionRow &row : OptionRows)
            QVERIFY(!Entry(Text(row.Entry)).isChecked());
        QVERIFY(!TheTutorTimer().isActive());
        // What nobody has marked yet is marked by choosing it.
        Choose(u"mnuTallymereTutor"_s);
        QCOMPARE(desk.TakeMessage().Text, Text(OptionRows[1].TurnedOn));
        QCOMPARE(desk.TakeOption(u"show tallymere tutor"_s), u"1"_s);
        QVERIFY(TheTutorTimer().isActive());
    }

    void AnActivationReadsTheOptions_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("on");
        for (int option = 0; option < 3; ++option) {
            const char *name = OptionRows[option].Key;
            QTest::addRow("%s missing counts as on", name) << option << u"0"_s << QString() << true;
            QTest::addRow("%s 1", name) << option << u"0"_s << u"1"_s << true;
            QTest::addRow("%s 0", name) << option << u"1"_s << u"0"_s << false;
            QTest::addRow("%s 5 leaves on", name) << option << u"1"_s << u"5"_s << true;
            QTest::addRow("%s 5 leaves off", name) << option << u"0"_s << u"5"_s << false;
        }
    }
    void AnActivationReadsTheOptions()
    {
        QFETCH(int, option);
        QFETCH(QString, before);
        QFETCH(QString, value);
        QFETCH(bool, on);
        const OptionRow &row = OptionRows[option];
        GuiDesk desk;
        desk.Options[Text(row.Key)] = before;
        desk.StartProgram();
        QCOMPARE(Entry(Text(row.Entry)).isChecked(), before == u"1"_s);
        if (value.isNull())
            desk.Options.remove(Text(row.Key));
        else
            desk.Options[Text(row.Key)] = value;
        LeaveAndReturn();
        QCOMPARE(Entry(Text(row.Entry)).isChecked(), on);
        if (Text(row.Entry) == u"mnuTallymereTutor"_s)
            QCOMPARE(TheTutorTimer().isActive(), on);
        else
            QVERIFY(TheTutorTimer().isActive()); // only its own option concerns the tutor
    }

    void AnOptionSpelledInOtherLettersIsTheSame()
    {
        GuiDesk desk;
        desk.StartProgram();
        QVERIFY(Entry(u"mnuWelcomeScreen"_s).isChecked());
        TheDesk.SaveSetting(u"Show Welcome at Startup"_s, u"0"_s); // as the welcome window spells it
        QCOMPARE(desk.TakeOption(u"show welcome at startup"_s), u"0"_s);
        LeaveAndReturn();
        QVERIFY(!Entry(u"mnuWelcomeScreen"_s).isChecked());
    }

    void AnOptionEntryFlipsStoresAndConfirms()
    {
        for (const OptionRow &row : OptionRows) {
            GuiDesk desk;
            DeclareToys();
            desk.StartProgram();
            QVERIFY(Entry(Text(row.Entry)).isChecked());
            Choose(Text(row.Entry));
            QCOMPARE(desk.TakeMessage(), (Message{Text(row.TurnedOff), Text(row.Title), Icon::Information}));
            QCOMPARE(desk.TakeOption(Text(row.Key)), u"0"_s);
            QVERIFY(!Entry(Text(row.Entry)).isChecked());
            Choose(Text(row.Entry));
            QCOMPARE(desk.TakeMessage(), (Message{Text(row.TurnedOn), Text(row.Title), Icon::Information}));
            QCOMPARE(desk.TakeOption(Text(row.Key)), u"1"_s);
            QVERIFY(Entry(Text(row.Entry)).isChecked());
        }
    }

    void AnOptionIsStoredBeforeItsBox()
    {
        for (const OptionRow &row : OptionRows) {
            GuiDesk desk;
            DeclareToys();
            desk.StartProgram();
            const bool isTutor = Text(row.Entry) == u"mnuTallymereTutor"_s;
            QString stored;
            bool runs = false;
            bool loaded = false;
            TheDesk.ShowMessage = [&, show = TheDesk.ShowMessage](const Message &message) {
                stored = desk.TakeOption(Text(row.Key));
                runs = TheTutorTimer().isActive();
                loaded = TheWindows.Loaded(u"frmTallymereTutor"_s);
                return show(message);
            };
            TheWindows.Touch(u"frmTallymereTutor"_s);
            for (const bool on : {false, true}) {
                Choose(Text(row.Entry));
                QCOMPARE(desk.TakeMessage().Title, Text(row.Title));
                QCOMPARE(stored, on ? u"1"_s : u"0"_s);
                QCOMPARE(runs, on || !isTutor);
                QCOMPARE(loaded, !isTutor);
            }
        }
    }

    void TheMarkIsWhatFlipsAndNotTheStoredNumber()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        desk.Options[u"show tips at startup"_s] = u"5"_s;
        LeaveAndReturn();
        QVERIFY(Entry(u"mnuTipOfTheDay"_s).isChecked());
        Choose(u"mnuTipOfTheDay"_s);
        QCOMPARE(desk.TakeMessage().Text, Text(OptionRows[0].TurnedOff));
        QCOMPARE(desk.TakeOption(u"show tips at startup"_s), u"0"_s);
    }

    void TheTutorButtonActsAsItsEntry()
    {
        GuiDesk desk;
        desk.StartProgram();
        QVERIFY(TheWindows.Loaded(u"frmTallymereTutor"_s));
        Click(Main, u"cmdTutor"_s);
        QCOMPARE(desk.TakeMessage().Text, Text(OptionRows[1].TurnedOff));
        QVERIFY(!TheTutorTimer().isActive());
        QVERIFY(!Entry(u"mnuTallymereTutor"_s).isChecked());
        QVERIFY(!TheWindows.Loaded(u"frmTallymereTutor"_s));
        Click(Main, u"cmdTutor"_s);
        QCOMPARE(desk.TakeMessage().Text, Text(OptionRows[1].TurnedOn));
        QCOMPARE(desk.TakeOption(u"show tallymere tutor"_s), u"1"_s);
        QVERIFY(TheTutorTimer().isActive());
        QVERIFY(Entry(u"mnuTallymereTutor"_s).isChecked());
        QVERIFY(!TheWindows.Loaded(u"frmTallymereTutor"_s)); // it comes when the timer strikes
    }

    // The tutor's timer

    void TheTutorsTimerWalksThroughTheFirst24Pages()
    {
        GuiDesk desk;
        desk.StartProgram();
        QCOMPARE(TheTutorTimer().interval(), 10000);
        TutorPages tutor;
        QList<int> expected;
        for (int page = 1; page <= 24; ++page)
            expected += page;
        expected += {1, 2};
        for (int strike = 0; strike < 26; ++strike)
            QVERIFY(Tick(u"tmrAutoTutor"_s));
        QCOMPARE(tutor.Pages, expected);
    }

    void AWorkWindowRestsTheTimerUntilItIsUnloaded()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        Choose(u"mnuFileCreditors"_s);
        QVERIFY(!TheTutorTimer().isActive());
        QCOMPARE(tutor.Pages, QList<int>{3});
        TheWindows.Unload(u"frmCreditors"_s);
        Settle();
        QVERIFY(TheTutorTimer().isActive());
    }

    void ReturningToTheMainWindowStartsTheTimerAlthoughAWorkWindowIsOpen()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        Choose(u"mnuFileCreditors"_s);
        QVERIFY(!TheTutorTimer().isActive());
        Show(Main);
        QVERIFY(IsShown(u"frmCreditors"_s));
        QVERIFY(TheTutorTimer().isActive());
    }

    void ARunningTimerRunsOnWhenTheUserComesBack()
    {
        GuiDesk desk;
        desk.StartProgram();
        TheTutorTimer().setTimerType(Qt::PreciseTimer);
        TheTutorTimer().start();
        QTest::qWait(60);
        LeaveAndReturn();
        QVERIFY(TheTutorTimer().isActive());
        QVERIFY(TheTutorTimer().remainingTime() <= TheTutorTimer().interval() - 50);
    }

    void TheTutorGoesOnWhereItStopped()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        const auto strike = [&] {
            tutor.Pages.clear();
            QVERIFY(TheTutorTimer().isActive());
            QVERIFY(Tick(u"tmrAutoTutor"_s));
        };
        strike();
        strike();
        QCOMPARE(tutor.Pages, QList<int>{2});
        Choose(u"mnuFileCreditors"_s); // its page is shown, and it rests the timer
        TheWindows.Unload(u"frmCreditors"_s);
        Settle();
        strike();
        QCOMPARE(tutor.Pages, QList<int>{3});
        LeaveAndReturn();
        strike();
        QCOMPARE(tutor.Pages, QList<int>{4});
        for (int flip = 0; flip < 2; ++flip) { // off and on again
            Choose(u"mnuTallymereTutor"_s);
            desk.TakeMessage();
            desk.TakeOption(u"show tallymere tutor"_s);
        }
        strike();
        QCOMPARE(tutor.Pages, QList<int>{5});
        desk.Options[u"show tallymere tutor"_s] = u"0"_s;
        LeaveAndReturn();
        QVERIFY(!TheTutorTimer().isActive());
        desk.Options[u"show tallymere tutor"_s] = u"1"_s;
        LeaveAndReturn();
        strike();
        QCOMPARE(tutor.Pages, QList<int>{6});
    }

    void ThePageComesBeforeWhatTheEntryAsks()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        QStringList order;
        const auto note = [&](const QString &what) {
            order += u"%1 after page %2"_s.arg(what).arg(tutor.Pages.isEmpty() ? 0 : tutor.Pages.last());
            tutor.Pages.clear();
        };
        TheDesk.AskFile = [&](const FileQuestion &) {
            note(u"dialog"_s);
            return QString();
        };
        TheDesk.BringCalculatorForward = [&] { note(u"calculator"_s); };
        Choose(u"mnuFinanceMathCalculator"_s);
        QTimer::singleShot(0, [&] {
            QVERIFY(IsShown(Question));
            note(u"question"_s);
            CloseByFrame(Question);
        });
        // The question rests the timer from its load on, after which no page would come.
        Choose(u"mnuOptionsSetCurrentPayPeriod"_s);
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(order,
                 (QStringList{u"calculator after page 10"_s, u"question after page 22"_s, u"dialog after page 11"_s}));
        QCOMPARE(tutor.ActiveThen, Main);
        QVERIFY(tutor.Pages.isEmpty());
    }

    void WithoutTheTutorAStoreListShowsNoPage()
    {
        GuiDesk desk;
        DeclareToys();
        desk.Options[u"show tallymere tutor"_s] = u"0"_s;
        desk.StartProgram();
        TutorPages tutor;
        desk.FileAnswers += QString();
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(desk.FileQuestions.size(), 1);
        QCOMPARE(tutor.Pages, QList<int>());
    }

    void WhileTheTimerRestsNoPageIsShown()
    {
        GuiDesk desk;
        DeclareToys();
        desk.Options[u"show tallymere tutor"_s] = u"0"_s;
        desk.StartProgram();
        TutorPages tutor;
        QuestionAnswerer answerer;
        desk.Answers += Answer::No;
        for (const MenuRow &row : MenuRows)
            if (row.TutorPage > 0 && Text(row.Name) != u"mnuShopperOpenStoreList"_s &&
                Entry(Text(row.Name)).isEnabled())
                Choose(Text(row.Name));
        QCOMPARE(tutor.Pages, QList<int>());
        QCOMPARE(desk.TakeMessage().Title, u"Savings Forecast"_s);
        QVERIFY(desk.TakeBeep());
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"forward"_s});
        QVERIFY(!desk.TakePrinted().Lines.isEmpty()); // the shopping list
    }

    void AnEntryChosenTwiceShowsOneWindowAndThePageAgain()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        TutorPages tutor;
        Choose(u"mnuFileExtras"_s);
        const Form *first = TheWindows.Loaded(u"frmExtras"_s);
        Show(Main);
        Choose(u"mnuFileExtras"_s);
        QCOMPARE(TheWindows.Loaded(u"frmExtras"_s), first);
        QCOMPARE(ActiveWindow(), u"frmExtras"_s);
        QCOMPARE(tutor.Pages, (QList<int>{6, 6}));
    }

    void TheSavingsForecastAsksWhetherToPrint()
    {
        for (const Answer answer : {Answer::Yes, Answer::No}) {
            GuiDesk desk;
            DeclareToys();
            desk.StartProgram();
            desk.Answers += answer;
            Choose(u"mnuBudgetSavingsForecast"_s);
            QVERIFY(desk.TakeBeep());
            QCOMPARE(desk.TakeMessage(), (Message{u"Do you wish to print the Savings Forecast?"_s,
                                                  u"Savings Forecast"_s, Icon::Question, Buttons::YesNo}));
            QCOMPARE(State.PrintSavingsForecast, answer == Answer::Yes);
            QCOMPARE(ActiveWindow(), u"frmSavingsForecast"_s);
        }
    }

    void TheCurrentPayPeriodIsAskedModally()
    {
        GuiDesk desk;
        desk.StartProgram();
        TutorPages tutor;
        QString date;
        QTimer::singleShot(0, [&] {
            date = TextOf(Question, u"lblDate"_s);
            QCOMPARE(TheWindows.Loaded(Question)->windowModality(), Qt::ApplicationModal);
            Type(Question, u"txtCurrentPayPeriod"_s, u"2/1/2004"_s);
            Click(Question, u"cmdExit"_s);
        });
        Choose(u"mnuOptionsSetCurrentPayPeriod"_s);
        QCOMPARE(date, u"Monday  January 5, 2004"_s);
        QCOMPARE(tutor.Pages, QList<int>{22});
        QVERIFY(!IsShown(Question));
        QCOMPARE(TextOf(Main, u"staMain1"_s), u"Current Pay Period: February 1, 2004"_s);
        QVERIFY(TheTutorTimer().isActive());
    }

    void TheCalculatorComesForwardOrIsStarted_data()
    {
        QTest::addColumn<int>("forwardError");
        QTest::addColumn<int>("startError");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("it runs") << 0 << 0 << QStringList{u"forward"_s};
        QTest::newRow("it does not run") << 5 << 0 << QStringList{u"forward"_s, u"start"_s};
        QTest::newRow("it has been removed") << 5 << 53 << QStringList{u"forward"_s, u"start"_s};
        QTest::newRow("another error is silent") << 70 << 0 << QStringList{u"forward"_s};
    }
    void TheCalculatorComesForwardOrIsStarted()
    {
        QFETCH(int, forwardError);
        QFETCH(int, startError);
        QFETCH(QStringList, calls);
        GuiDesk desk;
        desk.StartProgram();
        desk.BringForwardError = forwardError;
        desk.StartCalculatorError = startError;
        TutorPages tutor;
        Choose(u"mnuFinanceMathCalculator"_s);
        QCOMPARE(desk.TakeCalculatorCalls(), calls);
        QCOMPARE(tutor.Pages, QList<int>{10});
        QVERIFY(!desk.Ended);
    }

    void AMissingCalculatorGreysItsEntryWithoutAWord()
    {
        GuiDesk desk;
        desk.StartCalculatorError = 53;
        desk.StartProgram();
        QVERIFY(!Entry(u"mnuFinanceMathCalculator"_s).isEnabled());
    }

    void AStoreListIsOpened_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("name");
        QTest::newRow("slashes") << u"/home/family/lists/weekly.lst"_s << u"weekly.lst"_s;
        QTest::newRow("backslashes") << u"C:\\family\\stores\\weekly.lst"_s << u"weekly.lst"_s;
        QTest::newRow("both") << u"C:\\family/stores\\weekly.lst"_s << u"weekly.lst"_s;
        QTest::newRow("bare") << u"weekly.lst"_s << u"weekly.lst"_s;
        QTest::newRow("cancelled") << QString() << u"untitled.lst"_s;
        QTest::newRow("cancelled, the old name with folders") << QString() << u"weekly.lst"_s;
    }
    void AStoreListIsOpened()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, name);
        GuiDesk desk;
        DeclareToys();
        desk.WriteFile(u"stores\\weekly.lst"_s, "0\r\n");
        desk.StartProgram();
        if (chosen.isEmpty() && name != State.CurrentStoreFile)
            State.CurrentStoreFile = u"old\\stores\\"_s + name;
        TutorPages tutor;
        State.NumberOfCurrentItems = 5; // read again from the file in any case
        desk.FileAnswers += chosen;
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(desk.FileQuestions, (QList<FileQuestion>{{FileQuestion::Open, u"Store List Files (*.lst)|*.lst"_s,
                                                           desk.Folder() + u"\\stores\\"_s, QString()}}));
        QCOMPARE(State.CurrentStoreFile, name);
        QCOMPARE(State.NumberOfCurrentItems, 0);
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s)[6], u"Current Shopping List: "_s + name);
        QCOMPARE(TextOf(u"frmEnvironmentSettings"_s, u"txtStoreFile"_s), name);
        QVERIFY(!IsShown(u"frmEnvironmentSettings"_s)); // loaded unseen
        QCOMPARE(tutor.Pages, QList<int>{11});
        QCOMPARE(ActiveWindow(), Main);
    }

    void AStoreListWithAQuoteIsNotOpened()
    {
        GuiDesk desk;
        DeclareToys();
        desk.WriteFile(u"stores\\weekly.lst"_s, "0\r\n");
        desk.StartProgram();
        desk.FileAnswers = {desk.Path(u"stores\\our \"best\" list.lst"_s), u"/ho\"me/weekly.lst"_s};
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"The name of a list cannot have a quotation mark in it"_s,
                                              u"Open Store File"_s, Icon::Warning}));
        QCOMPARE(desk.FileQuestions.size(), 2); // asked again; a folder's name does not matter
        QCOMPARE(State.CurrentStoreFile, u"weekly.lst"_s);
    }

    // The settings window rests the tutor's timer like every window that is loaded, seen or not.
    void OpeningAStoreListLoadsTheSettingsUnseen_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("name");
        QTest::newRow("chosen") << u"weekly.lst"_s << u"weekly.lst"_s;
        QTest::newRow("cancelled") << QString() << u"untitled.lst"_s;
    }
    void OpeningAStoreListLoadsTheSettingsUnseen()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, name);
        const QString settings = u"frmEnvironmentSettings"_s;
        GuiDesk desk;
        desk.WriteFile(u"stores\\weekly.lst"_s, "0\r\n");
        desk.StartProgram();
        QVERIFY(TheTutorTimer().isActive());
        QVERIFY(!TheWindows.Loaded(settings));
        desk.FileAnswers += chosen;
        Choose(u"mnuShopperOpenStoreList"_s);
        QVERIFY(TheWindows.Loaded(settings));
        QVERIFY(!IsShown(settings));
        QCOMPARE(TextOf(settings, u"txtStoreFile"_s), name);
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(!TheTutorTimer().isActive());
        LeaveAndReturn();
        QVERIFY(TheTutorTimer().isActive());
        QVERIFY(TheWindows.Loaded(settings));
        Show(settings); // the instance that was loaded
        QCOMPARE(TextOf(settings, u"txtStoreFile"_s), name);
    }

    void AnErrorWhileAStoreListIsOpenedIsTold()
    {
        GuiDesk desk;
        DeclareToys();
        DeclareToy<DamagedToy>(u"frmEnvironmentSettings"_s);
        desk.StartProgram();
        desk.FileAnswers += u"weekly.lst"_s;
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 76: Path not found"_s, u"Open Store File"_s, Icon::Stop}));
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s)[6], u"Current Shopping List: untitled.lst"_s);
        QVERIFY(!desk.Ended);
    }

    void SearchingForHelpOpensTheHelpFile()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuHelpSearch"_s);
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{desk.Folder() + u"\\HELP\\budget help.hlp"_s, 0}));
    }

    void HowDoIAndGettingStartedHaveButtons()
    {
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        Click(Main, u"cmdHowDoI"_s);
        QCOMPARE(ActiveWindow(), u"frmHowDoI"_s);
        Show(Main);
        Click(Main, u"cmdGettingStarted"_s);
        QMenu *menu = Entry(u"mnuGettingStarted"_s).menu();
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->pos(), QCursor::pos());
        menu->hide();
    }

    void NothingIsGrey()
    {
        GuiDesk desk;
        desk.StartProgram();
        for (const MenuRow &row : MenuRows)
            QVERIFY2(Entry(Text(row.Name)).isEnabled() || Entry(Text(row.Name)).isSeparator(), row.Name);
        for (int index = 1; index <= 16; ++index)
            QVERIFY(ToolbarButton(index).isEnabled());
        for (const auto &button : {u"cmdExit"_s, u"cmdTutor"_s, u"cmdHowDoI"_s, u"cmdGettingStarted"_s})
            QVERIFY2(IsEnabled(Main, button), qPrintable(button));
        const auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
        for (int line = 0; line < list.count(); ++line)
            QVERIFY(list.item(line)->flags() & Qt::ItemIsEnabled);
    }

    // The start

    void TheStartGoesFromTheSplashToTheQuestion()
    {
        GuiDesk desk;
        desk.Options[u"show tips at startup"_s] = u"0"_s;
        QuestionAnswerer answerer;
        Show(u"frmSplash"_s);
        QCOMPARE(desk.TakeHourglass(), QList<bool>());
        QVERIFY(!TheWindows.Loaded(Main));
        Click(u"frmSplash"_s, u"cmdContinue"_s);
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false}));
        QVERIFY(!TheWindows.Loaded(u"frmSplash"_s));
        QTRY_COMPARE(answerer.Asked, 1);
        QCOMPARE(answerer.Offered, u"January 5, 2004"_s);
        QCOMPARE(answerer.ActiveThen, Question);
        QTRY_COMPARE(ActiveWindow(), Main);
        QCOMPARE(State.CurrentPayPeriod, u"1/7/2004"_s);
        QCOMPARE(TextOf(Main, u"staMain1"_s), u"Current Pay Period: January 7, 2004"_s);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
        QVERIFY(!State.InitializingVariables);
        QVERIFY(TheTutorTimer().isActive());
        LeaveAndReturn();
        QTest::qWait(50);
        QCOMPARE(answerer.Asked, 1); // once in a run
    }

    void TheWelcomesWishComesBeforeTheQuestion_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("window");
        QTest::newRow("level 0") << 0 << u"frmGettingStarted"_s;
        QTest::newRow("level 1") << 1 << u"frmHowDoI"_s;
        QTest::newRow("level 2") << 2 << QString();
        QTest::newRow("level 3") << 3 << QString();
    }
    void TheWelcomesWishComesBeforeTheQuestion()
    {
        QFETCH(int, level);
        QFETCH(QString, window);
        GuiDesk desk;
        DeclareToys();
        QuestionAnswerer answerer;
        State.WelcomeLevelPending = true;
        State.WelcomeLevel = level;
        Show(Main);
        QTRY_COMPARE(answerer.Asked, 1);
        QVERIFY(!State.WelcomeLevelPending);
        QCOMPARE(answerer.WishesThen, window.isNull() ? QStringList() : QStringList{window});
        QCOMPARE(answerer.ActiveThen, Question);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
        for (const QString &name : {u"frmGettingStarted"_s, u"frmHowDoI"_s})
            QCOMPARE(IsShown(name), name == window);
        TheWindows.Unload(window);
        LeaveAndReturn();
        QVERIFY(!IsShown(window)); // the wish is fulfilled once
    }

    void TheQuestionGoesAlongToWhereTheWindowManagerPutsTheMainWindow()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"0"_s; // or the question would keep off its page
        QRect main;
        QRect question;
        QTimer::singleShot(0, [&] {
            TheWindows.Loaded(Main)->move(210, 130); // as a window manager does once the window is on the screen
            Settle();
            main = TheWindows.Loaded(Main)->frameGeometry();
            question = TheWindows.Loaded(Question)->frameGeometry();
            CloseByFrame(Question);
        });
        Show(Main);
        QCOMPARE(main.topLeft(), QPoint(210, 130));
        QVERIFY((question.center() - main.center()).manhattanLength() <= 2);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
    }

    // In the middle of the screen's height; where both do not fit, in its upper left corner.
    void TheMainWindowStandsLeftOfTheTutors_data()
    {
        QTest::addColumn<bool>("fits");
        QTest::newRow("side by side") << true;
        QTest::newRow("one over the other") << false;
    }
    void TheMainWindowStandsLeftOfTheTutors()
    {
        static int place = 0;
        class TutorToy : public Form
        {
        public:
            TutorToy() { move(place, 40); }
        };
        QFETCH(bool, fits);
        place = fits ? 1500 : 300;
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"0"_s; // it is loaded for its place also when it is off
        DeclareToy<TutorToy>(u"frmTallymereTutor"_s);
        desk.StartProgram();
        const Form &main = *TheWindows.Loaded(Main);
        QVERIFY(TheWindows.Loaded(u"frmTallymereTutor"_s));
        QVERIFY(!IsShown(u"frmTallymereTutor"_s));
        const QRect room = main.screen()->availableGeometry();
        const int spare = room.height() - 40 - main.height(); // its title bar is not there yet
        QCOMPARE(main.x(), fits ? 1500 - main.width() : room.left());
        QCOMPARE(main.y(), room.top() + (fits ? qMax(0, spare / 2) : 0));
    }

    void ADamagedStartIsToldAndTheMainWindowOpens_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("calculator");
        QTest::newRow("short") << QByteArray("26\r\n1000\r\n") << u"Error 62: Input past end of file"_s << true;
        QTest::newRow("empty") << QByteArray("") << u"Error 62: Input past end of file"_s << true;
        QTest::newRow("missing") << QByteArray() << u"Error 52: Bad file name or number"_s << false;
    }
    void ADamagedStartIsToldAndTheMainWindowOpens()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, text);
        QFETCH(bool, calculator);
        GuiDesk desk;
        if (settings.isNull())
            desk.RemoveFile(u"environm.ini"_s);
        else
            desk.WriteFile(u"environm.ini"_s, settings);
        QuestionAnswerer answerer;
        Show(Main);
        QTRY_COMPARE(answerer.Asked, 1);
        QCOMPARE(answerer.Offered, QString()); // not even today is known
        QCOMPARE(desk.TakeMessage(), (Message{text, u"Initialize Variables"_s, Icon::Stop}));
        QTRY_COMPARE(ActiveWindow(), Main);
        QCOMPARE(TextOf(Main, u"staMain1"_s), u"Current Pay Period: January 7, 2004"_s);
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s).size(), 9);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList());
        QCOMPARE(Entry(u"mnuFinanceMathCalculator"_s).isEnabled(), calculator);
        QVERIFY(State.InitializingVariables);
    }

    void AMissingTutorFileGreysTheCalculatorAndLoadsTheRest()
    {
        GuiDesk desk;
        desk.RemoveFile(u"help\\Instruction.txt"_s);
        desk.WriteFile(u"creditor.txt"_s, "1\r\n1\r\n\"Rent\"\r\n800\r\n");
        desk.StartProgram();
        QVERIFY(!Entry(u"mnuFinanceMathCalculator"_s).isEnabled());
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s).first(), u"Creditors: 1"_s);
    }

    // The ways out

    void EveryWayOutSavesClosesTheCalculatorAndEnds_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("the button") << 0;
        QTest::newRow("the menu") << 1;
        QTest::newRow("the close box") << 2;
    }
    void EveryWayOutSavesClosesTheCalculatorAndEnds()
    {
        QFETCH(int, way);
        GuiDesk desk;
        DeclareToys();
        desk.StartProgram();
        Choose(u"mnuFileExtras"_s); // it gets no unload event
        Show(Main);
        State.PaycheckAmount = Currency::FromTenThousandths(12345000);
        QStringList order;
        QByteArray saved;
        TheDesk.CloseCalculator = [&] {
            order += u"calculator closed"_s;
            saved = desk.ReadFile(u"environm.ini"_s);
            RaiseError(RuntimeError::InvalidProcedureCall); // it was closed by hand: nobody hears of that
        };
        TheDesk.EndProgram = [&] { order += u"ended"_s; };
        if (way == 0)
            Click(Main, u"cmdExit"_s);
        else if (way == 1)
            Choose(u"mnuFileExit"_s);
        else
            CloseByFrame(Main);
        QCOMPARE(order, (QStringList{u"calculator closed"_s, u"ended"_s}));
        QCOMPARE(saved, QByteArray("26\r\n1234.5\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n"));
        QCOMPARE(Toy::Unloads, 0);
    }
};

REGISTER_TEST(gui_frmMain)
#include "gui_frmMain.moc"
