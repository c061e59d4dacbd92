// Dates as people type them, and calendar arithmetic.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/desk/Desk.h"
#include "platform/values/Dates.h"
#include "platform/values/Locale.h"

#include <QtTest>

Q_DECLARE_METATYPE(DateFormat)

class TestDates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TheDesk.Now = [] { return QDateTime(QDate(2004, 1, 5), QTime(9, 30)); };
    }
    void cleanup()
    {
        TheDesk = {};
        SetUserLocale(QLocale::c());
    }

    void DatesAreReadInEveryCustomaryForm_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date");
        const auto row = [](const char *name, const char *text, int year, int month, int day) {
            QTest::newRow(name) << QString::fromLatin1(text) << QDate(year, month, day);
        };
        row("slashes", "5/24/1997", 1997, 5, 24);
        row("slashes, two-digit year", "5/24/97", 1997, 5, 24);
        row("dashes, two-digit year", "5-24-97", 1997, 5, 24);
        row("dashes with leading zeros", "05-24-1997", 1997, 5, 24);
        row("points", "5.24.1997", 1997, 5, 24);
        row("month name, comma", "May 24, 1997", 1997, 5, 24);
        row("month name, no comma", "May 24 1997", 1997, 5, 24);
        row("day first", "24 May 1997", 1997, 5, 24);
        row("day first, dashes", "24-May-97", 1997, 5, 24);
        row("year first, dashes", "1997-05-24", 1997, 5, 24);
        row("year first, slashes", "1997/5/24", 1997, 5, 24);
        row("capital letters", "MAY 24, 1997", 1997, 5, 24);
        row("small letters", "may 24, 1997", 1997, 5, 24);
        row("three letters", "Sep 1, 2004", 2004, 9, 1);
        row("the full name", "September 1, 2004", 2004, 9, 1);
        row("blanks around", "  5/24/1997 ", 1997, 5, 24);
        row("month and day: the present year", "5/24", 2004, 5, 24);
        row("named month and day: the present year", "May 24", 2004, 5, 24);
        row("day and named month: the present year", "24 May", 2004, 5, 24);
        row("month and year: the first of the month", "May 1997", 1997, 5, 1);
        row("the first number cannot be a month and the second can", "24/5/97", 1997, 5, 24);
        row("they change places without a year, too", "24/5", 2004, 5, 24);
        row("they change places behind a year, too", "1997/24/5", 1997, 5, 24);
        row("both can be months: the first one is", "5/6/1997", 1997, 5, 6);
        row("a time of day is dropped", "5/24/1997 10:30", 1997, 5, 24);
        row("a time of day with seconds and half of the day", "May 24, 1997 10:30:15 PM", 1997, 5, 24);
        row("an hour is a time of day", "5/24/1997 10 am", 1997, 5, 24);
        row("two-digit year 00", "1/1/00", 2000, 1, 1);
        row("two-digit year 49", "12/31/49", 2049, 12, 31);
        row("two-digit year 50", "1/1/50", 1950, 1, 1);
        row("two-digit year 99", "12/31/99", 1999, 12, 31);
        row("a leap day", "2/29/2004", 2004, 2, 29);
        row("the first year", "1/1/100", 100, 1, 1);
        row("the last day", "12/31/9999", 9999, 12, 31);
    }
    void DatesAreReadInEveryCustomaryForm()
    {
        QFETCH(QString, text);
        QFETCH(QDate, date);
        QVERIFY(IsDate(text));
        QCOMPARE(ToDate(text), date);
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany)); // one dialect, whatever the locale
        QCOMPARE(ToDate(text), date);
    }

    void OtherTextIsNoDate_data()
    {
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QString &text) { QTest::newRow(name) << text; };
        row("empty", QString());
        row("blank", QStringLiteral("  "));
        row("a bare number", QStringLiteral("5"));
        row("a bare number of eight digits", QStringLiteral("05241997"));
        row("a decimal number", QStringLiteral("5.24"));
        row("a negative number", QStringLiteral("-5"));
        row("an impossible day", QStringLiteral("2/30/2004"));
        row("no leap day", QStringLiteral("2/29/2003"));
        row("day 0", QStringLiteral("5/0/1997"));
        row("month 0", QStringLiteral("0/5/1997"));
        row("neither can be a month", QStringLiteral("13/13/1997"));
        row("a year before the first", QStringLiteral("1/1/099"));
        row("a year of five digits", QStringLiteral("1/1/10000"));
        row("other separators in one date", QStringLiteral("5/24-1997"));
        row("a foreign month", QStringLiteral("24 Mai 1997"));
        row("a name of two letters", QStringLiteral("Ma 24, 1997"));
        row("a time of day alone", QStringLiteral("10:30"));
        row("an impossible time of day", QStringLiteral("5/24/1997 25:00"));
        row("text behind", QStringLiteral("5/24/1997 x"));
        row("text", QStringLiteral("abc"));
        row("a month alone", QStringLiteral("May"));
        row("endless text", QString(1000000, QLatin1Char('1')));
        row("endless slashes", QString(1000000, QLatin1Char('/')));
    }
    void OtherTextIsNoDate()
    {
        QFETCH(QString, text);
        QVERIFY(!IsDate(text));
        QCOMPARE(ErrorOf([&] { ToDate(text); }), 13);
        QCOMPARE(Format(text, DateFormat::Short), text); // comes back unchanged
    }

    void ADateIsWrittenInEachForm_data()
    {
        QTest::addColumn<DateFormat>("format");
        QTest::addColumn<QString>("text");
        QTest::newRow("mmmm d, yyyy") << DateFormat::Long << QStringLiteral("May 4, 1997");
        QTest::newRow("mm-dd-yyyy") << DateFormat::Dashes << QStringLiteral("05-04-1997");
        QTest::newRow("m/d/yyyy") << DateFormat::Short << QStringLiteral("5/4/1997");
        QTest::newRow("m/d/yy") << DateFormat::ShortYear << QStringLiteral("5/4/97");
        QTest::newRow("dddd, two blanks, mmmm d, yyyy") << DateFormat::Weekday << QStringLiteral("Sunday  May 4, 1997");
    }
    void ADateIsWrittenInEachForm()
    {
        QFETCH(DateFormat, format);
        QFETCH(QString, text);
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany)); // English names always
        QCOMPARE(Format(QDate(1997, 5, 4), format), text);
        QCOMPARE(Format(QStringLiteral("May 4 1997"), format), text);
        if (format != DateFormat::Weekday) // what is written can be read, but for the name of the day
            QCOMPARE(ToDate(text), QDate(1997, 5, 4));
    }

    void ATwoDigitYearKeepsItsZero()
    {
        QCOMPARE(Format(QDate(2005, 12, 31), DateFormat::ShortYear), QStringLiteral("12/31/05"));
    }

    void FormatLongDateSpellsTheMonth()
    {
        QCOMPARE(FormatLongDate(QStringLiteral("1/5/2004")), QStringLiteral("January 5, 2004"));
        QCOMPARE(FormatLongDate(QStringLiteral("soon")), QStringLiteral("soon"));
        QCOMPARE(FormatLongDate(QString()), QString());
    }

    void TheClockHasTwelveHours_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("morning") << QTime(9, 5, 7) << QStringLiteral("09:05:07 AM");
        QTest::newRow("afternoon") << QTime(13, 30, 0) << QStringLiteral("01:30:00 PM");
        QTest::newRow("midnight") << QTime(0, 0, 0) << QStringLiteral("12:00:00 AM");
        QTest::newRow("noon") << QTime(12, 0, 59) << QStringLiteral("12:00:59 PM");
    }
    void TheClockHasTwelveHours()
    {
        QFETCH(QTime, time);
        QTEST(FormatClock(time), "text");
    }

    void AddingMonthsClampsToTheLastDay_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("months");
        QTest::addColumn<QDate>("result");
        QTest::newRow("a plain month") << QDate(2004, 1, 5) << 1 << QDate(2004, 2, 5);
        QTest::newRow("to a leap February") << QDate(2004, 1, 31) << 1 << QDate(2004, 2, 29);
        QTest::newRow("to another February") << QDate(2003, 1, 31) << 1 << QDate(2003, 2, 28);
        QTest::newRow("back") << QDate(2004, 3, 31) << -1 << QDate(2004, 2, 29);
        QTest::newRow("across the year's end") << QDate(2003, 11, 30) << 3 << QDate(2004, 2, 29);
    }
    void AddingMonthsClampsToTheLastDay()
    {
        QFETCH(QDate, date);
        QFETCH(int, months);
        QTEST(AddMonths(date, months), "result");
    }

    void AddingDaysCrossesMonthsAndYears()
    {
        QCOMPARE(AddDays(QDate(2003, 12, 25), 14), QDate(2004, 1, 8));
        QCOMPARE(AddDays(QDate(2004, 3, 1), -1), QDate(2004, 2, 29));
    }

    void BuildingADateRollsOverBothWays_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("day");
        QTest::addColumn<QDate>("date");
        QTest::newRow("as it is") << 2004 << 2 << 29 << QDate(2004, 2, 29);
        QTest::newRow("month 13 is January") << 2003 << 13 << 1 << QDate(2004, 1, 1);
        QTest::newRow("month 0 is December") << 2004 << 0 << 15 << QDate(2003, 12, 15);
        QTest::newRow("day 0 is the last day before") << 2004 << 3 << 0 << QDate(2004, 2, 29);
        QTest::newRow("day 31 of a short month") << 2004 << 4 << 31 << QDate(2004, 5, 1);
        QTest::newRow("a negative day") << 2004 << 1 << -1 << QDate(2003, 12, 30);
        QTest::newRow("month -11 is January of the year before") << 2004 << -11 << 5 << QDate(2003, 1, 5);
        QTest::newRow("month -12 is December of two years before") << 2004 << -12 << 5 << QDate(2002, 12, 5);
        QTest::newRow("month 24 is December of the next year") << 2004 << 24 << 5 << QDate(2005, 12, 5);
        QTest::newRow("all at once") << 2003 << 14 << 30 << QDate(2004, 3, 1);
    }
    void BuildingADateRollsOverBothWays()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, day);
        QTEST(DateSerial(year, month, day), "date");
    }

    void ADateBeyondTheCalendarIsError5()
    {
        QCOMPARE(ErrorOf([] { AddDays(QDate(9999, 12, 31), 1); }), 5);
        QCOMPARE(ErrorOf([] { AddDays(QDate(100, 1, 1), -1); }), 5);
        QCOMPARE(ErrorOf([] { AddDays(QDate(2004, 1, 1), std::numeric_limits<int>::max()); }), 5);
        QCOMPARE(ErrorOf([] { AddMonths(QDate(9999, 12, 1), 1); }), 5);
        QCOMPARE(ErrorOf([] { AddMonths(QDate(2004, 1, 1), -32768); }), 5);
        QCOMPARE(ErrorOf([] { DateSerial(9999, 13, 1); }), 5);
        QCOMPARE(ErrorOf([] { DateSerial(0, 1, 1); }), 5);
        QCOMPARE(AddDays(QDate(9999, 12, 30), 1), QDate(9999, 12, 31));
        QCOMPARE(DateSerial(9999, 12, 31), QDate(9999, 12, 31));
        QCOMPARE(AddDays(QDate(100, 1, 2), -1), QDate(100, 1, 1));
        QCOMPARE(ErrorOf([] { AddDays(QDate(), 1); }), 5);
    }

    void ADateTextKnowsItsDayAndItsText()
    {
        const DateText text(QStringLiteral("5/24/1997"));
        QCOMPARE(text.JulianDay(), QDate(1997, 5, 24).toJulianDay());
        QCOMPARE(text.JulianDay(), QDate(1997, 5, 24).toJulianDay());
        QCOMPARE(text.Text(), QStringLiteral("5/24/1997"));
        QVERIFY(!(text == DateText(QStringLiteral("05-24-1997")))); // equal as dates, not as texts
        const DateText computed(QDate(1997, 5, 4));
        QCOMPARE(computed.Text(), QStringLiteral("5/4/1997"));
        QVERIFY(!computed.IsEmpty());
        const DateText invalid{QDate()};
        QVERIFY(invalid.IsEmpty());
        QCOMPARE(invalid.Text(), QString());
        QCOMPARE(ErrorOf([&] { Q_UNUSED(invalid.Date()) }), 13);
        const DateText none(QStringLiteral("soon"));
        QCOMPARE(ErrorOf([&] { none.JulianDay(); }), 13);
        QCOMPARE(ErrorOf([&] { none.JulianDay(); }), 13);
    }
};

REGISTER_TEST(TestDates)
#include "tst_dates.moc"
