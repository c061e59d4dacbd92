// From one pay date to the next, and how a due day is written.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"
#include "foundation/Calendar.h"
#include "foundation/State.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// mm-dd-yyyy as the program's short form m/d/yyyy.
QString Short(const QString &dashes)
{
    const QStringList parts = dashes.split(QLatin1Char('-'));
    return u"%1/%2/%3"_s.arg(parts[0].toInt()).arg(parts[1].toInt()).arg(parts[2].toInt());
}

/// The next pay period's text. The calendar on days without text has to agree with it.
QString Next(const QString &date, int frequency)
{
    const QString text = NextPayPeriod(DateText(date), qint16(frequency)).Text();
    if (const QDate day = NextPayPeriod(ToDate(date), qint16(frequency)); DateText(day).Text() != text)
        QTest::qFail("the calendar on days differs from the one on texts", __FILE__, __LINE__);
    return text;
}

} // namespace

class TestCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AChainOfPayDates_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("monthEndPay");
        QTest::addColumn<QString>("chain");
        const auto row = [](const char *name, int frequency, int first, int second, int monthEndPay,
                            const char *chain) {
            QTest::newRow(name) << frequency << first << second << monthEndPay << QString::fromLatin1(chain);
        };
        row("weekly", 7, 0, 0, 0, "12-24-2003 12-31-2003 01-07-2004 01-14-2004");
        row("biweekly", 14, 0, 0, 0, "12-24-2003 01-07-2004 01-21-2004 02-04-2004");
        row("semimonthly, 1 and 15", 15, 1, 15, 0, "12-15-2003 01-01-2004 01-15-2004 02-01-2004 02-15-2004 03-01-2004");
        row("semimonthly, 15 and month's end, leap year", 15, 15, 0, 0,
            "01-15-2004 01-31-2004 02-15-2004 02-29-2004 03-15-2004 03-31-2004 04-15-2004");
        row("semimonthly, 15 and month's end, common year", 15, 15, 0, 0,
            "01-15-2005 01-31-2005 02-15-2005 02-28-2005 03-15-2005");
        row("semimonthly, 14 and 28", 15, 14, 28, 0,
            "12-14-2004 12-28-2004 01-14-2005 01-28-2005 02-14-2005 02-28-2005");
        row("monthly: once clamped, the day stays", 30, 0, 0, 0,
            "01-31-2004 02-29-2004 03-29-2004 04-29-2004 05-29-2004");
        row("monthly in a common year", 30, 0, 0, 0, "01-30-2005 02-28-2005 03-28-2005");
        row("monthly over the year's end", 30, 0, 0, 0, "11-30-2003 12-30-2003 01-30-2004 02-29-2004");
        row("monthly, month's end", 30, 0, 0, -1, "12-31-2003 01-31-2004 02-29-2004 03-31-2004 04-30-2004 05-31-2004");
        row("monthly, month's end, mid-month start", 30, 0, 0, -1, "01-15-2004 02-29-2004 03-31-2004 04-30-2004");
        row("monthly, month's end, over the year's end", 30, 0, 0, -1, "10-31-2003 11-30-2003 12-31-2003 01-31-2004");
        row("a first pay day of 0 never leaves its month", 15, 0, 15, 0, "01-10-2004 01-15-2004 01-31-2004 01-31-2004");
        row("a first pay day of 0 with pay at the month's end", 15, 0, 0, 0, "01-30-2004 01-31-2004 01-31-2004");
        row("a second pay day beyond the month runs on", 15, 1, 31, 0, "02-15-2005 03-03-2005 03-31-2005 04-01-2005");
        row("a first pay day beyond the month runs on", 15, 31, 15, 0, "01-15-2005 03-03-2005 03-15-2005");
    }
    void AChainOfPayDates()
    {
        FakeDesk desk;
        QFETCH(int, frequency);
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(int, monthEndPay);
        QFETCH(QString, chain);
        State.FirstPayDate = qint16(first);
        State.SecondPayDate = qint16(second);
        State.MonthEndPay = qint16(monthEndPay);
        const QStringList dates = chain.split(QLatin1Char(' '));
        DateText date(dates.first());
        for (const QString &expected : dates.mid(1)) {
            const QDate day = NextPayPeriod(date.Date(), qint16(frequency));
            date = NextPayPeriod(date, qint16(frequency));
            QCOMPARE(date.Text(), Short(expected));
            QCOMPARE(day, date.Date());
        }
    }

    void ASemimonthlyStepLooksAtTheSecondPayDayAlone_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        const auto row = [](const char *name, int first, int second, const char *from, const char *to) {
            QTest::newRow(name) << first << second << QString::fromLatin1(from) << QString::fromLatin1(to);
        };
        row("the first pay day is not looked at", 5, 20, "01-03-2004", "01-20-2004");
        row("on the first pay day", 5, 20, "01-05-2004", "01-20-2004");
        row("the day before the second", 5, 20, "01-19-2004", "01-20-2004");
        row("the limit is reached", 5, 20, "01-20-2004", "02-05-2004");
        row("past the limit", 5, 20, "01-25-2004", "02-05-2004");
        row("below 28: the month's end", 15, 0, "01-27-2004", "01-31-2004");
        row("28 already counts as the month's end", 15, 0, "01-28-2004", "02-15-2004");
        row("February 27 of a leap year", 15, 0, "02-27-2004", "02-29-2004");
        row("February 28 of a leap year counts as the month's end", 15, 0, "02-28-2004", "03-15-2004");
        row("year wrap", 15, 0, "12-31-2004", "01-15-2005");
        row("year wrap at the month's end", 15, 0, "12-15-2004", "12-31-2004");
    }
    void ASemimonthlyStepLooksAtTheSecondPayDayAlone()
    {
        FakeDesk desk;
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(QString, from);
        QFETCH(QString, to);
        State.FirstPayDate = qint16(first);
        State.SecondPayDate = qint16(second);
        QCOMPARE(Next(from, 15), Short(to));
    }

    void UnknownSettingsGiveTheEmptyText_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("monthEndPay");
        QTest::newRow("frequency 0") << 0 << 0;
        QTest::newRow("frequency 21") << 21 << 0;
        QTest::newRow("a negative frequency") << -7 << 0;
        QTest::newRow("monthly with MonthEndPay 1") << 30 << 1;
        QTest::newRow("monthly with MonthEndPay -2") << 30 << -2;
    }
    void UnknownSettingsGiveTheEmptyText()
    {
        FakeDesk desk;
        QFETCH(int, frequency);
        QFETCH(int, monthEndPay);
        State.MonthEndPay = qint16(monthEndPay);
        QCOMPARE(Next(u"01-15-2004"_s, frequency), QString());
    }
    void UnknownSettingsNeverLookAtTheDate()
    {
        FakeDesk desk;
        State.MonthEndPay = 1;
        for (const qint16 frequency : {qint16(21), Monthly}) {
            QCOMPARE(NextPayPeriod(DateText(u"payday"_s), frequency).Text(), QString());
            QVERIFY(NextPayPeriod(DateText(), frequency).IsEmpty());
            QVERIFY(!NextPayPeriod(QDate(), frequency).isValid());
        }
    }

    void AnyDateFormIsTakenAndTheShortFormComesOut_data()
    {
        QTest::addColumn<QString>("from");
        for (const char *from : {"1/8/2004", "01-08-2004", "January 8, 2004", "8 Jan 2004", "2004-01-08", "1/8/04"})
            QTest::newRow(from) << QString::fromLatin1(from);
    }
    void AnyDateFormIsTakenAndTheShortFormComesOut()
    {
        FakeDesk desk;
        QFETCH(QString, from);
        QCOMPARE(Next(from, Weekly), u"1/15/2004"_s);
    }

    void TheResultIsTakenAgain()
    {
        FakeDesk desk;
        QCOMPARE(Next(Next(u"12-24-2003"_s, Weekly), Weekly), u"1/7/2004"_s);
    }

    void TextThatIsNoDateIsATypeMismatch_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<int>("frequency");
        for (const int frequency : {7, 14, 15, 30}) {
            QTest::addRow("no date, %d", frequency) << u"payday"_s << frequency;
            QTest::addRow("impossible date, %d", frequency) << u"2/30/2004"_s << frequency;
            QTest::addRow("empty, %d", frequency) << QString() << frequency;
        }
    }
    void TextThatIsNoDateIsATypeMismatch()
    {
        FakeDesk desk;
        QFETCH(QString, date);
        QFETCH(int, frequency);
        QCOMPARE(ErrorOf([&] { Next(date, frequency); }), 13);
    }

    void BeyondTheYear9999IsAnInvalidCall_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("monthEndPay");
        const QString eve = u"12/31/9999"_s;
        QTest::newRow("weekly") << eve << 7 << 0;
        QTest::newRow("biweekly") << u"12/18/9999"_s << 14 << 0;
        QTest::newRow("semimonthly") << eve << 15 << 0;
        QTest::newRow("monthly") << eve << 30 << 0;
        QTest::newRow("monthly, month's end") << eve << 30 << -1;
        QTest::newRow("the month behind the month's end") << u"11/15/9999"_s << 30 << -1;
    }
    void BeyondTheYear9999IsAnInvalidCall()
    {
        FakeDesk desk;
        QFETCH(QString, from);
        QFETCH(int, frequency);
        QFETCH(int, monthEndPay);
        State.FirstPayDate = 1;
        State.SecondPayDate = 15;
        State.MonthEndPay = qint16(monthEndPay);
        QCOMPARE(ErrorOf([&] { Next(from, frequency); }), 5);
    }
    void TheMonthBehindASemimonthlyMonthsEndIsComputedToo()
    {
        FakeDesk desk;
        State.FirstPayDate = 15;
        QCOMPARE(Next(u"11/15/9999"_s, Semimonthly), u"11/30/9999"_s);
        QCOMPARE(ErrorOf([&] { Next(u"12/15/9999"_s, Semimonthly); }), 5);
    }
    void TheLastDayOfTheYear9999IsReached()
    {
        FakeDesk desk;
        QCOMPARE(Next(u"10/15/9999"_s, Weekly), u"10/22/9999"_s);
        QCOMPARE(Next(u"12/24/9999"_s, Weekly), u"12/31/9999"_s);
    }

    void DueLabels_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("day");
        QTest::addColumn<QString>("label");
        const auto row = [](const char *name, int day, const char *label) {
            QTest::newRow(label) << QString::fromLatin1(name) << day << QString::fromLatin1(label);
        };
        row("Rent", 1, "Rent - 1st");
        row("Phone", 22, "Phone - 22nd");
        row("Water", 23, "Water - 23rd");
        row("Cable", 11, "Cable - 11th");
        row("Bank", 31, "Bank - 31st");
        row("X", 0, "X - 0th");
        row("X", 2, "X - 2nd");
        row("X", 3, "X - 3rd");
        row("X", 4, "X - 4th");
        row("X", 9, "X - 9th");
        row("X", 10, "X - 10th");
        row("X", 12, "X - 12th");
        row("X", 13, "X - 13th");
        row("X", 20, "X - 20th");
        row("X", 21, "X - 21st");
        row("X", 30, "X - 30th");
        row("X", 33, "X - 33rd");
        // Days that only a damaged file holds: 11, 12 and 13 are the only exceptions, and a sign counts as a character.
        row("X", 111, "X - 111st");
        row("X", 112, "X - 112nd");
        row("X", 113, "X - 113rd");
        row("X", -1, "X - -1st");
        row("X", -4, "X - -4th");
        row("", 1, " - 1st");
    }
    void DueLabels()
    {
        QFETCH(QString, name);
        QFETCH(int, day);
        QTEST(OrdinalDueLabel(name, day), "label");
    }
};

REGISTER_TEST(TestCalendar)
#include "tst_calendar.moc"
