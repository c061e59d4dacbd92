// The settings window: what it shows, what applies at once, every way out, and what each leaves behind.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "platform/controls/UpDown.h"

#include <QRadioButton>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmEnvironmentSettings"_s;
const QString Forecast = u"txtForecastPeriods"_s;
const QString Paycheck = u"txtPaycheckAmount"_s;
const QString Tax = u"txtSalesTax"_s;
const QString Net = u"txtAverageNetPercentage"_s;
const QString DatesWindow = u"frmSemiMonthlyPayInfo"_s;
const QString MonthEndWindow = u"frmMonthlyPaymentOption"_s;
const QString UnknownError =
    u"An unknown error occured. This may be due to an invalid entry. If you need help press F1 for assistance on this "
    u"page. On the main menu click on Help->Search for Help On... or Help->How Do I? or click on any of the help icons "
    u"on the bottom right of the main window."_s;

enum Way { ExitButton, CloseBox };

Currency Dollars(qint64 amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

/// A biweekly household with values that the texts typed below differ from.
void TakeHousehold()
{
    State.ForecastPeriods = 26;
    State.PaycheckAmount = Dollars(1000);
    State.PayFrequency = Biweekly;
    State.FirstPayDate = 1;
    State.SecondPayDate = 15;
    State.MonthEndPay = -1;
    State.SalesTax = 0.06F;
    State.CurrentStoreFile = u"untitled.lst"_s;
    State.AverageNetPercentage = 0.9F;
}

/// Amounts with more digits than the window shows.
void TakeFineHousehold()
{
    TakeHousehold();
    State.PaycheckAmount = Currency::FromTenThousandths(10615385);
    State.SalesTax = 0.06625F;
    State.AverageNetPercentage = 1.0F / 3;
}

void VerifyFine()
{
    QCOMPARE(State.ForecastPeriods, qint16(26));
    QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(10615385));
    QVERIFY(State.SalesTax == 0.06625F); // exactly
    QVERIFY(State.AverageNetPercentage == 1.0F / 3);
}

void VerifyUnchanged()
{
    QCOMPARE(State.ForecastPeriods, qint16(26));
    QCOMPARE(State.PaycheckAmount, Dollars(1000));
    QCOMPARE(State.SalesTax, 0.06F);
    QCOMPARE(State.AverageNetPercentage, 0.9F);
}

void Leave(int way)
{
    if (way == ExitButton)
        Click(Window, u"cmdExit"_s);
    else
        CloseByFrame(Window);
}

/// The selected option, -1 if there is none.
int SelectedFrequency()
{
    int selected = -1;
    for (int i = 0; i < 4; ++i)
        if (Find<QRadioButton>(Window, u"optPayFrequency%1"_s.arg(i)).isChecked())
            selected = selected < 0 ? i : 99;
    return selected;
}

QString SelectedText(const QString &field)
{
    return Find<QLineEdit>(Window, field).selectedText();
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

bool ChooseFrequencyAndAnswer(int index, const QString &modal, const std::function<void()> &steps = {})
{
    return Meanwhile(
        modal, [&] { Click(Window, u"optPayFrequency%1"_s.arg(index)); }, steps);
}

} // namespace

class gui_frmEnvironmentSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWordsAreTheDesigns_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *control, const char *text) {
            QTest::newRow(control) << QString::fromLatin1(control) << QString::fromLatin1(text);
        };
        row("lblForecastPeriods", "Forecast Periods");
        row("lblPaycheckAmount", "Paycheck Amount");
        row("lblSalesTax", "Sales Tax");
        row("lblSalesTaxPercent", "%");
        row("lblAverageNetPercentage", "Average Net Percentage");
        row("lblAverageNetPercentagePercent", "%");
        row("lblStoreFile", "Current Store File:");
        row("optPayFrequency0", "Weekly");
        row("optPayFrequency1", "Biweekly");
        row("optPayFrequency2", "Semimonthly");
        row("optPayFrequency3", "Monthly");
        row("cmdExit", "E&xit");
    }
    void TheWordsAreTheDesigns()
    {
        QFETCH(QString, control);
        QFETCH(QString, text);
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TextOf(Window, control), text);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Environment Settings"_s);
    }

    void TheLoadShowsTheSettings()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PaycheckAmount = Currency::FromTenThousandths(12345000);
        Show(Window);
        QCOMPARE(TextOf(Window, Forecast), u"26"_s);
        QCOMPARE(TextOf(Window, Paycheck), u"$1,234.50"_s);
        QCOMPARE(TextOf(Window, Tax), u"6.00"_s);
        QCOMPARE(TextOf(Window, Net), u"90.00"_s);
        QCOMPARE(TextOf(Window, u"txtStoreFile"_s), u"untitled.lst"_s);
        QVERIFY(Find<QLineEdit>(Window, u"txtStoreFile"_s).isReadOnly());
        QCOMPARE(Find<UpDown>(Window, u"updForecastPeriods"_s).Maximum(), 1000);
    }

    void TheLoadSelectsTheFrequencyAndAsksNothing_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("option");
        QTest::newRow("weekly") << 7 << 0;
        QTest::newRow("biweekly") << 14 << 1;
        QTest::newRow("semimonthly") << 15 << 2;
        QTest::newRow("monthly") << 30 << 3;
        QTest::newRow("another value selects none") << 21 << -1;
        QTest::newRow("no value selects none") << 0 << -1;
    }
    void TheLoadSelectsTheFrequencyAndAsksNothing()
    {
        QFETCH(int, frequency);
        QFETCH(int, option);
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = qint16(frequency);
        Show(Window);
        QCOMPARE(SelectedFrequency(), option);
        QCOMPARE(State.PayFrequency, qint16(frequency));
        QVERIFY(!TheWindows.Loaded(DatesWindow));
        QVERIFY(!TheWindows.Loaded(MonthEndWindow));
        QVERIFY(!TheWindows.Loaded(u"frmCalculateWages"_s));
    }

    void ActivationGoesToTheForecastAndSelectsIt()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(FocusOf(Window), Forecast);
        QCOMPARE(SelectedText(Forecast), u"26"_s);

        PressEnter(Window, Forecast);
        Show(u"frmBudget"_s);
        Show(Window);
        QCOMPARE(FocusOf(Window), Forecast);
        QCOMPARE(SelectedText(Forecast), u"26"_s);
    }

    void EnterGoesRoundTheFieldsAndSelectsThem()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QString field = Forecast;
        for (const auto &[next, text] : {std::pair{Paycheck, u"$1,000.00"_s},
                                         {Tax, u"6.00"_s},
                                         {Net, u"90.00"_s},
                                         {Forecast, u"26"_s},
                                         {Paycheck, u"$1,000.00"_s}}) {
            PressEnter(Window, field);
            QCOMPARE(FocusOf(Window), next);
            QCOMPARE(SelectedText(next), text);
            field = next;
        }
        QVERIFY(IsShown(Window));
    }

    void TabGoesThroughTheWindowAsItIsRead()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        for (const QString &next : {Paycheck, Tax, Net, u"optPayFrequency1"_s, u"cmdExit"_s, Forecast}) {
            QTest::keyClick(TheWindows.Loaded(Window)->FocusControl(), Qt::Key_Tab);
            Settle();
            QCOMPARE(FocusOf(Window), next);
        }
    }

    void TabSelectsTheTextOfTheFieldItComesTo()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        for (const auto &[field, text] : {std::pair{Paycheck, u"$1,000.00"_s},
                                          {Tax, u"6.00"_s},
                                          {Net, u"90.00"_s},
                                          {u"optPayFrequency1"_s, QString()},
                                          {u"cmdExit"_s, QString()},
                                          {Forecast, u"26"_s}}) {
            QTest::keyClick(TheWindows.Loaded(Window)->FocusControl(), Qt::Key_Tab);
            Settle();
            QCOMPARE(FocusOf(Window), field);
            if (!text.isEmpty())
                QCOMPARE(SelectedText(field), text);
        }
    }

    void TheSpinnerChangesTheNumberByOne()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"Up"_s);
        QCOMPARE(TextOf(Window, Forecast), u"27"_s);
        Click(Window, u"Down"_s);
        Click(Window, u"Down"_s);
        QCOMPARE(TextOf(Window, Forecast), u"25"_s);
        QCOMPARE(FocusOf(Window), Forecast);
        QTest::keyClick(&Find(Window, Forecast), Qt::Key_Up);
        QCOMPARE(TextOf(Window, Forecast), u"26"_s);
        QTest::keyClick(&Find(Window, Forecast), Qt::Key_Down);
        QCOMPARE(TextOf(Window, Forecast), u"25"_s);
        QCOMPARE(State.ForecastPeriods, qint16(26)); // applies when the window is left
    }

    void TheSpinnerStaysWithinItsBounds()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Type(Window, Forecast, u"999"_s);
        Click(Window, u"Up"_s);
        Click(Window, u"Up"_s);
        QCOMPARE(TextOf(Window, Forecast), u"1000"_s);
        Type(Window, Forecast, u"2"_s);
        Click(Window, u"Down"_s);
        Click(Window, u"Down"_s);
        QCOMPARE(TextOf(Window, Forecast), u"1"_s);
    }

    void AFrequencyTakesEffectAtOnce_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("question");
        QTest::newRow("weekly") << 14 << 0 << 7 << u"Calculate Wages (Weekly)"_s << QString();
        QTest::newRow("biweekly") << 7 << 1 << 14 << u"Calculate Wages (Biweekly)"_s << QString();
        QTest::newRow("semimonthly") << 7 << 2 << 15 << u"Calculate Wages (Semimonthly)"_s << DatesWindow;
        QTest::newRow("monthly") << 7 << 3 << 30 << u"Calculate Wages (Monthly)"_s << MonthEndWindow;
    }
    void AFrequencyTakesEffectAtOnce()
    {
        QFETCH(int, before);
        QFETCH(int, option);
        QFETCH(int, frequency);
        QFETCH(QString, caption);
        QFETCH(QString, question);
        GuiDesk desk;
        const QString wages = u"frmCalculateWages"_s;
        TakeHousehold();
        State.PayFrequency = qint16(before);
        State.CurrentPayPeriod = u"May 24, 1997"_s;
        const QByteArray file = desk.ReadFile(u"environm.ini"_s);
        Show(Window);
        Type(Window, Forecast, u"abc"_s); // the other fields need not be valid
        if (question.isEmpty()) {
            Click(Window, u"optPayFrequency%1"_s.arg(option));
        } else {
            int during = 0;
            QVERIFY(ChooseFrequencyAndAnswer(option, question, [&] { during = State.PayFrequency; }));
            QCOMPARE(during, frequency);
        }
        QCOMPARE(State.PayFrequency, qint16(frequency));
        QCOMPARE(SelectedFrequency(), option);
        QVERIFY(TheWindows.Loaded(wages));
        QCOMPARE(TheWindows.Loaded(wages)->windowTitle(), caption);
        QVERIFY(!IsShown(wages));
        QVERIFY(!TheWindows.Loaded(DatesWindow));
        QVERIFY(!TheWindows.Loaded(MonthEndWindow));
        // Nothing else moves: the pay dates of other frequencies, the pay period, the file.
        QCOMPARE(State.FirstPayDate, qint16(1));
        QCOMPARE(State.SecondPayDate, qint16(15));
        QCOMPARE(State.MonthEndPay, qint16(-1));
        QCOMPARE(State.CurrentPayPeriod, u"May 24, 1997"_s);
        QCOMPARE(desk.ReadFile(u"environm.ini"_s), file);
        VerifyUnchanged();
    }

    void TheDatesAreAskedInTheirWindowAndThenThisOneIsActive()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QVERIFY(ChooseFrequencyAndAnswer(2, DatesWindow, [] {
            Type(DatesWindow, u"txtFirstPayDate"_s, u"5"_s);
            Type(DatesWindow, u"txtSecondPayDate"_s, u"20"_s);
            Click(DatesWindow, u"cmdOK"_s);
        }));
        QCOMPARE(State.FirstPayDate, qint16(5));
        QCOMPARE(State.SecondPayDate, qint16(20));
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(FocusOf(Window), Forecast);
    }

    void LeavingSemimonthlyKeepsItsDates()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = Semimonthly;
        Show(Window);
        Click(Window, u"optPayFrequency0"_s);
        QCOMPARE(State.PayFrequency, Weekly);
        QCOMPARE(State.FirstPayDate, qint16(1));
        QCOMPARE(State.SecondPayDate, qint16(15));
        QCOMPARE(State.MonthEndPay, qint16(-1));
    }

    void AnOptionThatStaysSelectedOpensNothing_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("option");
        QTest::newRow("semimonthly") << 15 << u"optPayFrequency2"_s;
        QTest::newRow("monthly") << 30 << u"optPayFrequency3"_s;
    }
    void AnOptionThatStaysSelectedOpensNothing()
    {
        QFETCH(int, frequency);
        QFETCH(QString, option);
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = qint16(frequency);
        Show(Window);
        for (const QString &question : {DatesWindow, MonthEndWindow})
            QVERIFY(!Meanwhile(question, [&] { Click(Window, option); }));
        QCOMPARE(State.PayFrequency, qint16(frequency));
    }

    void NothingIsAskedWhileTheProgramStarts()
    {
        GuiDesk desk;
        TakeHousehold();
        State.InitializingVariables = true;
        Show(Window);
        QVERIFY(!ChooseFrequencyAndAnswer(2, DatesWindow));
        QCOMPARE(State.PayFrequency, Semimonthly);
        QVERIFY(!ChooseFrequencyAndAnswer(3, MonthEndWindow));
        QCOMPARE(State.PayFrequency, Monthly);
    }

    void CodeThatSelectsAnOptionRaisesTheSameEvent()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Find<QRadioButton>(Window, u"optPayFrequency0"_s).setChecked(true);
        QCOMPARE(State.PayFrequency, Weekly);
        QVERIFY(Meanwhile(MonthEndWindow, [] { Find<QRadioButton>(Window, u"optPayFrequency3"_s).setChecked(true); }));
        QCOMPARE(State.PayFrequency, Monthly);
    }

    void TheArrowKeysChooseAFrequency()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = Weekly;
        Show(Window);
        auto &weekly = Find<QRadioButton>(Window, u"optPayFrequency0"_s);
        weekly.setFocus();
        QTest::keyClick(&weekly, Qt::Key_Down);
        QCOMPARE(State.PayFrequency, Biweekly);
        QCOMPARE(FocusOf(Window), u"optPayFrequency1"_s);
        QVERIFY(Meanwhile(DatesWindow, [] { QTest::keyClick(&Find(Window, u"optPayFrequency1"_s), Qt::Key_Right); }));
        QCOMPARE(State.PayFrequency, Semimonthly);
        QCOMPARE(FocusOf(Window), Forecast); // the window was activated again
        weekly.setFocus();
        QVERIFY(Meanwhile(MonthEndWindow, [&] { QTest::keyClick(&weekly, Qt::Key_Up); })); // round the end
        QCOMPARE(State.PayFrequency, Monthly);
        QVERIFY(Meanwhile(DatesWindow, [] { QTest::keyClick(&Find(Window, u"optPayFrequency3"_s), Qt::Key_Left); }));
        QCOMPARE(State.PayFrequency, Semimonthly);
    }

    void ARefusedEntryKeepsTheWindow_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("way");
        for (const int way : {ExitButton, CloseBox}) {
            const auto row = [&](const QString &field, const QString &text, const QString &message) {
                QTest::addRow("%s \"%s\" by way %d", qPrintable(field), qPrintable(text), way)
                    << field << text << message << way;
            };
            row(Forecast, u"abc"_s, u"Forecast Periods does not contain a valid numeric amount"_s);
            row(Forecast, {}, u"Forecast Periods does not contain a valid numeric amount"_s);
            row(Paycheck, u"much"_s, u"Paycheck Amount does not contain a valid currency amount"_s);
            row(Tax, u"6%"_s, u"Sales Tax does not contain a valid numeric amount"_s);
            row(Net, u"1.2.3"_s, u"Due Date does not contain a valid numeric amount"_s);
        }
    }
    void ARefusedEntryKeepsTheWindow()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, message);
        QFETCH(int, way);
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        for (const QString &other : {Forecast, Paycheck, Tax, Net})
            Type(Window, other, other == field ? text : u"7"_s);
        TheWindows.Loaded(Window)->FocusOn(&Find(Window, u"cmdExit"_s));
        Leave(way);
        QCOMPARE(desk.TakeMessage(), (Message{message, u"Environment Settings"_s, Icon::Warning}));
        QVERIFY(IsShown(Window));
        QCOMPARE(FocusOf(Window), field);
        QCOMPARE(TextOf(Window, field), text);
        VerifyUnchanged();
    }

    void RefusedBehindAnotherWindowItComesToTheFront()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        Type(Window, Tax, u"6%"_s);
        Show(u"frmMain"_s);
        QString before;
        TheDesk.ShowMessage = [&, show = TheDesk.ShowMessage](const Message &message) {
            before = ActiveWindow(); // the message stands over the window that it is about
            return show(message);
        };
        CloseByFrame(Window);
        QCOMPARE(desk.TakeMessage().Text, u"Sales Tax does not contain a valid numeric amount"_s);
        QCOMPARE(before, Window);
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(FocusOf(Window), Tax);
        QCOMPARE(SelectedText(Tax), u"6%"_s);
    }

    void TheFirstFailureIsToldFirst()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        for (const QString &field : {Forecast, Paycheck, Tax, Net})
            Type(Window, field, u"abc"_s);
        for (const QString &field : {Forecast, Paycheck, Tax, Net}) {
            Click(Window, u"cmdExit"_s);
            QCOMPARE(desk.Messages.size(), 1);
            desk.TakeMessage();
            QCOMPARE(FocusOf(Window), field);
            Type(Window, field, u"5"_s);
        }
        Click(Window, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void LeavingStoresTheFields_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("by the button") << int(ExitButton);
        QTest::newRow("by the close box") << int(CloseBox);
    }
    void LeavingStoresTheFields()
    {
        QFETCH(int, way);
        GuiDesk desk;
        TakeHousehold();
        const QByteArray file = desk.ReadFile(u"environm.ini"_s);
        Show(Window);
        Type(Window, Forecast, u"52"_s);
        Type(Window, Paycheck, u"$1,234.56"_s);
        Type(Window, Tax, u"8.25"_s);
        Type(Window, Net, u"85"_s);
        VerifyUnchanged(); // until the window is left
        Leave(way);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.ForecastPeriods, qint16(52));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(12345600));
        QCOMPARE(State.SalesTax, 0.0825F);
        QCOMPARE(State.AverageNetPercentage, 0.85F);
        QCOMPARE(desk.ReadFile(u"environm.ini"_s), file);
    }

    void AnUntouchedWindowLeavesTheSettingsAsTheyWere_data() { LeavingStoresTheFields_data(); }
    void AnUntouchedWindowLeavesTheSettingsAsTheyWere()
    {
        QFETCH(int, way);
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Leave(way);
        QVERIFY(!TheWindows.Loaded(Window));
        VerifyUnchanged();
        QCOMPARE(State.PayFrequency, Biweekly);
    }

    void ATypedPercentageShowsOneFigureEverywhereAndNeverDrifts_data() { LeavingStoresTheFields_data(); }
    void ATypedPercentageShowsOneFigureEverywhereAndNeverDrifts()
    {
        QFETCH(int, way);
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        Type(Window, Tax, u"6.625"_s);
        Type(Window, Net, u"85.375"_s);
        Leave(way);
        for (int time = 0; time < 10; ++time) {
            Show(u"frmMain"_s);
            const QStringList lines = RowsOf(u"frmMain"_s, u"lstBudgetState"_s);
            QCOMPARE(lines[4], u"Average Net Percentage: 85.38%"_s);
            QCOMPARE(lines[8], u"Current Sales Tax: 6.63%"_s);
            Show(Window);
            QCOMPARE(TextOf(Window, Tax), u"6.63"_s);
            QCOMPARE(TextOf(Window, Net), u"85.38"_s);
            Leave(way);
            QVERIFY(!TheWindows.Loaded(Window));
        }
        QVERIFY(State.SalesTax == 0.06625F); // exactly
        QVERIFY(State.AverageNetPercentage == 0.85375F);
    }

    void AFieldThatNobodyEditedLeavesItsSetting_data() { LeavingStoresTheFields_data(); }
    void AFieldThatNobodyEditedLeavesItsSetting()
    {
        QFETCH(int, way);
        GuiDesk desk;
        TakeFineHousehold();
        Show(Window);
        QCOMPARE(TextOf(Window, Paycheck), u"$1,061.54"_s);
        QCOMPARE(TextOf(Window, Tax), u"6.63"_s);
        QCOMPARE(TextOf(Window, Net), u"33.33"_s);
        Leave(way);
        QVERIFY(!TheWindows.Loaded(Window));
        VerifyFine();
    }

    void ATextThatIsTypedOverTheSameIsStored_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("way");
        for (const int way : {ExitButton, CloseBox}) {
            QTest::addRow("paycheck by way %d", way) << Paycheck << u"$1,061.54"_s << way;
            QTest::addRow("sales tax by way %d", way) << Tax << u"6.63"_s << way;
            QTest::addRow("net percentage by way %d", way) << Net << u"33.33"_s << way;
        }
    }
    void ATextThatIsTypedOverTheSameIsStored()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(int, way);
        GuiDesk desk;
        TakeFineHousehold();
        Show(Window);
        QCOMPARE(TextOf(Window, field), text);
        Type(Window, field, text);
        Leave(way);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(field == Paycheck ? 10615400 : 10615385));
        QVERIFY(State.SalesTax == (field == Tax ? 0.0663F : 0.06625F));
        QVERIFY(State.AverageNetPercentage == (field == Net ? 0.3333F : 1.0F / 3));
    }

    void AnErasedFieldIsRefusedAndNotTakenForUnedited()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Type(Window, Tax, {});
        Click(Window, u"cmdExit"_s);
        QCOMPARE(desk.TakeMessage().Text, u"Sales Tax does not contain a valid numeric amount"_s);
        VerifyUnchanged();
    }

    void FieldsThatNobodyEditedFollowTheirSettings_data() { LeavingStoresTheFields_data(); }
    void FieldsThatNobodyEditedFollowTheirSettings()
    {
        QFETCH(int, way);
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold();
        Show(Window);
        Type(Window, Tax, u"8.25"_s);
        Show(u"frmMain"_s);
        TakeFineHousehold(); // another window has changed everything
        State.ForecastPeriods = 52;
        Show(Window);
        QCOMPARE(TextOf(Window, Forecast), u"52"_s);
        QCOMPARE(SelectedText(Forecast), u"52"_s);
        QCOMPARE(TextOf(Window, Paycheck), u"$1,061.54"_s);
        QCOMPARE(TextOf(Window, Tax), u"8.25"_s); // what the user has typed stays
        QCOMPARE(TextOf(Window, Net), u"33.33"_s);
        Leave(way);
        QCOMPARE(State.ForecastPeriods, qint16(52));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(10615385));
        QVERIFY(State.SalesTax == 0.0825F);
        QVERIFY(State.AverageNetPercentage == 1.0F / 3);
    }

    void ClosedBehindAnotherWindowItWritesNoOldTextsBack()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold();
        Show(Window);
        Show(u"frmMain"_s);
        TakeFineHousehold();
        State.ForecastPeriods = 52;
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.ForecastPeriods, qint16(52));
        State.ForecastPeriods = 26;
        VerifyFine();
    }

    void LoadedUnseenItShowsWhatThereIsWhenItIsSeen()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold();
        TheWindows.Touch(Window); // as opening a store list does
        TakeFineHousehold();
        Show(Window);
        QCOMPARE(TextOf(Window, Paycheck), u"$1,061.54"_s);
        Click(Window, u"cmdExit"_s);
        VerifyFine();
    }

    void AStepOfTheSpinnerIsAnEdit()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold();
        Show(Window);
        Click(Window, u"Up"_s);
        Click(Window, u"Down"_s);
        Show(u"frmMain"_s);
        State.ForecastPeriods = 52;
        Show(Window);
        QCOMPARE(TextOf(Window, Forecast), u"26"_s);
        Click(Window, u"cmdExit"_s);
        QCOMPARE(State.ForecastPeriods, qint16(26));
    }

    void AForecastBeyondItsBoundsIsMendedUneditedToo()
    {
        GuiDesk desk;
        TakeHousehold();
        State.ForecastPeriods = 5000; // of an edited file
        Show(Window);
        Click(Window, u"cmdExit"_s);
        QCOMPARE(State.ForecastPeriods, qint16(1000));
    }

    void AForecastThatIsClampedToWhatWasShownIsStored()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold();
        State.ForecastPeriods = 1000;
        Show(Window);
        Type(Window, Forecast, u"1500"_s);
        Show(u"frmMain"_s);
        State.ForecastPeriods = 52;
        CloseByFrame(Window);
        QCOMPARE(State.ForecastPeriods, qint16(1000));
    }

    void ThePayDaysAreToldUnderThePointer()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold();
        const auto told = [](const QString &control, const QString &text) {
            const QWidget &widget = Find(Window, control);
            QCOMPARE(widget.toolTip(), text);
            QCOMPARE(widget.accessibleDescription(), text);
        };
        const QString dates = u"optPayFrequency2"_s;
        const QString monthEnd = u"optPayFrequency3"_s;
        TheWindows.Touch(Window);
        told(dates, u"Pay days 1 and 15. To change them choose another frequency, then this one again."_s);
        told(monthEnd,
             u"Paid at the end of the month. To change this choose another frequency, then this one again."_s);
        State.SecondPayDate = 20;
        Show(Window);
        told(dates, u"Pay days 1 and 20. To change them choose another frequency, then this one again."_s);
        // While its question is answered nothing has activated the window yet.
        QVERIFY(ChooseFrequencyAndAnswer(2, DatesWindow, [] {
            Type(DatesWindow, u"txtFirstPayDate"_s, u"5"_s);
            Type(DatesWindow, u"txtSecondPayDate"_s, u"0"_s);
            Click(DatesWindow, u"cmdOK"_s);
        }));
        told(dates,
             u"Pay days 5 and the end of the month. To change them choose another frequency, then this one again."_s);
        QVERIFY(ChooseFrequencyAndAnswer(3, MonthEndWindow, [] { Click(MonthEndWindow, u"optYesNo1"_s); }));
        told(monthEnd,
             u"Not paid at the end of the month. To change this choose another frequency, then this one again."_s);
    }

    void WithoutAPayFrequencyItsFrameSaysSo()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = 0;
        Show(Window);
        const QWidget &frame = Find(Window, u"fraPayFrequency"_s);
        QCOMPARE(frame.toolTip(), u"No pay frequency is chosen yet"_s);
        QCOMPARE(frame.accessibleDescription(), u"No pay frequency is chosen yet"_s);
        Click(Window, u"optPayFrequency0"_s);
        QCOMPARE(frame.toolTip(), QString());
        QCOMPARE(frame.accessibleDescription(), QString());
    }

    void TheForecastIsClamped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("clamped");
        QTest::addColumn<int>("setting");
        QTest::newRow("1500") << u"1500"_s << u"1000"_s << 1000;
        QTest::newRow("1000") << u"1000"_s << u"1000"_s << 1000;
        QTest::newRow("0") << u"0"_s << u"1"_s << 1;
        QTest::newRow("-3") << u"-3"_s << u"1"_s << 1;
        QTest::newRow("26.5 is rounded to even, the text stays") << u"26.5"_s << u"26.5"_s << 26;
    }
    void TheForecastIsClamped()
    {
        QFETCH(QString, text);
        QFETCH(QString, clamped);
        QFETCH(int, setting);
        {
            GuiDesk desk;
            TakeHousehold();
            Show(Window);
            Type(Window, Forecast, text);
            // A paycheck that ends in an error keeps the window, so that the field can be read.
            Type(Window, Paycheck, u"1e30"_s);
            Click(Window, u"cmdExit"_s);
            QCOMPARE(desk.TakeMessage().Text, UnknownError);
            QCOMPARE(TextOf(Window, Forecast), clamped);
            QCOMPARE(State.ForecastPeriods, qint16(setting));
        }
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Type(Window, Forecast, text);
        CloseByFrame(Window);
        QCOMPARE(State.ForecastPeriods, qint16(setting));
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void AnErrorKeepsWhatWasStoredBefore_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("way");
        for (const int way : {ExitButton, CloseBox}) {
            QTest::addRow("forecast by way %d", way) << Forecast << u"99999"_s << 0 << way;
            QTest::addRow("paycheck by way %d", way) << Paycheck << u"1e30"_s << 1 << way;
            QTest::addRow("sales tax by way %d", way) << Tax << u"1e39"_s << 2 << way;
            QTest::addRow("net percentage by way %d", way) << Net << u"1e39"_s << 3 << way;
        }
    }
    void AnErrorKeepsWhatWasStoredBefore()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(int, stored);
        QFETCH(int, way);
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        for (const QString &other : {Forecast, Paycheck, Tax, Net})
            Type(Window, other, other == field ? text : u"7"_s);
        Leave(way);
        QCOMPARE(
            desk.TakeMessage(),
            (Message{UnknownError, way == ExitButton ? u"Environment Settings"_s : u"Creditors"_s, Icon::Warning}));
        // The button's handler ends before it closes the window; the close box goes on closing.
        QCOMPARE(IsShown(Window), way == ExitButton);
        QCOMPARE(State.ForecastPeriods, qint16(stored > 0 ? 7 : 26));
        QCOMPARE(State.PaycheckAmount, Dollars(stored > 1 ? 7 : 1000));
        QCOMPARE(State.SalesTax, stored > 2 ? 0.07F : 0.06F);
        QCOMPARE(State.AverageNetPercentage, 0.9F);
    }

    void TheMainWindowShowsTheNewSettingsWhenItIsActiveAgain()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuOptionsEnvironmentSettings"_s);
        QCOMPARE(ActiveWindow(), Window);
        Type(Window, Forecast, u"52"_s);
        QCOMPARE(RowsOf(u"frmMain"_s, u"lstBudgetState"_s)[7], u"Savings Forecast: 26 Pay Periods"_s);
        Click(Window, u"cmdExit"_s);
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
        QCOMPARE(RowsOf(u"frmMain"_s, u"lstBudgetState"_s)[7], u"Savings Forecast: 52 Pay Periods"_s);
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"5"_s; // the main window leaves the timer as it is
        desk.StartProgram();
        auto &tutorTimer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        tutorTimer.start();
        Show(Window);
        QVERIFY(!tutorTimer.isActive());
        Click(Window, u"cmdExit"_s);
        QVERIFY(tutorTimer.isActive());
        tutorTimer.stop();
        Show(Window);
        CloseByFrame(Window);
        QVERIFY(!tutorTimer.isActive());
    }

    void OpeningAStoreListWritesItsNameHere()
    {
        GuiDesk desk;
        desk.WriteFile(u"stores\\market.lst"_s, "0\r\n");
        desk.WriteFile(u"stores\\bakery.lst"_s, "0\r\n");
        desk.StartProgram();
        desk.FileAnswers = {desk.Path(u"stores\\market.lst"_s), desk.Path(u"stores\\bakery.lst"_s)};
        Choose(u"mnuShopperOpenStoreList"_s);
        QVERIFY(TheWindows.Loaded(Window));
        QVERIFY(!IsShown(Window));
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
        QCOMPARE(TextOf(Window, u"txtStoreFile"_s), u"market.lst"_s);
        Show(Window);
        QCOMPARE(TextOf(Window, u"txtStoreFile"_s), u"market.lst"_s);
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(TextOf(Window, u"txtStoreFile"_s), u"bakery.lst"_s);
        Click(Window, u"cmdExit"_s);
        QCOMPARE(State.CurrentStoreFile, u"bakery.lst"_s);
    }

    void ClosingTheMainWindowLosesWhatIsOnlyInTheFields()
    {
        GuiDesk desk;
        desk.StartProgram();
        Show(Window);
        Type(Window, Forecast, u"52"_s);
        Type(Window, Paycheck, u"2000"_s);
        Click(Window, u"optPayFrequency0"_s);
        CloseByFrame(u"frmMain"_s);
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"close"_s});
        QVERIFY(desk.TakeEnd());
        QCOMPARE(desk.ReadFile(u"environm.ini"_s),
                 QByteArray("26\r\n1000\r\n7\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n"));
    }
};

REGISTER_TEST(gui_frmEnvironmentSettings)
#include "gui_frmEnvironmentSettings.moc"
