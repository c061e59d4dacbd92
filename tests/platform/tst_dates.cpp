// Dates as people type them, and calendar arithmetic.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/desk/Desk.h"
#include "platform/values/Dates.h"
#include "platform/values/Locale.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;

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
        row("blank", u"  "_s);
        row("a bare number", u"5"_s);
        row("a bare number of eight digits", u"05241997"_s);
        row("a decimal number", u"5.24"_s);
        row("a negative number", u"-5"_s);
        row("an impossible day", u"2/30/2004"_s);
        row("no leap day", u"2/29/2003"_s);
        row("day 0", u"5/0/1997"_s);
        row("month 0", u"0/5/1997"_s);
        row("neither can be a month", u"13/13/1997"_s);
        row("a year before the first", u"1/1/099"_s);
        row("a year of five digits", u"1/1/10000"_s);
        row("other separators in one date", u"5/24-1997"_s);
        row("a foreign month", u"24 Mai 1997"_s);
        row("a name of two letters", u"Ma 24, 1997"_s);
        row("a time of day alone", u"10:30"_s);
        row("an impossible time of day", u"5/24/1997 25:00"_s);
        row("text behind", u"5/24/1997 x"_s);
        row("text", u"abc"_s);
        row("a month alone", u"May"_s);
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
        QTest::newRow("mmmm d, yyyy") << DateFormat::Long << u"May 4, 1997"_s;
        QTest::newRow("mm-dd-yyyy") << DateFormat::Dashes << u"05-04-1997"_s;
        QTest::newRow("m/d/yyyy") << DateFormat::Short << u"5/4/1997"_s;
        QTest::newRow("m/d/yy") << DateFormat::ShortYear << u"5/4/97"_s;
        QTest::newRow("dddd, two blanks, mmmm d, yyyy") << DateFormat::Weekday << u"Sunday  May 4, 1997"_s;
    }
    void ADateIsWrittenInEachForm()
    {
        QFETCH(DateFormat, format);
        QFETCH(QString, text);
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany)); // English names always
        QCOMPARE(Format(QDate(1997, 5, 4), format), text);
        QCOMPARE(Format(u"May 4 1997"_s, format), text);
        if (format != DateFormat::Weekday) // what is written can be read, but for the name of the day
            QCOMPARE(ToDate(text), QDate(1997, 5, 4));
    }

    void ATwoDigitYearKeepsItsZero() { QCOMPARE(Format(QDate(2005, 12, 31), DateFormat::ShortYear), u"12/31/05"_s); }

    void FormatLongDateSpellsTheMonth()
    {
        QCOMPARE(FormatLongDate(u"1/5/2004"_s), u"January 5, 2004"_s);
        QCOMPARE(FormatLongDate(u"soon"_s), u"soon"_s);
        QCOMPARE(FormatLongDate(QString()), QString());
    }

    void TheClockHasTwelveHours_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("morning") << QTime(9, 5, 7) << u"09:05:07 AM"_s;
        QTest::newRow("afternoon") << QTime(13, 30, 0) << u"01:30:00 PM"_s;
        QTest::newRow("midnight") << QTime(0, 0, 0) << u"12:00:00 AM"_s;
        QTest::newRow("noon") << QTime(12, 0, 59) << u"12:00:59 PM"_s;
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
        const DateText text(u"5/24/1997"_s);
        QCOMPARE(text.JulianDay(), QDate(1997, 5, 24).toJulianDay());
        QCOMPARE(text.JulianDay(), QDate(1997, 5, 24).toJulianDay());
        QCOMPARE(text.Text(), u"5/24/1997"_s);
        QVERIFY(!(text == DateText(u"05-24-1997"_s))); // equal as dates, not as texts
        const DateText computed(QDate(1997, 5, 4));
        QCOMPARE(computed.Text(), u"5/4/1997"_s);
        QVERIFY(!computed.IsEmpty());
        const DateText invalid{QDate()};
        QVERIFY(invalid.IsEmpty());
        QCOMPARE(invalid.Text(), QString());
        QCOMPARE(ErrorOf([&] { Q_UNUSED(invalid.Date()) }), 13);
        const DateText none(u"soon"_s);
        QCOMPARE(ErrorOf([&] { none.JulianDay(); }), 13);
        QCOMPARE(ErrorOf([&] { none.JulianDay(); }), 13);
    }
};

REGISTER_TEST(TestDates)
#include "tst_dates.moc"
