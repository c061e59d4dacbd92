// The hours of a pay period: how many weeks it has, the split of each at 40 hours, their sums.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "income/TotalHours.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The texts of the boxes, from week 1; the others hold 0.00.
WeekTexts Weeks(const QStringList &entered)
{
    WeekTexts texts;
    texts.fill(u"0.00"_s);
    std::copy(entered.begin(), entered.end(), texts.begin());
    return texts;
}

QString Told(const std::array<float, MostWeeks> &weeks)
{
    QStringList told;
    for (const float hours : weeks)
        told += PlainText(hours);
    return told.join(u' ');
}

} // namespace

class tst_totalhours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APayPeriodHasItsWeeksWhateverTheCalendarSays_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("weeks");
        QTest::newRow("weekly") << 7 << 1;
        QTest::newRow("biweekly") << 14 << 2;
        QTest::newRow("semimonthly") << 15 << 3;
        QTest::newRow("monthly") << 30 << 5;
        QTest::newRow("unknown") << 21 << 0;
    }
    void APayPeriodHasItsWeeksWhateverTheCalendarSays()
    {
        QFETCH(int, frequency);
        QFETCH(int, weeks);
        QCOMPARE(WeeksOf(qint16(frequency)), weeks);
    }

    void EachWeekIsSplitAtFortyHours_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("regular");
        QTest::addColumn<QString>("overtime");
        QTest::addColumn<QString>("sums"); ///< regular, overtime, worked
        const auto row = [](const char *name, int frequency, const QStringList &texts, const QString &regular,
                            const QString &overtime, const QString &sums) {
            QTest::newRow(name) << frequency << texts << regular << overtime << sums;
        };
        // A week that is not in use keeps the split that it had: 1 and 2 here.
        row("a biweekly 50 and 30 have 10 hours of overtime", 14, {u"50"_s, u"30"_s}, u"40 30 1 1 1"_s, u"10 0 2 2 2"_s,
            u"70 10 80"_s);
        row("40 give none", 7, {u"40.00"_s}, u"40 0 1 1 1"_s, u"0 0 2 2 2"_s, u"40 0 40"_s);
        row("40.25 give a quarter", 7, {u"40.25"_s}, u"40 0 1 1 1"_s, u"0.25 0 2 2 2"_s, u"40 0.25 40.25"_s);
        row("168 give 128", 7, {u"168"_s}, u"40 0 1 1 1"_s, u"128 0 2 2 2"_s, u"40 128 168"_s);
        row("the second week counts in a weekly pay period, too", 7, {u"10"_s, u"41"_s}, u"10 40 1 1 1"_s,
            u"0 1 2 2 2"_s, u"50 1 51"_s);
        row("a third week does not in a biweekly one", 14, {u"1"_s, u"2"_s, u"3"_s}, u"1 2 1 1 1"_s, u"0 0 2 2 2"_s,
            u"3 0 3"_s);
        row("semimonthly: three weeks", 15, {u"41"_s, u"42"_s, u"43"_s, u"44"_s}, u"40 40 40 1 1"_s, u"1 2 3 2 2"_s,
            u"120 6 126"_s);
        row("monthly: five", 30, {u"41"_s, u"42"_s, u"43"_s, u"44"_s, u"5.5"_s}, u"40 40 40 40 5.5"_s, u"1 2 3 4 0"_s,
            u"165.5 10 175.5"_s);
        row("an unknown frequency: two", 0, {u"41"_s, u"42"_s, u"43"_s}, u"40 40 1 1 1"_s, u"1 2 2 2 2"_s,
            u"80 3 83"_s);
        row("less than nothing is not refused", 14, {u"-5"_s, u"45"_s}, u"-5 40 1 1 1"_s, u"0 5 2 2 2"_s, u"35 5 40"_s);
        row("single precision", 14, {u"42.99"_s, u"0"_s}, u"40 0 1 1 1"_s, u"2.9900017 0 2 2 2"_s,
            u"40 2.9900017 42.99"_s);
        row("the number that a text begins with", 14, {u" 7.5 hours"_s, u"$40"_s}, u"7.5 0 1 1 1"_s, u"0 0 2 2 2"_s,
            u"7.5 0 7.5"_s);
    }
    void EachWeekIsSplitAtFortyHours()
    {
        QFETCH(int, frequency);
        QFETCH(QStringList, texts);
        QFETCH(QString, regular);
        QFETCH(QString, overtime);
        QFETCH(QString, sums);
        FakeDesk desk;
        State.PayFrequency = qint16(frequency);
        Income.WeekRegularHours.fill(1);
        Income.WeekOvertimeHours.fill(2);
        Income.TotalRegularHours = Income.TotalOvertimeHours = Income.TotalHoursWorked = 99;
        TakeHours(Weeks(texts));
        QCOMPARE(Told(Income.WeekRegularHours), regular);
        QCOMPARE(Told(Income.WeekOvertimeHours), overtime);
        QCOMPARE(PlainText(Income.TotalRegularHours) + u' ' + PlainText(Income.TotalOvertimeHours) + u' ' +
                     PlainText(Income.TotalHoursWorked),
                 sums);
    }

    void MoreThanAWeek_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("more");
        QTest::newRow("168") << u"168"_s << false;
        QTest::newRow("168 in single precision") << u"168.000001"_s << false;
        QTest::newRow("the next single") << u"168.00002"_s << true;
        QTest::newRow("the greatest single") << u"3.4e38"_s << true;
        QTest::newRow("beyond single precision") << u"1e39"_s << true;
        QTest::newRow("beyond double precision") << u"1e999"_s << true;
        QTest::newRow("less than nothing") << u"-5"_s << false;
        QTest::newRow("less than a single holds") << u"-1e39"_s << false;
        QTest::newRow("with the true minus sign") << u"\u22121e39"_s << false;
        QTest::newRow("with the sign behind") << u"1e999-"_s << false;
        QTest::newRow("in parentheses, which is a sign, too") << u"(1e999)"_s << false;
    }
    void MoreThanAWeek()
    {
        QFETCH(QString, text);
        QFETCH(bool, more);
        QCOMPARE(IsMoreThanAWeek(text), more);
    }

    void AllBoxesAreTakenOver()
    {
        FakeDesk desk;
        State.PayFrequency = Weekly;
        Income.WeekHours.fill(33);
        TakeHours(Weeks({u"38.5"_s})); // the other boxes are grey and hold 0
        QCOMPARE(Told(Income.WeekHours), u"38.5 0 0 0 0"_s);
        QCOMPARE(ShownHours(0, true), u"38.50"_s);
    }

    void AWeekThatIsNotInUseShowsNoHours()
    {
        FakeDesk desk;
        Income.WeekHours = {1, 2, 3, 4, 5.125F};
        QCOMPARE(ShownHours(4, true), u"5.13"_s);
        QCOMPARE(ShownHours(4, false), u"0.00"_s);
    }

    void HoursBeyondASingleChangeNothing()
    {
        FakeDesk desk;
        State.PayFrequency = Biweekly;
        Income.WeekHours.fill(33);
        Income.TotalRegularHours = 70;
        QCOMPARE(ErrorOf([] { TakeHours(Weeks({u"5"_s, u"-1e39"_s})); }), 6);
        QCOMPARE(ErrorOf([] { TakeHours(Weeks({u"-3e38"_s, u"-3e38"_s})); }), 6); // their sum
        QCOMPARE(Told(Income.WeekHours), u"33 33 33 33 33"_s);
        QCOMPARE(Income.TotalRegularHours, 70.F);
    }
};

REGISTER_TEST(tst_totalhours)
#include "tst_totalhours.moc"
