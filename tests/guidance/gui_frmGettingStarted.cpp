// The guide: every panel with its words, tests and ways on; the budget from the first question to the saved profile;
// and the routes that go through the real work windows and come back.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/GuidedSetup.h"
#include "foundation/Tutor.h"
#include "guidance/frmGettingStarted.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTextEdit>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Guide = u"frmGettingStarted"_s;
const QString Main = u"frmMain"_s;
const QString Master = u"frmMasterShoppingList"_s;
const QString CurrentList = u"frmCurrentShoppingList"_s;
const QString PayOff = u"frmPayOff"_s;
const QString Tutor = u"frmTallymereTutor"_s;
const QString DatesWindow = u"frmSemiMonthlyPayInfo"_s;
const QString MonthEndWindow = u"frmMonthlyPaymentOption"_s;
const QString NotNumeric = u"Please enter a numeric value in the textbox"_s;
const QString UnknownError =
    u"An unknown error occured. This may be due to an invalid entry. If you need help press F1 for assistance on this "
    u"page. On the main menu click on Help->Search for Help On... or Help->How Do I? or click on any of the help icons "
    u"on the bottom right of the main window."_s;
const QString DesignRegularsPrompt = u"For each regular item, Tallymere needs to know their name, and monthly amount. "
                                     u"Click Next to proceed or Cancel to exit Budget Setup."_s;
const QStringList DataFiles{u"environm.ini"_s, u"creditor.txt"_s, u"regulars.txt"_s,        u"extra.txt"_s,
                            u"projects.txt"_s, u"mastshop.txt"_s, u"stores\\untitled.lst"_s};

Message Warned(const QString &text)
{
    return {text, u"Budget Setup"_s, Icon::Warning, Buttons::Ok, 0};
}

QString FrontPanel()
{
    return Find<QStackedWidget>(Guide, u"stkPanels"_s).currentWidget()->objectName();
}

QString BudgetPanel(int step)
{
    return u"pnlStartBudget%1"_s.arg(step);
}

QString SelectedText(const QString &field)
{
    return Find<QLineEdit>(Guide, field).selectedText();
}

/// The selected option of a group of four.
int Selected(const QString &group)
{
    int selected = -1;
    for (int i = 0; i < 4; ++i)
        if (Find<QRadioButton>(Guide, group + QString::number(i)).isChecked())
            selected = selected < 0 ? i : 99;
    return selected;
}

/// Does what shows a modal window and, while it stands there, the steps in it; it is closed afterwards.
/// Returns whether it stood there as the active window.
bool Meanwhile(const QString &modal, const std::function<void()> &act, const std::function<void()> &steps = {})
{
    bool shown = false;
    QTimer::singleShot(0, qApp, [&] {
        shown = IsShown(modal) && ActiveWindow() == modal && TheWindows.Loaded(modal)->isModal();
        if (shown && steps)
            steps();
        TheWindows.Unload(modal);
    });
    act();
    Settle();
    return shown;
}

void Begin(GuiDesk &desk, const QString &entry = u"mnuStartBudget"_s)
{
    desk.StartProgram();
    Choose(entry);
}

void Next(int step)
{
    Click(Guide, step == 11 ? u"cmdSaveBS11"_s : u"cmdNextBS%1"_s.arg(step));
}

void EnterIncome(const QString &amount, int frequency = 0)
{
    Type(Guide, u"txtAverageTakeHomePay"_s, amount);
    Click(Guide, u"optPayFrequencyWE%1"_s.arg(frequency));
    Next(2);
}

void EnterCreditor(const QString &dueDate, const QString &amount, const QString &name)
{
    Type(Guide, u"txtCreditorDueDate"_s, dueDate);
    Type(Guide, u"txtCreditorAmount"_s, amount);
    Type(Guide, u"txtCreditor"_s, name);
    Next(6);
}

void EnterRegular(const QString &amount, const QString &item)
{
    Type(Guide, u"txtRegularItemAmount"_s, amount);
    Type(Guide, u"txtRegularItem"_s, item);
    Next(8);
}

/// A family of two incomes, two creditors and one regular item, biweekly, up to the panel of a step.
void WalkTo(int step)
{
    const std::function<void()> steps[] = {
        [] {
            Type(Guide, u"txtNumberOfIncomes"_s, u"2"_s);
            Next(1);
        },
        [] {
            EnterIncome(u"300"_s, 0);
            EnterIncome(u"$1,000.00"_s, 3);
        },
        [] {
            Click(Guide, u"optPayFrequency1"_s);
            Next(3);
        },
        [] { Next(4); },
        [] {
            Type(Guide, u"txtNumberOfCreditors"_s, u"2"_s);
            Next(5);
        },
        [] {
            EnterCreditor(u"15"_s, u"650"_s, u"Rent"_s);
            EnterCreditor(u"45"_s, u"$42.50"_s, u"Phone"_s);
        },
        [] {
            Type(Guide, u"txtNumberOfRegularItems"_s, u"1"_s);
            Next(7);
        },
        [] { EnterRegular(u"120"_s, u"Food"_s); },
        [] { Next(9); },
        [] { Next(10); },
        [] { Next(11); },
    };
    for (int done = 1; done < step; ++done) {
        if (FrontPanel() != BudgetPanel(done))
            Fail(u"%1 is in front and not step %2"_s.arg(FrontPanel()).arg(done), LastAct());
        steps[done - 1]();
    }
}

QMap<QString, QByteArray> FilesOf(const GuiDesk &desk)
{
    QMap<QString, QByteArray> files;
    for (const QString &name : DataFiles)
        files[name] = desk.ReadFile(name);
    return files;
}

/// The key goes to the control that has the focus.
void Press(Qt::Key key)
{
    QTest::keyClick(TheWindows.Active()->FocusControl(), key);
    Settle();
}

void TypeHere(const QString &text)
{
    QTest::keyClicks(TheWindows.Active()->FocusControl(), text);
    Settle();
}

/// Which windows the save closes, of all but the guide and the main window.
constexpr std::pair<const char *, bool> ClosedBySave[] = {
    {"frmAbout", false},
    {"frmAddItem", false},
    {"frmAmortization", false},
    {"frmAverageNetPercentage", true},
    {"frmBudget", true},
    {"frmCalculateWages", true},
    {"frmCreditorInfo", false},
    {"frmCreditors", true},
    {"frmCurrentShoppingList", true},
    {"frmEnvironmentSettings", true},
    {"frmExtras", true},
    {"frmHowDoI", false},
    {"frmInput", false},
    {"frmInterestRateCalculator", false},
    {"frmMasterShoppingList", true},
    {"frmMonthlyOverhead", true},
    {"frmMonthlyPaymentOption", false},
    {"frmPayOff", false},
    {"frmPaymentCalculator", false},
    {"frmPrinter", false},
    {"frmProjects", true},
    {"frmRegulars", true},
    {"frmSavings", false},
    {"frmSavingsForecast", true},
    {"frmScanPayPeriods", true},
    {"frmSelectMonth", false},
    {"frmSemiMonthlyPayInfo", false},
    {"frmSetCurrentPayPeriod", false},
    {"frmSplash", false},
    {"frmTallymereTutor", false},
    {"frmTip", false},
    {"frmTotalHours", false},
    {"frmViewProject", true},
    {"frmWelcome", false},
};

/// The pages that the tutor was asked for.
class PagesWanted
{
public:
    QList<int> Take()
    {
        QList<int> pages;
        for (const QList<QVariant> &call : std::exchange(static_cast<QList<QList<QVariant>> &>(m_spy), {}))
            pages += call.first().toInt();
        return pages;
    }

private:
    QSignalSpy m_spy{&TheTutorRequests, &TutorRequests::PageWanted};
};

void AddRows(const std::vector<std::pair<const char *, const char *>> &rows)
{
    QTest::addColumn<QString>("text");
    for (const auto &[control, text] : rows)
        QTest::newRow(control) << QString::fromUtf8(text);
}

} // namespace

class gui_frmGettingStarted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // ------------------------------------------------------------ words

    void TheWordsAreTheDesigns_data()
    {
        AddRows({
            {"lblIncomesPrompt",
             "First, you need to tell Tallymere how many household member incomes will make up your "
             "budget. In other words, is your household a 1-income family, 2-income family, etc.?"},
            {"lblIncomesHint", "For each income provider in your household, Tallymere needs to know their type of pay "
                               "frequency and average take home pay. Click Next to proceed or Cancel to exit Budget "
                               "Setup."},
            {"lblBeginsAgain", ""},
            {"lblNumberOfIncomes", "Number of incomes"},
            {"txtNumberOfIncomes", ""},
            {"lblWageEarner", "Information for Corvelle # 1..."},
            {"lblAverageTakeHomePay", "Average Take Home Pay"},
            {"txtAverageTakeHomePay", "0.00"},
            {"lblTakeHomeHint",
             "A Corvelle is one of you who brings a paycheck home. Take home pay is net pay: what one paycheck brings "
             "home, after taxes and all that is held back. Biweekly is every two weeks, semimonthly twice a month."},
            {"Frame1", "Pay Frequency"},
            {"optPayFrequencyWE0", "Weekly"},
            {"optPayFrequencyWE1", "Biweekly"},
            {"optPayFrequencyWE2", "Semimonthly"},
            {"optPayFrequencyWE3", "Monthly"},
            {"lblFrequencyPrompt", "Since Tallymere performs a budget on only one type of pay frequency, which type of "
                                   "budget do you want for your household?"},
            {"lblConsolidatePrompt",
             "Tallymere will now consolidate your information as if one person is providing the houselhold income with "
             "one pay frequency and one paycheck amount. Click Next to proceed or Cancel to exit Budget Setup."},
            {"Frame2", "Pay Frequency"},
            {"optPayFrequency0", "Weekly"},
            {"optPayFrequency1", "Biweekly"},
            {"optPayFrequency2", "Semimonthly"},
            {"optPayFrequency3", "Monthly"},
            {"lblIncomeSummaryTitle", "Income Summary..."},
            {"lblIncomeHint", ""},
            {"lblExpensesPrompt",
             "Next, we need to take into consideration all your household expenses. Your basic expenses fall under 2 "
             "categories: creditors and regular items. Please take a moment to round up all household expenses. Click "
             "Next to proceed when you are ready or Cancel to exit Budget Setup."},
            {"lblCreditorsPrompt",
             "Tallymere sees any monthly obligation due on a certain date as a \"creditor\". This type of item will "
             "show up on your budgets only ONCE A MONTH, regardless of the primary pay frequency you selected. "},
            {"lblCreditorsHint",
             "For each creditor or monthly obligation, Tallymere needs to know their name, due date, and monthly "
             "amount. Click Next to proceed or Cancel to exit Budget Setup."},
            {"lblCreditorsQuestion", "Tell Tallymere how many \"creditors\" or MONTHLY obligations you have"},
            {"lblNumberOfCreditors", "Number of creditors"},
            {"txtNumberOfCreditors", ""},
            {"fraCreditorInformation", "Information for Creditor (Monthly Obligation) # 1"},
            {"lblCreditorDueDate", "Due Date"},
            {"txtCreditorDueDate", "1"},
            {"lblCreditorAmount", "Amount"},
            {"txtCreditorAmount", "0.00"},
            {"lblCreditor", "Creditor"},
            {"txtCreditor", ""},
            {"lblCreditorHint", "For a bill that is due on the 29th, 30th or 31st enter 28. Leave quotation marks out "
                                "of the name: they spoil the file."},
            {"lblRegularItemsPrompt",
             "Tallymere considers items you need to budget for EVERY BUDGET PAY PERIOD as \"regular items\". Such "
             "items "
             "might include food, clothing allowance, gas, child support payments, etc. Please note that you can count "
             "any of these items as \"creditors\" if they are monthly."},
            {"lblRegularsPrompt",
             "For each regular item, Tallymere needs to know their name, and monthly amount. Click "
             "Next to proceed or Cancel to exit Budget Setup."},
            {"lblRegularsQuestion", "Tell Tallymere how many regular items you have"},
            {"lblNumberOfRegularItems", "Number of regular items"},
            {"txtNumberOfRegularItems", ""},
            {"fraRegularItemInformation", "Information for Regular Item # 1"},
            {"lblRegularItemAmount", "Amount"},
            {"txtRegularItemAmount", "0.00"},
            {"lblRegularItem", "Regular Item"},
            {"txtRegularItem", ""},
            {"lblExpenseSummaryTitle", "Expense Summary..."},
            {"lblExpenseHint", "Regular items are counted by the month here: what they cost in a year, divided by 12."},
            {"lblOverheadSummaryTitle", "Overhead Summary..."},
            {"lblSavePrompt",
             "Congratulations! You now have enough information to create your new budget profile. If you wish to use "
             "this as your basic budget, click the Save button below. Please note that if you already have a budget "
             "profile, this action will permanently replace that one."},
            {"lblScenarioPrompt", "If you were just trying out a scenario and do not wish to save this profile, simply "
                                  "click the Cancel button to exit Budget Setup."},
            {"lblAgainPrompt",
             "Remember, you can always try out budget profiles or actually create a new budget profile by selecting "
             "Help ->Getting Started from your main menu."},
            {"lblReplacedHint", "Replaced are the paycheck and how often it comes, creditors, regular items, extra "
                                "items, projects and the master shopping list. To keep them, copy the folder of the "
                                "program first."},
            {"cmdSaveBS11", "&Save"},
            {"lblMainMenuPrompt", "When you return to the main menu..."},
            {"lblBudgetPrompt", "Click the Budget icon to view your new budget"},
            {"lblOverheadPrompt", "Click the Overhead icon to take a quick look at your monthly overhead"},
            {"lblChangePrompt", "If you need to change your creditors or regular items information select "
                                "File/Creditors or File/Regular Items from the menu bar"},
            {"lblPayPeriodHint",
             "The bottom line of the main window names the current pay period. If it is not your last pay day, press "
             "F7 "
             "there first. A refund, or a bill of one pay period only, goes into File/Extra Items; the paycheck is "
             "changed in Options/Environment Setting."},
            {"cmdCancelBS12", "&Exit"},
            {"lblMasterListPrompt1",
             "The first step in shopping with Tallymere is to create a master shopping list. Ideally, this list would "
             "eventually  include every item you shop for at every store you deal with over time. But for now, we only "
             "need to begin with a few items to get the idea. "},
            {"lblMasterListPrompt2", "Think of 5 items you regularly shop for and 1 store you like to shop at. If you "
                                     "don't remember the items' "
                                     "exact prices that's alright. You can always go back and edit your entries. "},
            {"lblMasterListPrompt3",
             "Now let's bring up the Master Shopping List window along with my Tutor instructions at the bottom right "
             "of your screen. Follow the instructions and try entering your 5 items. When you are done click Exit and "
             "we'll talk about the second step"},
            {"lblCartPrompt1", "The second step in shopping with Tallymere is to build a current shopping list. You do "
                               "this by adding items from the Master Shopping List to the Current Shopping List. "},
            {"lblCartPrompt2",
             "This is done by dragging an item off the \"shelf\" (from the Items Available at Store list box) to the "
             "shopping cart of the Current Shopping List located at the bottom right. "},
            {"lblCartPrompt3", "Let's pick 3 items to shop for. When you are done we'll take a look at the Current "
                               "Shopping List to see how we did."},
            {"lblCurrentListPrompt", "Now let's take a look at the Current Shopping List along with my Tutor "
                                     "instructions at the bottom right of your screen for guidance."},
            {"lblPayOffPrompt1", "Developing a plan for paying off your bills is very easy with Tallymere. "},
            {"lblPayOffPrompt2", "First, you tell Tallymere how many creditors you wish to pay off. For each creditor, "
                                 "you supply Tallymere "
                                 "with debt information. Then you click a button and Tallymere immediately prepares an "
                                 "optimal pay off plan "
                                 "for you. "},
            {"lblPayOffPrompt3",
             "Let's try to develop a plan for paying off 2 creditors (imaginary or real) to get the feel for how easy "
             "this process is. Let's bring up the Pay Off window along with my Tutor instructions at the bottom right "
             "of your screen. "},
            {"lblPayOffPrompt4", "Follow the instructions and try entering your 2 creditors."},
        });
    }
    void TheWordsAreTheDesigns()
    {
        GuiDesk desk;
        Begin(desk);
        QTEST(TextOf(Guide, QString::fromLatin1(QTest::currentDataTag())), "text");
    }

    void EveryPanelHasItsButtons()
    {
        GuiDesk desk;
        Begin(desk);
        QStringList buttons;
        for (const QPushButton *button : Find<QStackedWidget>(Guide, u"stkPanels"_s).findChildren<QPushButton *>())
            buttons += button->parentWidget()->objectName() + u' ' + button->objectName() + u' ' + button->text();
        QStringList expected;
        for (int step = 1; step <= 12; ++step) {
            if (step < 11)
                expected += u"%1 cmdNextBS%2 &Next"_s.arg(BudgetPanel(step)).arg(step);
            else if (step == 11)
                expected += u"pnlStartBudget11 cmdSaveBS11 &Save"_s;
            expected +=
                u"%1 cmdCancelBS%2 %3"_s.arg(BudgetPanel(step)).arg(step).arg(step < 12 ? u"&Cancel" : u"&Exit");
        }
        for (const auto &[panel, letters, count] :
             {std::tuple{u"pnlStartShopping"_s, u"SS"_s, 3}, std::tuple{u"pnlStartPayOff"_s, u"SP"_s, 2}})
            for (int step = 1; step <= count; ++step)
                for (const QString &way : {u"Next"_s, u"Cancel"_s})
                    expected += u"%1%3 cmd%4%2%3 &%4"_s.arg(panel, letters, QString::number(step), way);
        buttons.sort();
        expected.sort();
        QCOMPARE(buttons, expected);
    }

    void AFrequencySaysWhatItAsks()
    {
        GuiDesk desk;
        Begin(desk);
        QCOMPARE(Find(Guide, u"optPayFrequency2"_s).accessibleDescription(),
                 u"A budget for each half of the month; the two pay days are asked for"_s);
        QCOMPARE(Find(Guide, u"optPayFrequency3"_s).accessibleDescription(),
                 u"A budget for every month; whether you are paid at the end of the month is asked"_s);
    }

    void CancelSaysWhatStays_data()
    {
        QTest::addColumn<QString>("tip");
        for (int step = 1; step <= 11; ++step)
            QTest::addRow("cmdCancelBS%d", step)
                << (step < 3 ? u"Leave without saving anything"_s
                             : u"Leave without saving; a pay frequency clicked in step 3 stays"_s);
    }
    void CancelSaysWhatStays()
    {
        GuiDesk desk;
        Begin(desk);
        QTEST(Find(Guide, QString::fromLatin1(QTest::currentDataTag())).toolTip(), "tip");
    }

    // ------------------------------------------------------------ beginning and end

    void EachEntryStartsItsRoute_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("focus");
        QTest::addColumn<QString>("step");
        QTest::newRow("mnuStartBudget") << u"Getting Started With Your Budget"_s << u"pnlStartBudget1"_s
                                        << u"txtNumberOfIncomes"_s << u"Step 1 of 12"_s;
        QTest::newRow("mnuStartShopping")
            << u"Getting Started With Shopping"_s << u"pnlStartShopping1"_s << u"cmdNextSS1"_s << u"Step 1 of 3"_s;
        QTest::newRow("mnuStartPayingOffBills") << u"Getting Started With Paying Off Bills"_s << u"pnlStartPayOff1"_s
                                                << u"cmdNextSP1"_s << u"Step 1 of 2"_s;
    }
    void EachEntryStartsItsRoute()
    {
        QFETCH(QString, title);
        GuiDesk desk;
        PagesWanted pages;
        desk.StartProgram();
        auto &tutor = Find<QTimer>(Main, u"tmrAutoTutor"_s);
        QVERIFY(tutor.isActive());
        Choose(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(TheWindows.Loaded(Guide)->windowTitle(), title);
        QCOMPARE(TextOf(Guide, u"lblTitle"_s), title);
        QTEST(TextOf(Guide, u"lblStep"_s), "step");
        QTEST(FrontPanel(), "panel");
        QTEST(FocusOf(Guide), "focus");
        QVERIFY(!IsShown(Main));
        QVERIFY(!tutor.isActive());
        QVERIFY(!State.GuidedSetupActive);
        QVERIFY(!desk.TakeEnd()); // the main window was hidden and nothing else stood there
        CloseByFrame(Guide);
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(IsShown(Main));
        QVERIFY(tutor.isActive());
        QVERIFY(!desk.TakeEnd());
        QCOMPARE(pages.Take(), QList<int>()); // these entries show no page of the tutor
    }

    void TheDesignsTitleChoosesNoRoute()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Guide);
        QCOMPARE(TheWindows.Loaded(Guide)->windowTitle(), u"Getting Started with Setting Up Tallymere"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(1)); // as designed
    }

    void ATutorThatRestsStaysAtRest()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"0"_s;
        Begin(desk);
        Click(Guide, u"cmdCancelBS1"_s);
        QVERIFY(!Find<QTimer>(Main, u"tmrAutoTutor"_s).isActive());
    }

    void CancelAtEveryStepLeavesEverything_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("way");
        for (int step = 1; step <= 11; ++step)
            for (const char *way : {"Cancel", "close box", "Esc", "Alt+C"})
                QTest::addRow("step %d by %s", step, way) << step << QString::fromLatin1(way);
    }
    void CancelAtEveryStepLeavesEverything()
    {
        QFETCH(int, step);
        QFETCH(QString, way);
        GuiDesk desk;
        desk.WriteFile(u"creditor.txt"_s, "1\r\n9\r\n\"Old creditor\"\r\n1\r\n");
        desk.WriteFile(u"projects.txt"_s, "1\r\n\"Old roof\"\r\n3\r\n0\r\n");
        desk.WriteFile(u"environm.ini"_s, "5\r\n10\r\n30\r\n7\r\n22\r\n-1\r\n0.07\r\n\"untitled.lst\"\r\n0.8\r\n");
        const QMap<QString, QByteArray> before = FilesOf(desk);
        Begin(desk);
        WalkTo(step);
        QCOMPARE(FrontPanel(), BudgetPanel(step));
        if (way == u"Cancel")
            Click(Guide, u"cmdCancelBS%1"_s.arg(step));
        else if (way == u"close box")
            CloseByFrame(Guide);
        else if (way == u"Esc")
            Press(Qt::Key_Escape);
        else {
            QTest::keyClick(TheWindows.Loaded(Guide), Qt::Key_C, Qt::AltModifier);
            Settle();
        }
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
        QCOMPARE(FilesOf(desk), before);
        QVERIFY(desk.Messages.isEmpty());
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(100000));
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QCOMPARE(State.NumberOfProjects, qint16(1));
        QCOMPARE(State.ForecastPeriods, qint16(5));
        QCOMPARE(State.FirstPayDate, qint16(7));
        QCOMPARE(State.MonthEndPay, qint16(-1));
        QCOMPARE(State.PayFrequency, step > 3 ? Biweekly : Monthly); // what the option's click has set stays
    }

    void AnotherRunBeginsAnew()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(9);
        Click(Guide, u"cmdCancelBS9"_s);
        Choose(u"mnuStartBudget"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(1));
        QCOMPARE(TextOf(Guide, u"txtNumberOfIncomes"_s), QString());
        Type(Guide, u"txtNumberOfIncomes"_s, u"1"_s);
        Next(1);
        QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 1..."_s);
        QCOMPARE(TextOf(Guide, u"txtAverageTakeHomePay"_s), u"0.00"_s);
        EnterIncome(u"1"_s);
        QCOMPARE(Selected(u"optPayFrequency"_s), 0);
        QCOMPARE(TextOf(Guide, u"lblRegularsPrompt"_s), DesignRegularsPrompt);
        Next(3);
        QVERIFY(TextOf(Guide, u"lblIncomeSummary"_s).startsWith(u"The paycheck amount of $1.00 will"_s));
    }

    // ------------------------------------------------------------ step 1

    void TheNumberOfIncomes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("incomes");
        QTest::newRow("1") << u"1"_s << u"1"_s << 1;
        QTest::newRow("3") << u"3"_s << u"3"_s << 3;
        QTest::newRow("0") << u"0"_s << u"1"_s << 1;
        QTest::newRow("-2") << u"-2"_s << u"1"_s << 1;
        QTest::newRow("2.5") << u"2.5"_s << u"2.5"_s << 2;
    }
    void TheNumberOfIncomes()
    {
        QFETCH(QString, text);
        QFETCH(int, incomes);
        GuiDesk desk;
        Begin(desk);
        Type(Guide, u"txtNumberOfIncomes"_s, text);
        Next(1);
        QTEST(TextOf(Guide, u"txtNumberOfIncomes"_s), "shown");
        QCOMPARE(FrontPanel(), BudgetPanel(2));
        QCOMPARE(FocusOf(Guide), u"txtAverageTakeHomePay"_s);
        QCOMPARE(SelectedText(u"txtAverageTakeHomePay"_s), u"0.00"_s);
        for (int income = 1; income <= incomes; ++income) {
            QCOMPARE(FrontPanel(), BudgetPanel(2));
            QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # %1..."_s.arg(income));
            EnterIncome(u"100"_s);
        }
        QCOMPARE(FrontPanel(), BudgetPanel(3));
    }

    void ACountMustBeNumeric_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("text");
        for (const int step : {1, 5, 7})
            for (const char *text : {"", " ", "two", "5%", "1.2.3"})
                QTest::addRow("step %d: \"%s\"", step, text) << step << QString::fromLatin1(text);
    }
    void ACountMustBeNumeric()
    {
        QFETCH(int, step);
        QFETCH(QString, text);
        GuiDesk desk;
        Begin(desk);
        WalkTo(step);
        const QString field = step == 1   ? u"txtNumberOfIncomes"_s
                              : step == 5 ? u"txtNumberOfCreditors"_s
                                          : u"txtNumberOfRegularItems"_s;
        QCOMPARE(FocusOf(Guide), field);
        Type(Guide, field, text);
        Next(step);
        QCOMPARE(desk.TakeMessage(), Warned(NotNumeric));
        QCOMPARE(FrontPanel(), BudgetPanel(step));
        QCOMPARE(FocusOf(Guide), field);
        QCOMPARE(TextOf(Guide, field), text);
        QCOMPARE(SelectedText(field), text);
    }

    // ------------------------------------------------------------ step 2

    void EachIncomeIsAskedForInTurn()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(2);
        QCOMPARE(Selected(u"optPayFrequencyWE"_s), 0);
        QCOMPARE(TextOf(Guide, u"lblStep"_s), u"Step 2 of 12"_s);
        EnterIncome(u"$1,234.50"_s, 2);
        QCOMPARE(FrontPanel(), BudgetPanel(2));
        QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 2..."_s);
        QCOMPARE(TextOf(Guide, u"txtAverageTakeHomePay"_s), u"0.00"_s);
        QCOMPARE(Selected(u"optPayFrequencyWE"_s), 0);
        QCOMPARE(FocusOf(Guide), u"txtAverageTakeHomePay"_s);
        QCOMPARE(SelectedText(u"txtAverageTakeHomePay"_s), u"0.00"_s);
        EnterIncome(u"10"_s, 3);
        QCOMPARE(FrontPanel(), BudgetPanel(3));
        QCOMPARE(State.PayFrequency, Biweekly); // the household's from before: an income's own frequency is no setting
        const BudgetSetup &setup = static_cast<frmGettingStarted *>(TheWindows.Loaded(Guide))->Setup();
        QVERIFY(setup.Incomes(1) == (IncomeRecord{Currency::FromTenThousandths(12345000), u"semimonthly"_s}));
        QVERIFY(setup.Incomes(2) == (IncomeRecord{Currency::FromTenThousandths(100000), u"monthly"_s}));
    }

    void TakeHomePayMustBeNumeric_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("words") << u"much"_s;
        QTest::newRow("a percentage") << u"5%"_s;
    }
    void TakeHomePayMustBeNumeric()
    {
        QFETCH(QString, text);
        GuiDesk desk;
        Begin(desk);
        WalkTo(2);
        Click(Guide, u"optPayFrequencyWE3"_s);
        Type(Guide, u"txtAverageTakeHomePay"_s, text);
        Next(2);
        QCOMPARE(desk.TakeMessage(),
                 Warned(u"Please enter a valid dollar amount for the wage earner's average take home pay"_s));
        QCOMPARE(TextOf(Guide, u"txtAverageTakeHomePay"_s), QString());
        QCOMPARE(FocusOf(Guide), u"txtAverageTakeHomePay"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(2));
        QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 1..."_s);
        QCOMPARE(Selected(u"optPayFrequencyWE"_s), 3);
    }

    // ------------------------------------------------------------ step 3

    void AnOptionSetsThePayFrequencyAtOnce_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("paycheck"); // of 300 a week and 1000 a month
        QTest::newRow("biweekly") << 1 << 14 << QString() << u"biweekly"_s << u"$1,061.54"_s;
        QTest::newRow("semimonthly") << 2 << 15 << DatesWindow << u"semimonthly"_s << u"$1,150.00"_s;
        QTest::newRow("monthly") << 3 << 30 << MonthEndWindow << u"monthly"_s << u"$2,300.00"_s;
    }
    void AnOptionSetsThePayFrequencyAtOnce()
    {
        QFETCH(int, option);
        QFETCH(int, frequency);
        QFETCH(QString, question);
        QFETCH(QString, name);
        QFETCH(QString, paycheck);
        GuiDesk desk;
        Begin(desk);
        State.PayFrequency = Weekly;
        WalkTo(3);
        QCOMPARE(Selected(u"optPayFrequency"_s), 0);
        QCOMPARE(FocusOf(Guide), u"optPayFrequency0"_s);
        const auto choose = [&] { Click(Guide, u"optPayFrequency%1"_s.arg(option)); };
        int during = 0;
        if (question.isEmpty())
            choose();
        else
            QVERIFY(Meanwhile(question, choose, [&] { during = State.PayFrequency; }));
        QCOMPARE(State.PayFrequency, qint16(frequency));
        if (!question.isEmpty())
            QCOMPARE(during, frequency);
        QVERIFY(!TheWindows.Loaded(DatesWindow));
        QVERIFY(!TheWindows.Loaded(MonthEndWindow));
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(3)); // not thrown back to the first
        QCOMPARE(Selected(u"optPayFrequency"_s), option);
        Next(3);
        QCOMPARE(FrontPanel(), BudgetPanel(4));
        QCOMPARE(TextOf(Guide, u"lblIncomeSummary"_s),
                 u"The paycheck amount of %1 will be used for your %2 budget. It is from this amount that Tallymere "
                 u"will deduct your expenses in figuring out your budget. This amount represents your BASIC income. At "
                 u"this point, you need not concern yourself about any extra income that may show up occasionally - "
                 u"just your basic income."_s.arg(paycheck, name));
        QCOMPARE(FocusOf(Guide), u"cmdNextBS4"_s);
    }

    void TheQuestionsSetThePayDays()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(3);
        QVERIFY(Meanwhile(
            DatesWindow, [] { Click(Guide, u"optPayFrequency2"_s); },
            [] {
                Type(DatesWindow, u"txtFirstPayDate"_s, u"7"_s);
                Type(DatesWindow, u"txtSecondPayDate"_s, u"22"_s);
                Click(DatesWindow, u"cmdOK"_s);
            }));
        QCOMPARE(State.FirstPayDate, qint16(7));
        QCOMPARE(State.SecondPayDate, qint16(22));
        QCOMPARE(FrontPanel(), BudgetPanel(3));
        QVERIFY(Meanwhile(
            MonthEndWindow, [] { Click(Guide, u"optPayFrequency3"_s); },
            [] {
                Click(MonthEndWindow, u"optYesNo0"_s);
                Click(MonthEndWindow, u"cmdOK"_s);
            }));
        QCOMPARE(State.MonthEndPay, qint16(-1));
        QCOMPARE(FrontPanel(), BudgetPanel(3));
        QCOMPARE(ActiveWindow(), Guide);
        QVERIFY(!IsShown(Main));
    }

    void ASelectedOptionAsksNothingAgain()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(3);
        QVERIFY(Meanwhile(MonthEndWindow, [] { Click(Guide, u"optPayFrequency3"_s); }));
        QVERIFY(!Meanwhile(MonthEndWindow, [] { Click(Guide, u"optPayFrequency3"_s); }));
    }

    // Left without a click, "Weekly" names the budget and changes no setting.
    void WeeklyWithoutAClickKeepsThePayFrequency()
    {
        GuiDesk desk;
        desk.StartProgram();
        State.PayFrequency = Semimonthly;
        Choose(u"mnuStartBudget"_s);
        WalkTo(3);
        QCOMPARE(TextOf(Guide, u"lblFrequencyHint"_s),
                 u"Click the frequency of your budget, even if it is marked already: until then the settings keep "
                 u"\"Semimonthly\"."_s);
        Next(3);
        QCOMPARE(State.PayFrequency, Semimonthly);
        QVERIFY(TextOf(Guide, u"lblIncomeSummary"_s)
                    .startsWith(u"The paycheck amount of $530.77 will be used for your weekly budget."_s));
    }

    void AClickOnTheSelectedWeeklyCounts_data()
    {
        QTest::addColumn<int>("frequency"); // of the settings
        QTest::addColumn<bool>("byKey");
        for (const int frequency : {7, 15, 21}) {
            QTest::addRow("%d, by mouse", frequency) << frequency << false;
            QTest::addRow("%d, by key", frequency) << frequency << true;
        }
    }
    void AClickOnTheSelectedWeeklyCounts()
    {
        QFETCH(int, frequency);
        QFETCH(bool, byKey);
        GuiDesk desk;
        desk.StartProgram();
        State.PayFrequency = qint16(frequency);
        Choose(u"mnuStartBudget"_s);
        WalkTo(3);
        QCOMPARE(FocusOf(Guide), u"optPayFrequency0"_s);
        if (byKey)
            Press(Qt::Key_Space);
        else
            Click(Guide, u"optPayFrequency0"_s);
        QCOMPARE(State.PayFrequency, Weekly);
        QCOMPARE(TextOf(Guide, u"lblFrequencyHint"_s), QString());
        Show(Main);
        Show(Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(3)); // as after any click on an option
    }

    // The settings may have changed beside the guide; then the selected option is clicked to have its frequency again.
    void AClickOnASelectedOptionTakesItsFrequencyAgain()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(3);
        QVERIFY(Meanwhile(MonthEndWindow, [] { Click(Guide, u"optPayFrequency3"_s); }));
        State.PayFrequency = Weekly;
        QVERIFY(Meanwhile(MonthEndWindow, [] { Click(Guide, u"optPayFrequency3"_s); }));
        QCOMPARE(State.PayFrequency, Monthly);
    }

    void TheHintTellsWhatTheSettingsSay_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("hint");
        QTest::newRow("weekly, as selected") << 7 << QString();
        QTest::newRow("biweekly") << 14
                                  << u"Click the frequency of your budget, even if it is marked already: until then "
                                     u"the settings keep \"Biweekly\"."_s;
        QTest::newRow("none") << 21
                              << u"Click the frequency of your budget, even if it is marked already: the settings name "
                                 u"none yet."_s;
    }
    void TheHintTellsWhatTheSettingsSay()
    {
        QFETCH(int, frequency);
        QFETCH(QString, hint);
        GuiDesk desk;
        desk.StartProgram();
        State.PayFrequency = qint16(frequency);
        Choose(u"mnuStartBudget"_s);
        WalkTo(3);
        QCOMPARE(TextOf(Guide, u"lblFrequencyHint"_s), hint);
        Click(Guide, u"optPayFrequency1"_s);
        QCOMPARE(TextOf(Guide, u"lblFrequencyHint"_s), QString());
    }

    void TheArrowKeysChooseAFrequency()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(3);
        Press(Qt::Key_Down);
        QCOMPARE(Selected(u"optPayFrequency"_s), 1);
        QCOMPARE(State.PayFrequency, Biweekly);
        QVERIFY(Meanwhile(DatesWindow, [] { Press(Qt::Key_Down); }));
        QCOMPARE(State.PayFrequency, Semimonthly);
        QCOMPARE(FocusOf(Guide), u"optPayFrequency2"_s);
    }

    // ------------------------------------------------------------ steps 4 to 6

    void TheSummaryLeadsToTheCreditors()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(5);
        QCOMPARE(FrontPanel(), BudgetPanel(5));
        QCOMPARE(FocusOf(Guide), u"txtNumberOfCreditors"_s);
    }

    void WithoutCreditorsTheRegularItemsAreNext_data()
    {
        QTest::addColumn<QString>("count");
        QTest::newRow("0") << u"0"_s;
        QTest::newRow("-3") << u"-3"_s;
        QTest::newRow("a fraction that rounds to none") << u"0.5"_s;
    }
    void WithoutCreditorsTheRegularItemsAreNext()
    {
        QFETCH(QString, count);
        GuiDesk desk;
        Begin(desk);
        WalkTo(5);
        Type(Guide, u"txtNumberOfCreditors"_s, count);
        Next(5);
        QCOMPARE(FrontPanel(), BudgetPanel(7));
        QCOMPARE(FocusOf(Guide), u"txtNumberOfRegularItems"_s);
        QCOMPARE(TextOf(Guide, u"lblRegularsPrompt"_s), DesignRegularsPrompt); // whatever the frequency
        Type(Guide, u"txtNumberOfRegularItems"_s, count);
        Next(7);
        QCOMPARE(FrontPanel(), BudgetPanel(9));
        Next(9);
        Next(10);
        Next(11);
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s); // and nothing before it
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s), QByteArray("0\r\n"));
        QCOMPARE(State.NumberOfCreditors, qint16(0));
        desk.TakeFiles();
    }

    void EachCreditorIsAskedForInTurn()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(6);
        QCOMPARE(FocusOf(Guide), u"txtCreditorDueDate"_s);
        QCOMPARE(SelectedText(u"txtCreditorDueDate"_s), u"1"_s);
        QCOMPARE(TextOf(Guide, u"fraCreditorInformation"_s), u"Information for Creditor (Monthly Obligation) # 1"_s);
        EnterCreditor(u"15"_s, u"650"_s, u"Rent"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(6));
        QCOMPARE(TextOf(Guide, u"fraCreditorInformation"_s), u"Information for Creditor # 2..."_s);
        QCOMPARE(TextOf(Guide, u"txtCreditorDueDate"_s), u"1"_s);
        QCOMPARE(TextOf(Guide, u"txtCreditorAmount"_s), u"0.00"_s);
        QCOMPARE(TextOf(Guide, u"txtCreditor"_s), QString());
        QCOMPARE(FocusOf(Guide), u"txtCreditorDueDate"_s);
        EnterCreditor(u"2.5"_s, u"0"_s, u"Phone"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(7));
        QCOMPARE(FocusOf(Guide), u"txtNumberOfRegularItems"_s);
        QCOMPARE(TextOf(Guide, u"lblRegularsPrompt"_s), u"For each regular item, Tallymere needs to know their name, "
                                                        u"and biweekly amount. Click Next to proceed or Cancel to "
                                                        u"exit."_s);
        const BudgetSetup &setup = static_cast<frmGettingStarted *>(TheWindows.Loaded(Guide))->Setup();
        QCOMPARE(setup.SetupCreditors(2).SetupDueDate, qint16(2)); // rounded to the even one
    }

    void ACreditorIsTestedFieldByField_data()
    {
        QTest::addColumn<QString>("dueDate");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        QTest::addColumn<QString>("left"); // in that field
        const QString dueDate = u"txtCreditorDueDate"_s;
        const QString amount = u"txtCreditorAmount"_s;
        const QString noDate = u"Please enter a due date"_s;
        const QString badDate =
            u"Please enter a valid due date (a date between 1 and 28) without suffixes like 'st', 'nd', 'rd', etc."_s;
        const QString noAmount = u"Please enter the monthly amount owed to the 'creditor'"_s;
        const QString badAmount = u"Please enter a valid dollar amount for the monthly obligation"_s;
        const QString noName = u"Please enter creditor's name or description"_s;
        QTest::newRow("nothing at all") << QString() << QString() << QString() << noDate << dueDate << QString();
        QTest::newRow("a suffix") << u"1st"_s << QString() << QString() << badDate << dueDate << u"1"_s;
        QTest::newRow("a blank for a day") << u" "_s << u"1"_s << u"Rent"_s << badDate << dueDate << u"1"_s;
        QTest::newRow("no amount") << u"15"_s << QString() << QString() << noAmount << amount << QString();
        QTest::newRow("no dollar amount") << u"15"_s << u"much"_s << QString() << badAmount << amount << u"0.00"_s;
        QTest::newRow("no name") << u"15"_s << u"650"_s << QString() << noName << u"txtCreditor"_s << QString();
    }
    void ACreditorIsTestedFieldByField()
    {
        QFETCH(QString, dueDate);
        QFETCH(QString, amount);
        QFETCH(QString, name);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        QFETCH(QString, left);
        GuiDesk desk;
        Begin(desk);
        WalkTo(6);
        EnterCreditor(dueDate, amount, name);
        QCOMPARE(desk.TakeMessage(), Warned(message));
        QCOMPARE(FocusOf(Guide), focus);
        QCOMPARE(TextOf(Guide, focus), left);
        QCOMPARE(SelectedText(focus), left);
        QCOMPARE(FrontPanel(), BudgetPanel(6));
        QCOMPARE(TextOf(Guide, u"fraCreditorInformation"_s), u"Information for Creditor (Monthly Obligation) # 1"_s);
    }

    void AnyDayPasses_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<int>("stored");
        QTest::newRow("45") << u"45"_s << 45;
        QTest::newRow("0") << u"0"_s << 0;
        QTest::newRow("-1") << u"-1"_s << -1;
        QTest::newRow("29") << u"29"_s << 29;
    }
    void AnyDayPasses()
    {
        QFETCH(QString, day);
        GuiDesk desk;
        Begin(desk);
        WalkTo(6);
        EnterCreditor(day, u"1"_s, u"Rent"_s);
        const BudgetSetup &setup = static_cast<frmGettingStarted *>(TheWindows.Loaded(Guide))->Setup();
        QTEST(int(setup.SetupCreditors(1).SetupDueDate), "stored");
    }

    // ------------------------------------------------------------ steps 7 to 10

    void EachRegularItemIsAskedForInTurn()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(7);
        Type(Guide, u"txtNumberOfRegularItems"_s, u"2"_s);
        Next(7);
        QCOMPARE(FrontPanel(), BudgetPanel(8));
        QCOMPARE(FocusOf(Guide), u"txtRegularItemAmount"_s);
        QCOMPARE(SelectedText(u"txtRegularItemAmount"_s), u"0.00"_s);
        QCOMPARE(TextOf(Guide, u"fraRegularItemInformation"_s), u"Information for Regular Item # 1"_s);
        QCOMPARE(TextOf(Guide, u"lblRegularHint"_s),
                 u"Enter what one biweekly pay period costs. Leave quotation marks out of the name: they spoil the "
                 u"file."_s);
        EnterRegular(u"120"_s, u"Food"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(8));
        QCOMPARE(TextOf(Guide, u"fraRegularItemInformation"_s), u"Information for Regular Item # 2..."_s);
        QCOMPARE(TextOf(Guide, u"txtRegularItemAmount"_s), u"0.00"_s);
        QCOMPARE(TextOf(Guide, u"txtRegularItem"_s), QString());
        QCOMPARE(FocusOf(Guide), u"txtRegularItemAmount"_s);
        EnterRegular(u"$30.00"_s, u"Gas"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(9));
        QCOMPARE(TextOf(Guide, u"lblExpenseSummary"_s),
                 u"Total creditor/monthly obligation amounts: $692.50\nTotal regular items amounts: $325.00\n\n"
                 u"Total expenses: $1,017.50"_s);
    }

    void ARegularItemIsTestedFieldByField_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        QTest::addColumn<QString>("left");
        const QString amount = u"txtRegularItemAmount"_s;
        QTest::newRow("nothing at all") << QString() << QString()
                                        << u"Please enter the regular amount owed for the regular item"_s << amount
                                        << QString();
        QTest::newRow("no dollar amount")
            << u"much"_s << QString() << u"Please enter a valid dollar amount for the regular item"_s << amount
            << u"0.00"_s;
        QTest::newRow("no description") << u"120"_s << QString() << u"Please enter regular item description"_s
                                        << u"txtRegularItem"_s << QString();
    }
    void ARegularItemIsTestedFieldByField()
    {
        QFETCH(QString, amount);
        QFETCH(QString, item);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        QFETCH(QString, left);
        GuiDesk desk;
        Begin(desk);
        WalkTo(8);
        EnterRegular(amount, item);
        QCOMPARE(desk.TakeMessage(), Warned(message));
        QCOMPARE(FocusOf(Guide), focus);
        QCOMPARE(TextOf(Guide, focus), left);
        QCOMPARE(SelectedText(focus), left);
        QCOMPARE(FrontPanel(), BudgetPanel(8));
        QCOMPARE(TextOf(Guide, u"fraRegularItemInformation"_s), u"Information for Regular Item # 1"_s);
    }

    void TheSummariesFollow()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(9);
        QCOMPARE(TextOf(Guide, u"lblExpenseSummary"_s),
                 u"Total creditor/monthly obligation amounts: $692.50\nTotal regular items amounts: $260.00\n\n"
                 u"Total expenses: $952.50"_s);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS9"_s);
        Next(9);
        QCOMPARE(FrontPanel(), BudgetPanel(10));
        QCOMPARE(TextOf(Guide, u"lblOverheadSummary"_s),
                 u"Average monthly household income: $2,300.00\nTotal monthly expenses: $952.50\n\n"
                 u"Monthly balance remaining: $1,347.50"_s);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS10"_s);
        Next(10);
        QCOMPARE(FrontPanel(), BudgetPanel(11));
        QCOMPARE(FocusOf(Guide), u"cmdSaveBS11"_s);
    }

    void ABalanceMayBeNegative()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(6);
        EnterCreditor(u"1"_s, u"5000"_s, u"Castle"_s);
        EnterCreditor(u"1"_s, u"0"_s, u"Nothing"_s);
        Type(Guide, u"txtNumberOfRegularItems"_s, u"0"_s);
        Next(7);
        Next(9);
        QVERIFY(TextOf(Guide, u"lblOverheadSummary"_s).endsWith(u"Monthly balance remaining: ($2,700.00)"_s));
    }

    // ------------------------------------------------------------ steps 11 and 12

    void TheSaveReplacesTheProfile()
    {
        GuiDesk desk;
        desk.WriteFile(u"extra.txt"_s, "1\r\n\"01-15-2004\"\r\n0\r\n");
        desk.WriteFile(u"projects.txt"_s, "1\r\n\"Old roof\"\r\n3\r\n0\r\n");
        desk.WriteFile(u"mastshop.txt"_s, "1\r\n\"Old milk\"\r\n\"gallon\"\r\n4\r\n\"Corner\"\r\n#FALSE#\r\n");
        Begin(desk);
        WalkTo(11);
        Click(Guide, u"cmdSaveBS11"_s);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Profile saved."_s, u"Budget Setup"_s, Icon::Information, Buttons::Ok, 0}));
        QCOMPARE(FrontPanel(), BudgetPanel(12));
        QCOMPARE(FocusOf(Guide), u"cmdCancelBS12"_s);
        QCOMPARE(desk.ReadFile(u"environm.ini"_s),
                 QByteArray("26\r\n1061.5385\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n"));
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s),
                 QByteArray("2\r\n15\r\n\"Rent\"\r\n650\r\n45\r\n\"Phone\"\r\n42.5\r\n"));
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s), QByteArray("1\r\n\"Food\"\r\n120\r\n"));
        for (const QString &emptied : {u"extra.txt"_s, u"projects.txt"_s, u"mastshop.txt"_s})
            QCOMPARE(desk.ReadFile(emptied), QByteArray("0\r\n"));
        QCOMPARE(desk.TakeFiles(), QStringList()); // the store list is not touched
        Click(Guide, u"cmdCancelBS12"_s);
        QCOMPARE(ActiveWindow(), Main);
        QCOMPARE(RowsOf(Main, u"lstBudgetState"_s).mid(0, 6),
                 (QStringList{u"Creditors: 2"_s, u"Regular Items: 1"_s, u"Extra Item Pay Periods: 0"_s,
                              u"Projects: 0"_s, u"Average Net Percentage: 90.00%"_s, u"Paycheck Amount: $1,061.54"_s}));
    }

    void AMissingFileIsToldAndTheProfileSaved()
    {
        GuiDesk desk;
        desk.WriteFile(u"projects.txt"_s, "1\r\n\"Old roof\"\r\n3\r\n0\r\n");
        Begin(desk);
        WalkTo(11);
        desk.RemoveFile(u"mastshop.txt"_s);
        Click(Guide, u"cmdSaveBS11"_s);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Initialize Files"_s, Icon::Stop, Buttons::Ok, 0}));
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Input Master Shopping List"_s, Icon::Stop, Buttons::Ok, 0}));
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 52: Bad file name or number"_s, u"Input Master Shopping List"_s,
                                              Icon::Stop, Buttons::Ok, 0}));
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        QCOMPARE(FrontPanel(), BudgetPanel(12));
        QCOMPARE(desk.ReadFile(u"projects.txt"_s), QByteArray("1\r\n\"Old roof\"\r\n3\r\n0\r\n"));
        QCOMPARE(State.NumberOfProjects, qint16(1));
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s),
                 QByteArray("2\r\n15\r\n\"Rent\"\r\n650\r\n45\r\n\"Phone\"\r\n42.5\r\n"));
        desk.TakeFiles();
    }

    void TheSaveGoesInItsOrder()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(11);
        for (const QString &missing : {u"environm.ini"_s, u"creditor.txt"_s, u"extra.txt"_s, u"regulars.txt"_s,
                                       u"projects.txt"_s, u"mastshop.txt"_s, u"stores\\untitled.lst"_s})
            desk.RemoveFile(missing);
        Click(Guide, u"cmdSaveBS11"_s);
        QStringList titles;
        while (!desk.Messages.isEmpty()) {
            const Message message = desk.TakeMessage();
            if (message.Text == u"Error 53: File not found"_s || message.Text == u"Profile saved."_s)
                titles += message.Title;
        }
        QCOMPARE(titles, (QStringList{u"Initialize Files"_s, u"Save Environment Settings"_s, u"Save Creditors"_s,
                                      u"Save Regulars"_s, u"Input Creditors"_s, u"Input Regulars"_s,
                                      u"Input Pay Periods"_s, u"Input Projects"_s, u"Input Master Shopping List"_s,
                                      u"Input Current Shopping List"_s, u"Budget Setup"_s}));
        QCOMPARE(FrontPanel(), BudgetPanel(12));
        desk.TakeFiles();
    }

    // Two of the files, and which of the others are emptied.
    void TheFilesAreEmptiedInTheirOrder()
    {
        GuiDesk desk;
        const QByteArray roof("1\r\n\"Old roof\"\r\n3\r\n0\r\n");
        const QByteArray extra("1\r\n\"01-15-2004\"\r\n0\r\n");
        desk.WriteFile(u"projects.txt"_s, roof);
        desk.WriteFile(u"extra.txt"_s, extra);
        Begin(desk);
        WalkTo(11);
        desk.RemoveFile(u"mastshop.txt"_s);
        desk.RemoveFile(u"regulars.txt"_s);
        Click(Guide, u"cmdSaveBS11"_s);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Initialize Files"_s, Icon::Stop, Buttons::Ok, 0}));
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Save Regulars"_s, Icon::Stop, Buttons::Ok, 0}));
        desk.Messages.clear(); // what reading finds missing then
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(u"projects.txt"_s), roof);
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s),
                 QByteArray("2\r\n15\r\n\"Rent\"\r\n650\r\n45\r\n\"Phone\"\r\n42.5\r\n"));
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ windows that stand open at the save

    void EachWindowIsDecidedUpon()
    {
        GuiDesk desk;
        QStringList names{Guide, Main};
        for (const auto &[window, closed] : ClosedBySave)
            names += QString::fromLatin1(window);
        names.sort();
        QCOMPARE(names, TheWindows.Names());
    }

    void TheSaveClosesWhatShowsTheOldProfile_data()
    {
        QTest::addColumn<bool>("closed");
        for (const auto &[window, closed] : ClosedBySave)
            if (closed)
                QTest::newRow(window) << true;
        for (const char *window : {"frmAbout", "frmPayOff", "frmPaymentCalculator", "frmSavings", "frmTallymereTutor"})
            QTest::newRow(window) << false;
    }
    void TheSaveClosesWhatShowsTheOldProfile()
    {
        QFETCH(bool, closed);
        const QString window = QString::fromLatin1(QTest::currentDataTag());
        GuiDesk desk;
        desk.StartProgram();
        auto &tutor = Find<QTimer>(Main, u"tmrAutoTutor"_s);
        TheWindows.Show(window);
        Settle();
        Show(Main);
        QVERIFY(tutor.isActive());
        Choose(u"mnuStartBudget"_s);
        desk.TakeAll(); // what the windows do is the matter of their own tests
        desk.Messages.clear();
        WalkTo(12);
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        QVERIFY(desk.Messages.isEmpty());
        QCOMPARE(!TheWindows.Loaded(window), closed);
        QCOMPARE(IsShown(window), !closed);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(12));
        QVERIFY(!IsShown(Main));
        QVERIFY(!tutor.isActive()); // the guide is still there
        Click(Guide, u"cmdCancelBS12"_s);
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(tutor.isActive());
        desk.TakeAll();
    }

    // What other windows have loaded unseen, such as the settings, holds old texts as well.
    void TheSaveClosesUnseenWindowsToo()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"5"_s; // the main window leaves the timer as it is then
        desk.StartProgram();
        auto &tutor = Find<QTimer>(Main, u"tmrAutoTutor"_s);
        tutor.start();
        for (const bool closed : {true, false})
            for (const auto &[window, isClosed] : ClosedBySave)
                if (isClosed == closed)
                    TheWindows.Touch(QString::fromLatin1(window));
        QVERIFY(!tutor.isActive()); // the first of them has stopped it
        Choose(u"mnuStartBudget"_s);
        desk.TakeAll();
        WalkTo(12);
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        for (const auto &[window, closed] : ClosedBySave)
            QVERIFY2(!TheWindows.Loaded(QString::fromLatin1(window)) == closed, window);
        QVERIFY(!tutor.isActive());
        Click(Guide, u"cmdCancelBS12"_s);
        QVERIFY(tutor.isActive());
        desk.TakeAll();
    }

    // A row of an old list would stand for a record that is another one by now, or none.
    void TheListsAreReadAnewAfterTheSave_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QStringList>("controls"); // grey before that
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("creditors") << u"frmCreditors"_s << u"lstCreditors"_s << u"cmdListCreditors"_s
                                   << QStringList{u"cmdAddCreditor"_s, u"cmdDeleteCreditor"_s,
                                                  u"cmdAddChangeCreditor"_s, u"txtCreditor"_s}
                                   << QStringList{u"Rent"_s, u"Phone"_s};
        QTest::newRow("regular items") << u"frmRegulars"_s << u"lstRegulars"_s << u"cmdListRegularItems"_s
                                       << QStringList{u"cmdAddRegularItem"_s, u"cmdDeleteRegularItem"_s,
                                                      u"cmdAddChangeRegularItem"_s, u"txtRegularItem"_s}
                                       << QStringList{u"Food"_s};
        QTest::newRow("projects") << u"frmProjects"_s << u"lstProjects"_s << u"cmdListProjects"_s
                                  << QStringList{u"cmdAddProject"_s, u"cmdDeleteProject"_s, u"cmdNew"_s,
                                                 u"txtProject"_s}
                                  << QStringList();
        QTest::newRow("extra items") << u"frmExtras"_s << u"lstExtraItems"_s << u"cmdListPayPeriods"_s
                                     << QStringList{u"cmdAddExtraItem"_s, u"cmdDeletePayPeriod"_s,
                                                    u"cmdAddChangeExtraItem"_s, u"txtExtraItem"_s}
                                     << QStringList();
    }
    void TheListsAreReadAnewAfterTheSave()
    {
        QFETCH(QString, window);
        QFETCH(QString, list);
        QFETCH(QString, read);
        QFETCH(QStringList, controls);
        GuiDesk desk;
        desk.WriteFile(u"creditor.txt"_s, "3\r\n1\r\n\"A\"\r\n1\r\n1\r\n\"B\"\r\n1\r\n1\r\n\"C\"\r\n1\r\n");
        desk.WriteFile(u"regulars.txt"_s, "3\r\n\"A\"\r\n1\r\n\"B\"\r\n1\r\n\"C\"\r\n1\r\n");
        desk.WriteFile(u"projects.txt"_s, "1\r\n\"Old roof\"\r\n3\r\n0\r\n");
        desk.WriteFile(u"extra.txt"_s, "1\r\n\"01-15-2004\"\r\n1\r\n\"Gift\"\r\n5\r\n");
        desk.StartProgram();
        Show(window);
        Click(window, read);
        const int last = int(RowsOf(window, list).size()) - 1;
        QVERIFY(last >= 0);
        ClickRow(window, list, last);
        Show(Main);
        Choose(u"mnuStartBudget"_s);
        WalkTo(12);
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        Click(Guide, u"cmdCancelBS12"_s);
        desk.TakeFiles();
        Show(window);
        QCOMPARE(RowsOf(window, list), QStringList());
        for (const QString &control : controls)
            QVERIFY2(!IsEnabled(window, control), qPrintable(control));
        Click(window, read);
        QTEST(RowsOf(window, list), "rows");
    }

    // A window that asks when it is closed asks about the settings of before.
    void ThePercentageOfBeforeIsNotAskedAbout()
    {
        const QString window = u"frmAverageNetPercentage"_s;
        GuiDesk desk;
        desk.WriteFile(u"environm.ini"_s, "5\r\n10\r\n14\r\n1\r\n15\r\n0\r\n0.07\r\n\"untitled.lst\"\r\n0.8\r\n");
        desk.StartProgram();
        Show(window);
        for (const QString &field : {u"txtFirstCheckGross"_s, u"txtSecondCheckGross"_s})
            Type(window, field, u"100"_s);
        for (const QString &field : {u"txtFirstCheckNet"_s, u"txtSecondCheckNet"_s})
            Type(window, field, u"50"_s);
        Click(window, u"cmdCalculate"_s);
        QCOMPARE(State.AverageNetPercentage, 0.5F);
        Show(Main);
        Choose(u"mnuStartBudget"_s);
        WalkTo(12);
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        QVERIFY(desk.Messages.isEmpty());
        QCOMPARE(State.AverageNetPercentage, 0.9F);
        desk.TakeFiles();
    }

    // Closing its windows would show the guide again, or end it.
    void TheSaveEndsAShoppingRouteThatWasLeft_data()
    {
        QTest::addColumn<QString>("window");
        QTest::newRow("the catalogue") << Master;
        QTest::newRow("the list") << CurrentList;
    }
    void TheSaveEndsAShoppingRouteThatWasLeft()
    {
        QFETCH(QString, window);
        GuiDesk desk;
        desk.StartProgram();
        Show(window);
        State.GuidedSetupActive = true;
        State.GuidedSetupRoute = ShoppingRoute;
        State.GuidedSetupStep = 3;
        Show(Guide);
        WalkTo(12);
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        QVERIFY(!TheWindows.Loaded(window));
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(12));
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupStep, qint16(0));
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ slips

    // Numbers pass the tests whatever their size; what no count and no amount can hold changes nothing.
    void ANumberTooLargeChangesNothing_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::newRow("incomes") << 1 << u"txtNumberOfIncomes"_s << u"32768"_s;
        QTest::newRow("incomes in powers of ten") << 1 << u"txtNumberOfIncomes"_s << u"1e9"_s;
        QTest::newRow("take home pay") << 2 << u"txtAverageTakeHomePay"_s << u"1e15"_s;
        QTest::newRow("creditors") << 5 << u"txtNumberOfCreditors"_s << u"99999"_s;
        QTest::newRow("a negative count") << 5 << u"txtNumberOfCreditors"_s << u"-99999"_s;
        QTest::newRow("due date") << 6 << u"txtCreditorDueDate"_s << u"40000"_s;
        QTest::newRow("monthly amount") << 6 << u"txtCreditorAmount"_s << u"1e15"_s;
        QTest::newRow("regular items") << 7 << u"txtNumberOfRegularItems"_s << u"40000"_s;
        QTest::newRow("regular amount") << 8 << u"txtRegularItemAmount"_s << u"1e15"_s;
        QTest::newRow("a regular amount too large by the month")
            << 8 << u"txtRegularItemAmount"_s << u"900000000000000"_s;
    }
    void ANumberTooLargeChangesNothing()
    {
        QFETCH(int, step);
        QFETCH(QString, field);
        QFETCH(QString, text);
        GuiDesk desk;
        Begin(desk);
        WalkTo(step);
        if (step == 6)
            Type(Guide, u"txtCreditor"_s, u"Rent"_s);
        if (step == 8)
            Type(Guide, u"txtRegularItem"_s, u"Food"_s);
        const QString right = step == 6 ? u"15"_s : u"1"_s;
        for (int again = 0; again < 2; ++again) { // nothing was counted the first time
            Type(Guide, field, text);
            Next(step);
            QCOMPARE(desk.TakeMessage(), Warned(UnknownError));
            QCOMPARE(FrontPanel(), BudgetPanel(step));
            QCOMPARE(TextOf(Guide, field), text);
        }
        Type(Guide, field, right);
        Next(step);
        QVERIFY(desk.Messages.isEmpty());
        if (step == 2)
            QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 2..."_s);
        else if (step == 6)
            QCOMPARE(TextOf(Guide, u"fraCreditorInformation"_s), u"Information for Creditor # 2..."_s);
        else
            QCOMPARE(FrontPanel(), BudgetPanel(step + 1));
    }

    void AnIncomeTooLargeByTheYearIsToldWhereItIsCombined()
    {
        GuiDesk desk;
        Begin(desk);
        Type(Guide, u"txtNumberOfIncomes"_s, u"1"_s);
        Next(1);
        EnterIncome(u"100000000000000"_s, 1); // a hundred million million every two weeks
        Click(Guide, u"optPayFrequency1"_s);
        Next(3);
        QCOMPARE(FrontPanel(), BudgetPanel(4));
        Next(4);
        Type(Guide, u"txtNumberOfCreditors"_s, u"0"_s);
        Next(5);
        Type(Guide, u"txtNumberOfRegularItems"_s, u"0"_s);
        Next(7);
        Next(9); // as it is, it is held; by the month it is too much
        QCOMPARE(desk.TakeMessage(), Warned(UnknownError));
        QCOMPARE(FrontPanel(), BudgetPanel(9));
        Click(Guide, u"cmdCancelBS9"_s);

        Choose(u"mnuStartBudget"_s);
        Type(Guide, u"txtNumberOfIncomes"_s, u"1"_s);
        Next(1);
        EnterIncome(u"100000000000000"_s, 1);
        Next(3); // weekly
        QCOMPARE(desk.TakeMessage(), Warned(UnknownError));
        QCOMPARE(FrontPanel(), BudgetPanel(3));
    }

    // The panels have their buttons in one place, and the first press would answer the next panel, too.
    void ADoubleClickIsOneClick()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(9);
        auto &next = Find<QPushButton>(Guide, u"cmdNextBS9"_s);
        const QPoint place = next.rect().center();
        const QPoint onScreen = next.mapTo(next.window(), place);
        QTest::mouseDClick(next.window()->windowHandle(), Qt::LeftButton, {}, onScreen);
        Settle();
        QCOMPARE(FrontPanel(), BudgetPanel(10));
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QTest::mouseClick(next.window()->windowHandle(), Qt::LeftButton, {}, onScreen);
        Settle();
        QCOMPARE(FrontPanel(), BudgetPanel(11));
    }

    // Before an option was clicked, coming back begins at the first panel, and so do the incomes.
    void ComingBackBeforeTheFrequencyBeginsAgain()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuFileCreditors"_s);
        Show(Main);
        Choose(u"mnuStartBudget"_s);
        WalkTo(2);
        EnterIncome(u"777"_s);
        QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 2..."_s);
        Show(u"frmCreditors"_s);
        Show(Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(1));
        QCOMPARE(FocusOf(Guide), u"txtNumberOfIncomes"_s);
        QCOMPARE(TextOf(Guide, u"txtNumberOfIncomes"_s), u"2"_s);
        const QString why = u"Coming back from another window before a pay frequency was clicked in step 3 starts the "
                            u"setup again. Please enter your incomes once more."_s;
        QCOMPARE(TextOf(Guide, u"lblBeginsAgain"_s), why);
        Show(u"frmCreditors"_s);
        Show(Guide);
        QCOMPARE(TextOf(Guide, u"lblBeginsAgain"_s), why);
        Next(1);
        QCOMPARE(TextOf(Guide, u"lblBeginsAgain"_s), QString());
        QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 1..."_s);
        EnterIncome(u"300"_s, 0);
        EnterIncome(u"1000"_s, 3);
        QCOMPARE(FrontPanel(), BudgetPanel(3));
        Click(Guide, u"optPayFrequency1"_s);
        Show(u"frmCreditors"_s);
        Show(Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(3)); // from here on it stays
        Next(3);
        QVERIFY(TextOf(Guide, u"lblIncomeSummary"_s).contains(u"$1,061.54"_s)); // no income is lost, none counts twice
    }

    void AMessageBoxIsNoReturn()
    {
        GuiDesk desk;
        Begin(desk);
        WalkTo(2);
        Type(Guide, u"txtAverageTakeHomePay"_s, u"much"_s);
        Next(2);
        desk.TakeMessage();
        QCOMPARE(FrontPanel(), BudgetPanel(2));
    }

    // ------------------------------------------------------------ keys

    void TheKeyboardAloneSetsUpABudget()
    {
        GuiDesk desk;
        Begin(desk);
        TypeHere(u"2"_s);
        Press(Qt::Key_Return);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS1"_s); // in a field Enter presses nothing
        QCOMPARE(FrontPanel(), BudgetPanel(1));
        Press(Qt::Key_Return);
        QCOMPARE(FrontPanel(), BudgetPanel(2));
        TypeHere(u"300"_s); // replaces the selected text
        Press(Qt::Key_Return);
        QCOMPARE(FocusOf(Guide), u"optPayFrequencyWE0"_s);
        Press(Qt::Key_Return);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS2"_s);
        Press(Qt::Key_Enter);
        QCOMPARE(TextOf(Guide, u"lblWageEarner"_s), u"Information for Corvelle # 2..."_s);
        TypeHere(u"1000"_s);
        Press(Qt::Key_Return);
        for (int i = 0; i < 3; ++i)
            Press(Qt::Key_Down);
        QCOMPARE(Selected(u"optPayFrequencyWE"_s), 3);
        Press(Qt::Key_Return);
        Press(Qt::Key_Return);
        QCOMPARE(FrontPanel(), BudgetPanel(3));
        Press(Qt::Key_Down);
        Press(Qt::Key_Return);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS3"_s);
        Press(Qt::Key_Return);
        QCOMPARE(FrontPanel(), BudgetPanel(4));
        Press(Qt::Key_Return);
        TypeHere(u"1"_s);
        Press(Qt::Key_Return);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS5"_s);
        Press(Qt::Key_Return);
        for (const auto &[text, next] :
             {std::pair{u"15"_s, u"txtCreditorAmount"_s}, {u"650"_s, u"txtCreditor"_s}, {u"Rent"_s, u"cmdNextBS6"_s}}) {
            TypeHere(text);
            Press(Qt::Key_Return);
            QCOMPARE(FocusOf(Guide), next);
        }
        Press(Qt::Key_Return);
        TypeHere(u"1"_s);
        Press(Qt::Key_Return);
        QCOMPARE(FocusOf(Guide), u"cmdNextBS7"_s);
        Press(Qt::Key_Return);
        for (const auto &[text, next] : {std::pair{u"120"_s, u"txtRegularItem"_s}, {u"Food"_s, u"cmdNextBS8"_s}}) {
            TypeHere(text);
            Press(Qt::Key_Return);
            QCOMPARE(FocusOf(Guide), next);
        }
        for (int step = 8; step <= 11; ++step) {
            QCOMPARE(FrontPanel(), BudgetPanel(step));
            Press(Qt::Key_Return);
        }
        QCOMPARE(desk.TakeMessage().Text, u"Profile saved."_s);
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), QByteArray("1\r\n15\r\n\"Rent\"\r\n650\r\n"));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(10615385));
        desk.TakeFiles();
        Press(Qt::Key_Return);
        QCOMPARE(ActiveWindow(), Main);
    }

    void TabGoesThroughAPanelAsItIsRead_data()
    {
        QTest::addColumn<QStringList>("way");
        const auto row = [](int step, const QStringList &fields) {
            QTest::addRow("%d", step) << fields + QStringList{u"cmdNextBS%1"_s.arg(step), u"cmdCancelBS%1"_s.arg(step)};
        };
        row(1, {u"txtNumberOfIncomes"_s});
        row(2, {u"txtAverageTakeHomePay"_s, u"optPayFrequencyWE0"_s});
        row(3, {u"optPayFrequency0"_s});
        row(4, {});
        row(5, {u"txtNumberOfCreditors"_s});
        row(6, {u"txtCreditorDueDate"_s, u"txtCreditorAmount"_s, u"txtCreditor"_s});
        row(7, {u"txtNumberOfRegularItems"_s});
        row(8, {u"txtRegularItemAmount"_s, u"txtRegularItem"_s});
    }
    void TabGoesThroughAPanelAsItIsRead()
    {
        QFETCH(QStringList, way);
        GuiDesk desk;
        Begin(desk);
        WalkTo(QString::fromLatin1(QTest::currentDataTag()).toInt());
        for (const QString &control : way + way.mid(0, 1)) {
            QCOMPARE(FocusOf(Guide), control);
            if (auto *field = qobject_cast<QLineEdit *>(&Find(Guide, control)))
                QCOMPARE(field->selectedText(), field->text());
            Press(Qt::Key_Tab);
        }
    }

    void AltAndNGoOn()
    {
        GuiDesk desk;
        Begin(desk);
        TypeHere(u"1"_s);
        QTest::keyClick(TheWindows.Loaded(Guide), Qt::Key_N, Qt::AltModifier);
        Settle();
        QCOMPARE(FrontPanel(), BudgetPanel(2));
        QCOMPARE(FocusOf(Guide), u"txtAverageTakeHomePay"_s);
    }

    // ------------------------------------------------------------ size

    void NoStepChangesTheSize()
    {
        GuiDesk desk;
        Begin(desk);
        const QSize size = TheWindows.Loaded(Guide)->size();
        QVERIFY2(size.width() <= 800 && size.height() <= 570, "it does not fit a small screen");
        for (int step = 1; step <= 12; ++step) {
            QCOMPARE(TextOf(Guide, u"lblStep"_s), u"Step %1 of 12"_s.arg(step));
            QCOMPARE(TheWindows.Loaded(Guide)->size(), size);
            if (step < 12) {
                Click(Guide, u"cmdCancelBS%1"_s.arg(step));
                Choose(u"mnuStartBudget"_s);
                WalkTo(step + 1);
            }
        }
        desk.TakeAll();
    }

    // ------------------------------------------------------------ shopping

    void TheShoppingRouteGoesThroughItsWindows()
    {
        GuiDesk desk;
        PagesWanted pages;
        Begin(desk, u"mnuStartShopping"_s);
        auto &tutor = Find<QTimer>(Main, u"tmrAutoTutor"_s);
        Click(Guide, u"cmdNextSS1"_s);
        QVERIFY(State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupRoute, 0);
        QCOMPARE(State.GuidedSetupStep, qint16(1));
        QCOMPARE(ActiveWindow(), Master);
        QVERIFY(!IsShown(Guide));
        QVERIFY(!IsShown(Main));
        QCOMPARE(pages.Take(), QList<int>{25});
        QVERIFY(!tutor.isActive()); // held all the way

        Click(Master, u"cmdExit"_s);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), u"pnlStartShopping2"_s);
        QCOMPARE(TextOf(Guide, u"lblStep"_s), u"Step 2 of 3"_s);
        QCOMPARE(FocusOf(Guide), u"cmdNextSS2"_s);
        Click(Guide, u"cmdNextSS2"_s);
        QCOMPARE(State.GuidedSetupStep, qint16(2));
        QCOMPARE(ActiveWindow(), Master);
        QVERIFY(!IsShown(Guide));
        QCOMPARE(pages.Take(), QList<int>{26});

        CloseByFrame(Master);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), u"pnlStartShopping3"_s);
        QVERIFY(!tutor.isActive());
        Click(Guide, u"cmdNextSS3"_s);
        QCOMPARE(State.GuidedSetupStep, qint16(3));
        QCOMPARE(ActiveWindow(), CurrentList);
        QVERIFY(!IsShown(Guide));
        QVERIFY(!IsEnabled(CurrentList, u"cmdSave"_s)); // an empty list can be looked at
        QCOMPARE(pages.Take(), QList<int>{4});

        Click(CurrentList, u"cmdQuit"_s);
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupStep, qint16(0));
        QVERIFY(!TheWindows.Loaded(Guide));
        QVERIFY(!TheWindows.Loaded(CurrentList));
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(tutor.isActive());
        QVERIFY(!desk.TakeEnd());
    }

    // A change to an item on the list fills the list's window unseen, in the middle of the route.
    void AWorkWindowThatWasLoadedUnseenHidesTheGuide()
    {
        GuiDesk desk;
        Begin(desk, u"mnuStartShopping"_s);
        Click(Guide, u"cmdNextSS1"_s);
        Click(Master, u"cmdExit"_s);
        Click(Guide, u"cmdNextSS2"_s);
        TheWindows.Touch(CurrentList);
        Click(Master, u"cmdExit"_s);
        Click(Guide, u"cmdNextSS3"_s);
        QCOMPARE(ActiveWindow(), CurrentList);
        QVERIFY(!IsShown(Guide));
        Click(CurrentList, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
    }

    void TheRoutesShowTheirPagesWhateverTheOption_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("staysAfterwards");
        QTest::newRow("on") << u"1"_s << true;
        QTest::newRow("off") << u"0"_s << false; // its pages go with the route
        QTest::newRow("neither") << u"5"_s << true;
    }
    void TheRoutesShowTheirPagesWhateverTheOption()
    {
        QFETCH(QString, option);
        QFETCH(bool, staysAfterwards);
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = option;
        Begin(desk, u"mnuStartShopping"_s);
        const auto seesPage = [](int page) {
            QVERIFY(IsShown(Tutor));
            QCOMPARE(Find<QTextEdit>(Tutor, u"rtbInstructions"_s).toPlainText(), State.TutorInstructions(page));
            QVERIFY(State.TutorInstructions(page).contains(u"Page %1"_s.arg(page)));
        };
        Click(Guide, u"cmdNextSS1"_s);
        seesPage(25);
        QCOMPARE(ActiveWindow(), Master);
        QVERIFY(!Find<QTimer>(Main, u"tmrAutoTutor"_s).isActive());
        Click(Master, u"cmdExit"_s);
        Click(Guide, u"cmdNextSS2"_s);
        seesPage(26);
        Click(Master, u"cmdExit"_s);
        Click(Guide, u"cmdNextSS3"_s);
        seesPage(4);
        Click(CurrentList, u"cmdQuit"_s);
        QCOMPARE(ActiveWindow(), Main);
        QCOMPARE(IsShown(Tutor), staysAfterwards);

        Choose(u"mnuStartPayingOffBills"_s);
        Click(Guide, u"cmdNextSP1"_s);
        Click(Guide, u"cmdNextSP2"_s);
        seesPage(13);
        QCOMPARE(ActiveWindow(), PayOff);
        Click(PayOff, u"cmdExit"_s);
        QCOMPARE(ActiveWindow(), Main);
        QCOMPARE(IsShown(Tutor), staysAfterwards);
    }

    void APageThatTheUserKeepsStays()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"0"_s;
        Begin(desk, u"mnuStartPayingOffBills"_s);
        Click(Guide, u"cmdNextSP1"_s);
        Click(Guide, u"cmdNextSP2"_s);
        Click(Tutor, u"imgTallymereTutor"_s);
        Show(PayOff);
        Click(PayOff, u"cmdExit"_s);
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(IsShown(Tutor));
    }

    // A page that the user has asked for elsewhere is none of a route's.
    void TheBudgetsRouteLeavesThePageThatStands()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"0"_s;
        desk.StartProgram();
        Q_EMIT TheTutorRequests.PageWanted(7);
        Choose(u"mnuStartBudget"_s);
        Click(Guide, u"cmdCancelBS1"_s);
        QVERIFY(IsShown(Tutor));
    }

    void ThePageComesAfterTheWindow()
    {
        GuiDesk desk;
        QStringList stood; // at each page
        const auto watch = connect(&TheTutorRequests, &TutorRequests::PageWanted, this,
                                   [&] { stood += IsShown(Guide) ? Guide : ActiveWindow(); });
        Begin(desk, u"mnuStartShopping"_s);
        for (const auto &[next, window, leave] : {std::tuple{u"cmdNextSS1"_s, Master, u"cmdExit"_s},
                                                  {u"cmdNextSS2"_s, Master, u"cmdExit"_s},
                                                  {u"cmdNextSS3"_s, CurrentList, u"cmdQuit"_s}}) {
            Click(Guide, next);
            Click(window, leave);
        }
        Choose(u"mnuStartPayingOffBills"_s);
        Click(Guide, u"cmdNextSP1"_s);
        Click(Guide, u"cmdNextSP2"_s);
        disconnect(watch);
        QCOMPARE(stood, (QStringList{Master, Master, CurrentList, PayOff}));
    }

    void LookingAtTheListOnTheWayIsNoStep()
    {
        GuiDesk desk;
        Begin(desk, u"mnuStartShopping"_s);
        Click(Guide, u"cmdNextSS1"_s);
        Click(Master, u"cmdViewCurrent"_s);
        QCOMPARE(ActiveWindow(), CurrentList);
        Click(CurrentList, u"cmdQuit"_s);
        QVERIFY(State.GuidedSetupActive);
        QCOMPARE(ActiveWindow(), Guide); // with the panel of the step that has begun
        QCOMPARE(FrontPanel(), u"pnlStartShopping2"_s);
        QVERIFY(IsShown(Master));
        Show(Master);
        Click(Master, u"cmdExit"_s);
        QCOMPARE(FrontPanel(), u"pnlStartShopping2"_s);
    }

    void AStepBackFromTheLastOneChangesNoPanel()
    {
        GuiDesk desk;
        Begin(desk, u"mnuStartShopping"_s);
        Click(Guide, u"cmdNextSS1"_s);
        Click(Master, u"cmdExit"_s);
        Click(Guide, u"cmdNextSS2"_s);
        Click(Master, u"cmdExit"_s);
        Click(Guide, u"cmdNextSS3"_s);
        Click(CurrentList, u"cmdMasterList"_s);
        Click(Master, u"cmdExit"_s);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), u"pnlStartShopping3"_s);
        Show(CurrentList);
        Click(CurrentList, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
    }

    void CancelOnTheFirstPanelLeavesNothingBehind()
    {
        GuiDesk desk;
        Begin(desk, u"mnuStartShopping"_s);
        Click(Guide, u"cmdCancelSS1"_s);
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(!State.GuidedSetupActive);
        Choose(u"mnuShopperMasterShoppingList"_s);
        QVERIFY(!TheWindows.Loaded(Guide));
        Click(Master, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
    }

    // A route that was left half-way is taken up wherever its windows are opened, until an entry begins one.
    void AStepThatWasLeftStands_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("leave");
        for (const int step : {1, 2}) {
            QTest::addRow("step %d, the catalogue", step)
                << step << u"mnuShopperMasterShoppingList"_s << Master << u"cmdExit"_s;
            QTest::addRow("step %d, the list", step)
                << step << u"mnuShopperReviewCurrentList"_s << CurrentList << u"cmdQuit"_s;
        }
    }
    void AStepThatWasLeftStands()
    {
        QFETCH(int, step);
        QFETCH(QString, entry);
        QFETCH(QString, window);
        QFETCH(QString, leave);
        GuiDesk desk;
        Begin(desk, u"mnuStartShopping"_s);
        for (int done = 1; done <= step; ++done) {
            Click(Guide, u"cmdNextSS%1"_s.arg(done));
            Click(Master, u"cmdExit"_s);
        }
        Click(Guide, u"cmdCancelSS%1"_s.arg(step + 1));
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(State.GuidedSetupActive);
        QCOMPARE(int(State.GuidedSetupStep), step);

        Choose(entry);
        QCOMPARE(ActiveWindow(), window);
        QVERIFY(TheWindows.Loaded(Guide)); // afresh, unseen
        QVERIFY(!IsShown(Guide));
        QVERIFY(!IsShown(Main));
        Click(window, leave);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), u"pnlStartShopping%1"_s.arg(step + 1));
        QCOMPARE(TheWindows.Loaded(Guide)->windowTitle(), u"Getting Started with Setting Up Tallymere"_s);
        Click(Guide, u"cmdCancelSS%1"_s.arg(step + 1));
        QCOMPARE(ActiveWindow(), Main);

        Choose(u"mnuStartBudget"_s);
        QCOMPARE(FrontPanel(), BudgetPanel(1));
        QVERIFY(!State.GuidedSetupActive);
        Click(Guide, u"cmdCancelBS1"_s);
        Choose(entry);
        QVERIFY(!TheWindows.Loaded(Guide));
        Click(window, leave);
        QVERIFY(!TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Main);
    }

    void EachEntryBeginsItsOwnRouteAfterOneThatWasLeft_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("panel");
        for (const int step : {1, 2})
            for (const auto &[entry, panel] : {std::pair{"mnuStartBudget", "pnlStartBudget1"},
                                               {"mnuStartShopping", "pnlStartShopping1"},
                                               {"mnuStartPayingOffBills", "pnlStartPayOff1"}})
                QTest::addRow("step %d, %s", step, entry)
                    << step << QString::fromLatin1(entry) << QString::fromLatin1(panel);
    }
    void EachEntryBeginsItsOwnRouteAfterOneThatWasLeft()
    {
        QFETCH(int, step);
        QFETCH(QString, entry);
        GuiDesk desk;
        Begin(desk, u"mnuStartShopping"_s);
        for (int done = 1; done <= step; ++done) {
            Click(Guide, u"cmdNextSS%1"_s.arg(done));
            Click(Master, u"cmdExit"_s);
        }
        Click(Guide, u"cmdCancelSS%1"_s.arg(step + 1));
        Choose(entry);
        QTEST(FrontPanel(), "panel");
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupStep, qint16(0));
    }

    // The welcome's wish for the budget is that entry, too.
    void TheWelcomesWishBeginsAtTheFirstPanel()
    {
        GuiDesk desk;
        desk.StartProgram();
        State.GuidedSetupActive = true;
        State.GuidedSetupRoute = ShoppingRoute;
        State.GuidedSetupStep = 2;
        State.WelcomeLevelPending = true;
        State.WelcomeLevel = 0;
        Show(u"frmAbout"_s);
        Show(Main);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(1));
        QVERIFY(!State.GuidedSetupActive);
    }

    // A catalogue that stood open before is not loaded again, so it does not hide the guide; its end brings it forward.
    void AnOpenCatalogueServesAsWell()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuShopperMasterShoppingList"_s);
        Show(Main);
        Choose(u"mnuStartShopping"_s);
        Click(Guide, u"cmdNextSS1"_s);
        QCOMPARE(ActiveWindow(), Master);
        QVERIFY(IsShown(Guide));
        Click(Master, u"cmdExit"_s);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), u"pnlStartShopping2"_s);
    }

    // ------------------------------------------------------------ paying off

    void ThePayOffRouteGoesThroughItsWindow()
    {
        GuiDesk desk;
        PagesWanted pages;
        Begin(desk, u"mnuStartPayingOffBills"_s);
        Click(Guide, u"cmdNextSP1"_s);
        QCOMPARE(FrontPanel(), u"pnlStartPayOff2"_s);
        QCOMPARE(TextOf(Guide, u"lblStep"_s), u"Step 2 of 2"_s);
        QCOMPARE(FocusOf(Guide), u"cmdNextSP2"_s);
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(pages.Take(), QList<int>());
        Click(Guide, u"cmdNextSP2"_s);
        QVERIFY(State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupRoute, 1);
        QCOMPARE(State.GuidedSetupStep, qint16(2));
        QCOMPARE(ActiveWindow(), PayOff);
        QVERIFY(!IsShown(Guide));
        QCOMPARE(pages.Take(), QList<int>{13});
        Click(PayOff, u"cmdExit"_s);
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupStep, qint16(0));
        QVERIFY(!TheWindows.Loaded(Guide));
        QVERIFY(!TheWindows.Loaded(PayOff));
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(Find<QTimer>(Main, u"tmrAutoTutor"_s).isActive());
        QVERIFY(!desk.TakeEnd());
    }

    void CancelLeavesThePayOffRoute_data()
    {
        QTest::addColumn<int>("step");
        QTest::newRow("first panel") << 1;
        QTest::newRow("second panel") << 2;
    }
    void CancelLeavesThePayOffRoute()
    {
        QFETCH(int, step);
        GuiDesk desk;
        Begin(desk, u"mnuStartPayingOffBills"_s);
        if (step == 2)
            Click(Guide, u"cmdNextSP1"_s);
        Click(Guide, u"cmdCancelSP%1"_s.arg(step));
        QVERIFY(!TheWindows.Loaded(Guide));
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(ActiveWindow(), Main);
    }

    // A pay off window that stood open before is not loaded again, so it does not hide the guide. Its end is that of
    // the route, but not that of another one which was begun meanwhile.
    void AnOpenPayOffWindowEndsItsRouteOnly()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(PayOff);
        Show(Main);
        Choose(u"mnuStartPayingOffBills"_s);
        Click(Guide, u"cmdNextSP1"_s);
        Click(Guide, u"cmdNextSP2"_s);
        QCOMPARE(ActiveWindow(), PayOff);
        QVERIFY(IsShown(Guide));
        Show(Guide);
        QCOMPARE(FrontPanel(), u"pnlStartPayOff2"_s);
        Click(Guide, u"cmdCancelSP2"_s);
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(State.GuidedSetupActive);

        Choose(u"mnuStartBudget"_s);
        QVERIFY(!State.GuidedSetupActive);
        WalkTo(6);
        Show(PayOff);
        Click(PayOff, u"cmdExit"_s);
        QVERIFY(TheWindows.Loaded(Guide));
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(6));
        EnterCreditor(u"15"_s, u"650"_s, u"Rent"_s);
        QCOMPARE(TextOf(Guide, u"fraCreditorInformation"_s), u"Information for Creditor # 2..."_s);
    }

    void AnOpenPayOffWindowEndsTheRouteThatGoesThroughIt()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(PayOff);
        Show(Main);
        Choose(u"mnuStartPayingOffBills"_s);
        Click(Guide, u"cmdNextSP1"_s);
        Click(Guide, u"cmdNextSP2"_s);
        Click(PayOff, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Guide));
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(ActiveWindow(), Main);
    }

    void TheStepDecidesWhichPanelComesBack_data()
    {
        QTest::addColumn<int>("route");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("panel");
        const QString unchanged = BudgetPanel(1);
        QTest::newRow("shopping, 0") << 0 << 0 << unchanged;
        QTest::newRow("shopping, 1") << 0 << 1 << u"pnlStartShopping2"_s;
        QTest::newRow("shopping, 2") << 0 << 2 << u"pnlStartShopping3"_s;
        QTest::newRow("shopping, 3") << 0 << 3 << unchanged;
        QTest::newRow("shopping, below") << 0 << -1 << unchanged;
        QTest::newRow("paying off, 0") << 1 << 0 << unchanged;
        QTest::newRow("paying off, 1") << 1 << 1 << u"pnlStartPayOff2"_s;
        QTest::newRow("paying off, 2") << 1 << 2 << unchanged;
        QTest::newRow("no such route") << 2 << 1 << unchanged;
    }
    void TheStepDecidesWhichPanelComesBack()
    {
        QFETCH(int, route);
        QFETCH(int, step);
        GuiDesk desk;
        desk.StartProgram();
        State.GuidedSetupActive = true;
        State.GuidedSetupRoute = route;
        State.GuidedSetupStep = qint16(step);
        TheWindows.Touch(Guide).setWindowTitle(RouteTitle::Shopping);
        Show(Guide);
        QTEST(FrontPanel(), "panel");
    }

    // ------------------------------------------------------------ the first start

    void TheWelcomesWishIsFollowedByTheQuestionForThePayPeriod()
    {
        GuiDesk desk;
        State.WelcomeLevelPending = true;
        State.WelcomeLevel = 0;
        bool guideStands = false;
        QTimer::singleShot(0, qApp, [&] {
            guideStands = IsShown(Guide) && !IsShown(Main) && IsShown(u"frmSetCurrentPayPeriod"_s);
            Click(u"frmSetCurrentPayPeriod"_s, u"cmdExit"_s);
        });
        Show(Main);
        QVERIFY(guideStands);
        QCOMPARE(ActiveWindow(), Guide);
        QCOMPARE(FrontPanel(), BudgetPanel(1));
        QCOMPARE(FocusOf(Guide), u"txtNumberOfIncomes"_s);
        QVERIFY(!IsShown(Main));
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
        desk.TakeHourglass();
        QVERIFY(!desk.TakeEnd());
    }
};

REGISTER_TEST(gui_frmGettingStarted)
#include "gui_frmGettingStarted.moc"
