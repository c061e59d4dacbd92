// The wage calculator: what it shows when it is come back to, the ways to the hours, what is refused, and what becomes
// of the paycheck on each way out.
#include "IncomeDesk.h"
#include "TestProgram.h"

#include "platform/values/Locale.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {

const QString Rate = u"txtHourlyPayRate"_s;
const QString Worked = u"txtTotalHoursWorked"_s;
const QString Calculate = u"cmdCalculate"_s;
const QString Exit = u"cmdExit"_s;
const QString Paycheck = u"txtPaycheckAmount"_s;
const QStringList Results{u"txtRegularRate"_s,
                          u"txtRegularHours"_s,
                          u"txtTotalRegularPay"_s,
                          u"txtOvertimeRate"_s,
                          u"txtOvertimeHours"_s,
                          u"txtTotalOvertimePay"_s,
                          u"txtGrossPay"_s,
                          u"txtNetPay"_s,
                          u"txtMonthlyGross"_s,
                          u"txtYearlyGross"_s,
                          Paycheck};
const QString Nothing = u" |  |  |  |  |  |  |  |  |  | $1,000.00"_s;
const Message Refusal{u"Please enter a numerical dollar amount in the Hourly Pay Rate field"_s, u"Wage Calculator"_s,
                      Icon::Stop, Buttons::OkHelp, 30};

/// A household that is paid $1,000.00 and keeps 90 per cent.
void TakeHousehold(qint16 frequency)
{
    State.PayFrequency = frequency;
    State.PaycheckAmount = Dollars(1000);
    State.AverageNetPercentage = 0.9F;
}

Message Question(const QString &amount)
{
    return {u"Do you wish to save %1 as the new Paycheck Amount?"_s.arg(amount), u"Calculate Wages"_s, Icon::Question,
            Buttons::YesNo};
}

/// Types into the window of the hours, which stands there, and takes them over.
void EnterHours(const QStringList &weeks)
{
    for (qsizetype week = 0; week < weeks.size(); ++week)
        Type(Hours, u"txtWeek%1"_s.arg(week + 1), weeks[week]);
    Click(Hours, u"cmdOK"_s);
}

/// The net paycheck becomes 40 * 10 * 0.9 = 360.
void EarnInAWeek()
{
    Show(Wages);
    PressEnter(Wages, Worked);
    EnterHours({u"40"_s});
    Type(Wages, Rate, u"10"_s);
    Click(Wages, Calculate);
}

} // namespace

class gui_frmCalculateWages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWordsAreTheDesigns_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("toolTip"); ///< the beginning of it
        const auto row = [](const char *field, const QString &label, const QString &toolTip) {
            QTest::newRow(field) << QString::fromLatin1(field) << label << toolTip;
        };
        row("txtHourlyPayRate", u"Hourly Pay Rate"_s, u"Gross pay of one regular hour, before taxes"_s);
        row("txtTotalHoursWorked", u"Total Hours Worked"_s, u"Double-click for Hours Calculator"_s);
        row("txtAverageNetPercentage", u"Average Net Percentage"_s, u"The share of gross pay that is left"_s);
        row("txtRegularRate", u"Rate"_s, u"Gross pay of one regular hour"_s);
        row("txtRegularHours", u"Hours"_s, u"Regular hours of the pay period"_s);
        row("txtTotalRegularPay", u"Total"_s, u"Gross pay of the regular hours"_s);
        row("txtOvertimeRate", u"Rate"_s, u"Gross pay of one overtime hour"_s);
        row("txtOvertimeHours", u"Hours"_s, u"Hours beyond 40 in a week"_s);
        row("txtTotalOvertimePay", u"Total"_s, u"Gross pay of the overtime hours"_s);
        row("txtGrossPay", u"Gross Pay"_s, u"Pay of the pay period before taxes"_s);
        row("txtNetPay", u"Net Pay"_s, u"Pay of the pay period after taxes"_s);
        row("txtMonthlyGross", u"Monthly Gross"_s, u"What a month brings before taxes"_s);
        row("txtYearlyGross", u"Yearly Gross"_s, u"What a year brings before taxes"_s);
        row("txtPaycheckAmount", u"Paycheck Amount for Budget"_s, u"The net paycheck that the budget works with"_s);
    }
    void TheWordsAreTheDesigns()
    {
        QFETCH(QString, field);
        QFETCH(QString, label);
        QFETCH(QString, toolTip);
        GuiDesk desk;
        TakeHousehold(Weekly);
        Show(Wages);
        QCOMPARE(LabelOf(Wages, field), label);
        const auto &box = Find<QLineEdit>(Wages, field);
        QCOMPARE(box.toolTip().left(toolTip.size()), toolTip);
        QVERIFY(!box.accessibleDescription().isEmpty());
        QVERIFY(box.alignment() & Qt::AlignRight);
        QCOMPARE(box.isReadOnly(), field != Rate); // also the hours, which their own window writes
    }

    void AWeeklyPaycheckSaysThatItCountsWholeHours()
    {
        const QString wholeHours = u"A weekly paycheck counts whole hours; 40.4 are 40"_s;
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        const auto &regular = Find(Wages, u"txtRegularHours"_s);
        const auto &worked = Find(Wages, Worked);
        const QString ofWorked = worked.accessibleDescription();
        QVERIFY(!ofWorked.contains(wholeHours));
        QCOMPARE(regular.toolTip(), u"Regular hours of the pay period"_s);
        for (int time = 0; time < 2; ++time) {
            Show(u"frmEnvironmentSettings"_s);
            State.PayFrequency = Weekly;
            Show(Wages);
            QCOMPARE(regular.toolTip(), u"Regular hours of the pay period. "_s + wholeHours);
            QCOMPARE(regular.accessibleDescription(), regular.toolTip());
            QCOMPARE(worked.accessibleDescription(), ofWorked + u". "_s + wholeHours);
            QCOMPARE(worked.toolTip(), u"Double-click for Hours Calculator"_s);
        }
        Show(u"frmEnvironmentSettings"_s);
        State.PayFrequency = Monthly;
        Show(Wages);
        QCOMPARE(regular.toolTip(), u"Regular hours of the pay period"_s);
        QCOMPARE(regular.accessibleDescription(), regular.toolTip());
        QCOMPARE(worked.accessibleDescription(), ofWorked);
    }

    void TheFramesAndButtonsAndTheirOrder()
    {
        GuiDesk desk;
        TakeHousehold(Weekly);
        Show(Wages);
        QCOMPARE(TextOf(Wages, u"fraRegularPay"_s), u"Regular Pay"_s);
        QCOMPARE(TextOf(Wages, u"fraOvertimePay"_s), u"Overtime Pay"_s);
        QCOMPARE(TextOf(Wages, u"lblPercent"_s), u"%"_s);
        QCOMPARE(TextOf(Wages, Calculate), u"&Calculate"_s);
        QCOMPARE(TabOrder(Wages), (QStringList{Rate, Worked, Calculate, Exit}));
    }

    void TheTitleFollowsTheFrequency_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("title");
        QTest::newRow("weekly") << 7 << u"Calculate Wages (Weekly)"_s;
        QTest::newRow("biweekly") << 14 << u"Calculate Wages (Biweekly)"_s;
        QTest::newRow("semimonthly") << 15 << u"Calculate Wages (Semimonthly)"_s;
        QTest::newRow("monthly") << 30 << u"Calculate Wages (Monthly)"_s;
        QTest::newRow("another one is not told") << 21 << u"Calculate Wages"_s;
    }
    void TheTitleFollowsTheFrequency()
    {
        QFETCH(int, frequency);
        QFETCH(QString, title);
        GuiDesk desk;
        TakeHousehold(qint16(frequency));
        Show(Wages);
        QCOMPARE(TheWindows.Loaded(Wages)->windowTitle(), title);
    }

    void ItOpensOnTheRate()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Income.TotalHoursWorked = 12; // left from before
        Show(Wages);
        QCOMPARE(Texts(Wages, {Rate, Worked, u"txtAverageNetPercentage"_s}), u"$0.00 | 0.00 | 90.00"_s);
        QCOMPARE(Texts(Wages, Results), Nothing);
        QCOMPARE(Income.TotalHoursWorked, 0.F);
        QCOMPARE(FocusOf(Wages), Rate);
        QCOMPARE(Selected(Wages, Rate), u"$0.00"_s);
    }

    void EveryActivationShowsTheStateAnew()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        Type(Wages, Rate, u"12.5"_s);
        PressEnter(Wages, Rate);
        Show(u"frmEnvironmentSettings"_s);
        State.AverageNetPercentage = 0.06625F;
        State.PaycheckAmount = Dollars(-5);
        Income.TotalHoursWorked = 7.125F;
        State.PayFrequency = Monthly;
        Show(Wages);
        QCOMPARE(Texts(Wages, {u"txtAverageNetPercentage"_s, Worked, Paycheck}), u"6.63 | 7.13 | ($5.00)"_s);
        QCOMPARE(TheWindows.Loaded(Wages)->windowTitle(), u"Calculate Wages (Monthly)"_s);
        QCOMPARE(FocusOf(Wages), Rate);
        QCOMPARE(Selected(Wages, Rate), u"12.5"_s); // what was typed stays
    }

    void EnterGoesFromTheRateToTheHoursAndNoFurther()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        PressEnter(Wages, Rate);
        QCOMPARE(FocusOf(Wages), Worked);
        QCOMPARE(Selected(Wages, Worked), u"0.00"_s);
        QVERIFY(!TheWindows.Loaded(Hours));
        QCOMPARE(Texts(Wages, Results), Nothing); // no button was pressed
        PressEnter(Wages, Worked);
        QCOMPARE(ActiveWindow(), Hours);
    }

    void ADoubleClickShowsTheHoursModally()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        const bool modal = Meanwhile(
            Hours, [] { QTest::mouseDClick(&Find(Wages, Worked), Qt::LeftButton); },
            [] {
                EnterHours({u"50"_s, u"30"_s});
            });
        QVERIFY(modal);
        QVERIFY(!TheWindows.Loaded(Hours));
        QCOMPARE(ActiveWindow(), Wages);
        QCOMPARE(TextOf(Wages, Worked), u"80.00"_s);
        QCOMPARE(FocusOf(Wages), Rate);
        QCOMPARE(Selected(Wages, Rate), u"$0.00"_s);
    }

    void AnotherButtonOfTheMouseShowsNoHours_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("right") << int(Qt::RightButton);
        QTest::newRow("middle") << int(Qt::MiddleButton);
    }
    void AnotherButtonOfTheMouseShowsNoHours()
    {
        QFETCH(int, button);
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        const bool shown = Meanwhile(
            Hours, [&] { QTest::mouseDClick(&Find(Wages, Worked), Qt::MouseButton(button)); }, [] {});
        QVERIFY(!shown);
        QVERIFY(!TheWindows.Loaded(Hours));
    }

    void AKeyHeldDownShowsNoHours()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        PressEnter(Wages, Rate);
        HoldKey(Wages, Worked, Qt::Key_Return, u"\r"_s); // of the press that moved the focus here
        QVERIFY(!TheWindows.Loaded(Hours));
        HoldKey(Wages, Worked, Qt::Key_Enter, u"\r"_s);
        HoldKey(Wages, Worked, Qt::Key_4, u"4"_s);
        HoldKey(Wages, Worked, Qt::Key_Backspace, u"\b"_s);
        HoldKey(Wages, Worked, Qt::Key_Escape, u"\x1b"_s);
        QVERIFY(!TheWindows.Loaded(Hours));
        QCOMPARE(ActiveWindow(), Wages);
        QCOMPARE(FocusOf(Wages), Worked);

        Find(Wages, Rate).setFocus();
        HoldKey(Wages, Rate, Qt::Key_Return, u"\r"_s);
        QCOMPARE(FocusOf(Wages), Rate);
    }

    void TheNumberThatIsBegunGoesOnInTheFirstWeek_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("week"); ///< after the key, 0 and 5
        QTest::newRow("a digit") << u"en_US"_s << u"4"_s << u"405"_s;
        QTest::newRow("a sign") << u"en_US"_s << u"-"_s << u"-05"_s;
        QTest::newRow("the other sign") << u"en_US"_s << u"+"_s << u"+05"_s;
        QTest::newRow("the true minus sign") << u"en_US"_s << u"\u2212"_s << u"\u221205"_s;
        QTest::newRow("the decimal point") << u"en_US"_s << u"."_s << u".05"_s;
        QTest::newRow("another locale's") << u"de_DE"_s << u","_s << u",05"_s;
        QTest::newRow("a letter only opens") << u"en_US"_s << u"h"_s << u"05"_s;
        QTest::newRow("so does a sign of no number") << u"de_DE"_s << u"."_s << u"05"_s;
        QTest::newRow("and a blank") << u"en_US"_s << u" "_s << u"05"_s;
    }
    void TheNumberThatIsBegunGoesOnInTheFirstWeek()
    {
        QFETCH(QString, locale);
        QFETCH(QString, first);
        QFETCH(QString, week);
        GuiDesk desk;
        const QLocale before = UserLocale();
        const auto putBack = qScopeGuard([&] { SetUserLocale(before); });
        SetUserLocale(QLocale(locale));
        TakeHousehold(Biweekly);
        Income.WeekHours = {33, 34, 0, 0, 0};
        Show(Wages);
        PressEnter(Wages, Rate);
        QTest::sendKeyEvent(QTest::Click, &Find(Wages, Worked), Qt::Key_unknown, first, Qt::NoModifier);
        QCOMPARE(ActiveWindow(), Hours);
        QCOMPARE(FocusOf(Hours), u"txtWeek1"_s);
        // The window system has not followed yet when the next key comes.
        QTest::keyClick(&Find(Wages, Worked), Qt::Key_0);
        QTest::keyClick(&Find(Hours, u"txtWeek1"_s), Qt::Key_5);
        QCOMPARE(TextOf(Hours, u"txtWeek1"_s), week);
        QCOMPARE(Texts(Hours, {u"txtWeek2"_s}).left(2), u"34"_s);
    }

    void EnterLeavesTheHoursMarked()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Income.WeekHours[0] = 33;
        Show(Wages);
        PressEnter(Wages, Worked);
        QCOMPARE(Selected(Hours, u"txtWeek1"_s), u"33.00"_s);
    }

    void AKeyShowsTheHoursBesideIt_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("shows");
        QTest::newRow("a digit") << int(Qt::Key_4) << u"4"_s << 0 << true;
        QTest::newRow("a letter") << int(Qt::Key_H) << u"h"_s << 0 << true;
        QTest::newRow("a blank") << int(Qt::Key_Space) << u" "_s << 0 << true;
        QTest::newRow("Enter") << int(Qt::Key_Return) << u"\r"_s << 0 << true;
        QTest::newRow("Enter of the number block") << int(Qt::Key_Enter) << u"\r"_s << 0 << true;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << u"\b"_s << 0 << true;
        QTest::newRow("Esc, which closes nothing here") << int(Qt::Key_Escape) << u"\x1b"_s << 0 << true;
        QTest::newRow("a tab") << int(Qt::Key_Tab) << u"\t"_s << 0 << false;
        QTest::newRow("an arrow") << int(Qt::Key_Left) << QString() << 0 << false;
        QTest::newRow("copying") << int(Qt::Key_C) << u"\x03"_s << int(Qt::ControlModifier) << false;
    }
    void AKeyShowsTheHoursBesideIt()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        QFETCH(bool, shows);
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        PressEnter(Wages, Rate);
        QTest::sendKeyEvent(QTest::Click, &Find(Wages, Worked), Qt::Key(key), text, Qt::KeyboardModifiers(modifiers));
        Settle();
        QCOMPARE(TextOf(Wages, Worked), u"0.00"_s);
        QCOMPARE(ActiveWindow(), shows ? Hours : Wages);
        QVERIFY(!shows || !TheWindows.Loaded(Hours)->isModal());
        if (!shows)
            return;
        Click(Wages, Exit); // it stays usable beside
        QVERIFY(!TheWindows.Loaded(Wages));
        QVERIFY(IsShown(Hours));
    }

    // Only a weekly paycheck is computed from the box.
    void LeavingTheHoursOfAWeekTakesThem_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("text");
        QTest::addColumn<float>("taken");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a number") << 7 << u"41.4"_s << 41.4F << u"41.40"_s;
        QTest::newRow("an amount of money is one, too") << 7 << u"$41"_s << 41.F << u"41.00"_s;
        QTest::newRow("nothing") << 7 << QString() << 12.F << u"12.00"_s;
        QTest::newRow("a word") << 7 << u"many"_s << 12.F << u"12.00"_s;
        QTest::newRow("biweekly: nothing happens") << 14 << u"41.4"_s << 12.F << u"41.4"_s;
        QTest::newRow("semimonthly, likewise") << 15 << u"many"_s << 12.F << u"many"_s;
        QTest::newRow("monthly, likewise") << 30 << QString() << 12.F << QString();
    }
    void LeavingTheHoursOfAWeekTakesThem()
    {
        QFETCH(int, frequency);
        QFETCH(QString, text);
        QFETCH(float, taken);
        QFETCH(QString, shown);
        GuiDesk desk;
        TakeHousehold(qint16(frequency));
        Income.WeeklyRegularHours = 12;
        Show(Wages);
        PressEnter(Wages, Rate);
        Find<QLineEdit>(Wages, Worked).setText(text); // the user cannot type here
        QTest::keyClick(&Find(Wages, Worked), Qt::Key_Tab);
        Settle();
        QCOMPARE(FocusOf(Wages), Calculate);
        QCOMPARE(TextOf(Wages, Worked), shown);
        QCOMPARE(Income.WeeklyRegularHours, taken);
    }

    void NoNumberIsRefused_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::newRow("a word") << u"ten"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("per cent") << u"5%"_s;
        QTest::newRow("two points") << u"1.2.3"_s;
    }
    void NoNumberIsRefused()
    {
        QFETCH(QString, rate);
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Income.TotalRegularHours = 80;
        Show(Wages);
        Type(Wages, Rate, rate);
        Click(Wages, Calculate);
        QCOMPARE(desk.TakeMessage(), Refusal);
        QCOMPARE(FocusOf(Wages), Rate);
        QCOMPARE(Selected(Wages, Rate), rate);
        QCOMPARE(TextOf(Wages, Rate), rate);
        QCOMPARE(Texts(Wages, Results), Nothing);
        QCOMPARE(State.PaycheckAmount, Dollars(1000));
    }

    void F1AsksForTheHelpOfTheRefusal()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        QTest::keyClick(&Find(Wages, Rate), Qt::Key_F1);
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 30, Wages}));
    }

    void ABiweeklyPaycheckFromTheHoursOfTwoWeeks()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        PressEnter(Wages, Worked);
        EnterHours({u"50"_s, u"30"_s});
        Type(Wages, Rate, u"12.345"_s);
        Click(Wages, Calculate);
        QCOMPARE(TextOf(Wages, Rate), u"$12.35"_s); // it is rewritten first: the third decimal is gone
        QCOMPARE(Texts(Wages, Results),
                 u"$12.35 | 70.00 | $864.50 | $18.53 | 10.00 | $185.25 | $1,049.75 | $944.78 | $2,274.46 | "
                 u"$27,293.50 | $944.78"_s);
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(9447750)); // at once
    }

    void AWeeklyPaycheckLosesTheFractionOfAnHour()
    {
        GuiDesk desk;
        TakeHousehold(Weekly);
        Show(Wages);
        PressEnter(Wages, Worked);
        EnterHours({u"41.4"_s});
        QCOMPARE(TextOf(Wages, Worked), u"41.40"_s);
        Type(Wages, Rate, u"$10.00"_s);
        QTest::keyClick(&Find(Wages, Calculate), Qt::Key_Return);
        Settle();
        QCOMPARE(Texts(Wages, Results),
                 u"$10.00 | 40.00 | $400.00 | $15.00 | 1.00 | $15.00 | $415.00 | $373.50 | $1,798.33 | $21,580.00 | "
                 u"$373.50"_s);
        QCOMPARE(TextOf(Wages, Worked), u"41.40"_s);
    }

    void AnotherLocaleCountsTheSameHoursAndMoney()
    {
        GuiDesk desk;
        const QLocale before = UserLocale();
        const auto putBack = qScopeGuard([&] { SetUserLocale(before); });
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany));
        TakeHousehold(Biweekly);
        Show(Wages);
        Click(Wages, Calculate); // what the rate begins with is a number there, too
        PressEnter(Wages, Worked);
        EnterHours({u"42,5"_s, u"30"_s});
        QCOMPARE(TextOf(Wages, Worked), u"72,50"_s);
        Type(Wages, Rate, u"12,50"_s);
        Click(Wages, Calculate);
        QCOMPARE(TextOf(Wages, u"txtRegularHours"_s), u"70,00"_s);
        QCOMPARE(Income.WageGrossPay, Currency::FromTenThousandths(9218750)); // 875 and 46.875
        CloseByFrame(Wages);
        QCOMPARE(Income.TotalHoursWorked, 72.5F);
    }

    void WithoutHoursOfTheirWindowAPeriodPaysNothing_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::newRow("biweekly") << 14;
        QTest::newRow("semimonthly") << 15;
        QTest::newRow("monthly") << 30;
    }
    void WithoutHoursOfTheirWindowAPeriodPaysNothing()
    {
        QFETCH(int, frequency);
        GuiDesk desk;
        TakeHousehold(qint16(frequency));
        Show(Wages);
        Find<QLineEdit>(Wages, Worked).setText(u"80.00"_s); // whatever stands here
        Type(Wages, Rate, u"10"_s);
        Click(Wages, Calculate);
        QCOMPARE(Texts(Wages, Results),
                 u"$10.00 | 0.00 | $0.00 | $15.00 | 0.00 | $0.00 | $0.00 | $0.00 | $0.00 | $0.00 | $0.00"_s);
        QCOMPARE(State.PaycheckAmount, Currency::Zero);
    }

    void HoursOfAnEarlierVisitStillCount()
    {
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        PressEnter(Wages, Worked);
        EnterHours({u"40"_s, u"40"_s});
        CloseByFrame(Wages);
        QCOMPARE(Income.TotalHoursWorked, 80.F);
        Show(Wages);
        QCOMPARE(TextOf(Wages, Worked), u"0.00"_s); // the box begins anew, the hours behind it do not
        Type(Wages, Rate, u"1"_s);
        Click(Wages, Calculate);
        QCOMPARE(TextOf(Wages, u"txtGrossPay"_s), u"$80.00"_s);
    }

    void AFailureIsToldUnderTheWindowsName_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("shownRate");
        QTest::addColumn<QString>("results");
        QTest::newRow("a rate beyond the range") << u"1e15"_s << u"$1,000,000,000,000,000.00"_s << Nothing;
        QTest::newRow("an overtime rate beyond it")
            << u"900000000000000"_s << u"$900,000,000,000,000.00"_s << u"$900,000,000,000,000.00"_s + Nothing;
    }
    void AFailureIsToldUnderTheWindowsName()
    {
        QFETCH(QString, rate);
        QFETCH(QString, shownRate);
        QFETCH(QString, results);
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        Type(Wages, Rate, rate);
        Click(Wages, Calculate);
        QCOMPARE(desk.TakeMessage(), (Message{UnknownError, u"Calculate Wages"_s, Icon::Warning}));
        QCOMPARE(TextOf(Wages, Rate), shownRate);
        QCOMPARE(Texts(Wages, Results), results); // what was computed before it stands
        QCOMPARE(State.PaycheckAmount, Dollars(1000));
        Type(Wages, Rate, u"10"_s); // and the window goes on
        Click(Wages, Calculate);
        QCOMPARE(TextOf(Wages, u"txtRegularRate"_s), u"$10.00"_s);
    }

    void ExitAsksWhetherTheNewPaycheckIsKept_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<qint64>("paycheck");
        QTest::newRow("yes") << Answer::Yes << qint64(360);
        QTest::newRow("no") << Answer::No << qint64(1000);
    }
    void ExitAsksWhetherTheNewPaycheckIsKept()
    {
        QFETCH(Answer, answer);
        QFETCH(qint64, paycheck);
        GuiDesk desk;
        TakeHousehold(Weekly);
        EarnInAWeek();
        desk.Answers = {answer};
        Click(Wages, Exit);
        QCOMPARE(desk.TakeMessage(), Question(u"$360.00"_s));
        QVERIFY(!TheWindows.Loaded(Wages)); // whatever the answer
        QCOMPARE(State.PaycheckAmount, Dollars(paycheck));
        QCOMPARE(desk.TakeFiles(), QStringList()); // kept in memory only
    }

    // What is remembered is the paycheck before the calculation, however often the window becomes active since.
    void AnotherWindowInBetweenForgetsNoPaycheck_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<qint64>("paycheck");
        QTest::newRow("yes") << Answer::Yes << qint64(360);
        QTest::newRow("no") << Answer::No << qint64(1000);
    }
    void AnotherWindowInBetweenForgetsNoPaycheck()
    {
        QFETCH(Answer, answer);
        QFETCH(qint64, paycheck);
        GuiDesk desk;
        TakeHousehold(Weekly);
        EarnInAWeek();
        Show(u"frmEnvironmentSettings"_s);
        Show(Wages);
        desk.Answers = {answer};
        Click(Wages, Exit);
        QCOMPARE(desk.TakeMessage(), Question(u"$360.00"_s));
        QCOMPARE(State.PaycheckAmount, Dollars(paycheck));
    }

    void AnUnchangedPaycheckIsNotAskedAbout()
    {
        GuiDesk desk;
        TakeHousehold(Weekly);
        State.PaycheckAmount = Dollars(360);
        EarnInAWeek();
        QCOMPARE(TextOf(Wages, u"txtNetPay"_s), u"$360.00"_s);
        Click(Wages, Exit);
        QVERIFY(!TheWindows.Loaded(Wages));
        QCOMPARE(State.PaycheckAmount, Dollars(360));
    }

    void TheFrameKeepsTheNewPaycheckWithoutAsking_data()
    {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("the close box") << false;
        QTest::newRow("Esc, which is the same") << true;
    }
    void TheFrameKeepsTheNewPaycheckWithoutAsking()
    {
        QFETCH(bool, byEscape);
        GuiDesk desk;
        TakeHousehold(Weekly);
        EarnInAWeek();
        if (byEscape)
            QTest::keyClick(&Find(Wages, Calculate), Qt::Key_Escape);
        else
            CloseByFrame(Wages);
        Settle();
        QVERIFY(!TheWindows.Loaded(Wages));
        QCOMPARE(State.PaycheckAmount, Dollars(360));
    }

    void LeavingKeepsTheNumberThatTheHoursBeginWith_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<float>("kept");
        QTest::newRow("hours") << u"41.40"_s << 41.4F;
        QTest::newRow("and a word behind them") << u"7.5 hours"_s << 7.5F;
        QTest::newRow("no number") << u"many"_s << 0.F;
    }
    void LeavingKeepsTheNumberThatTheHoursBeginWith()
    {
        QFETCH(QString, text);
        QFETCH(float, kept);
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Show(Wages);
        Find<QLineEdit>(Wages, Worked).setText(text);
        Click(Wages, Exit);
        QCOMPARE(Income.TotalHoursWorked, kept);
    }

    // The settings give the window its title and load it unseen for that. Their own change of the paycheck is none of
    // its.
    void LoadedByTheSettingsItRemembersThePaycheckThatIsThereWhenItIsShown()
    {
        const QString settings = u"frmEnvironmentSettings"_s;
        GuiDesk desk;
        TakeHousehold(Biweekly);
        Income.TotalHoursWorked = 80;
        Show(settings);
        Click(settings, u"optPayFrequency0"_s);
        QVERIFY(TheWindows.Loaded(Wages));
        QVERIFY(!IsShown(Wages));
        QCOMPARE(Income.TotalHoursWorked, 0.F);
        QCOMPARE(ActiveWindow(), settings);
        QCOMPARE(FocusOf(settings), u"optPayFrequency0"_s);
        Type(settings, u"txtPaycheckAmount"_s, u"1200"_s);
        Click(settings, u"cmdExit"_s);
        QCOMPARE(State.PaycheckAmount, Dollars(1200));

        Show(Wages);
        QCOMPARE(TextOf(Wages, Paycheck), u"$1,200.00"_s);
        Click(Wages, Exit); // and asks nothing
        QVERIFY(!TheWindows.Loaded(Wages));
        QCOMPARE(State.PaycheckAmount, Dollars(1200));
    }

    void LoadedByTheSettingsItLeavesTheTutorToThem()
    {
        const QString settings = u"frmEnvironmentSettings"_s;
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"5"_s; // the main window leaves the timer as it is
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        timer.start(100000);
        Show(settings);
        Click(settings, u"optPayFrequency0"_s);
        QVERIFY(!timer.isActive());
        Click(settings, u"cmdExit"_s);
        QVERIFY(timer.isActive()); // although the wage calculator is still loaded, unseen
        QVERIFY(TheWindows.Loaded(Wages));
        Show(Wages);
        Click(Wages, Exit);
        QVERIFY(timer.isActive());

        Choose(u"mnuIncomeCalculateWages"_s); // loaded afresh, it pauses the tutor itself
        QVERIFY(!timer.isActive());
        Click(Wages, Exit);
        QVERIFY(timer.isActive());
        timer.stop();
    }
};

REGISTER_TEST(gui_frmCalculateWages)
#include "gui_frmCalculateWages.moc"
