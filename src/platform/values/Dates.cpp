#include "platform/values/Dates.h"

#include "platform/desk/Desk.h"

#include <QLocale>
#include <QRegularExpression>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
// The same bounds as Julian days, which are compared without taking a date apart: January 1, 100 and December 31, 9999.
constexpr qint64 FirstDay = 1757585;
constexpr qint64 LastDay = 5373484;

const QStringList MonthNames{u"january"_s, u"february"_s, u"march"_s,     u"april"_s,   u"may"_s,      u"june"_s,
                             u"july"_s,    u"august"_s,   u"september"_s, u"october"_s, u"november"_s, u"december"_s};

int MonthNumber(const QString &word)
{
    const QString lower = word.toLower();
    for (int i = 0; i < MonthNames.size(); ++i)
        if (lower == MonthNames[i] || lower == MonthNames[i].left(3))
            return i + 1;
    return 0;
}

int FullYear(const QString &digits)
{
    const int year = digits.toInt();
    if (digits.size() > 2)
        return year;
    return year < 50 ? 2000 + year : 1900 + year;
}

int PresentYear()
{
    return (TheDesk.Now ? TheDesk.Now() : QDateTime::currentDateTime()).date().year();
}

std::optional<QDate> Checked(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (year < FirstYear || year > LastYear || !date.isValid())
        return {};
    return date;
}

/// Month first; when the first number cannot be a month and the second can, they change places.
std::optional<QDate> FromNumbers(int first, int second, int year)
{
    if (first > 12 && second <= 12)
        std::swap(first, second);
    return Checked(year, first, second);
}

QRegularExpression Pattern(const char *pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)),
                              QRegularExpression::CaseInsensitiveOption);
}

/// The date without its time of day.
std::optional<QDate> Parse(const QString &source)
{
    QString text = source.trimmed();
    if (text.size() > 64) // no date is as long, and a pattern must not wander through a damaged file
        return {};
    static const auto time =
        QRegularExpression(u"\\s+([01]?\\d|2[0-3]):[0-5]\\d(:[0-5]\\d)?(\\s*[ap]m)?$|\\s+(0?[1-9]|1[0-2])\\s*[ap]m$"_s,
                           QRegularExpression::CaseInsensitiveOption);
    static const auto numbers = Pattern("(\\d{1,2})\\s*([/.-])\\s*(\\d{1,2})\\s*\\2\\s*(\\d{1,4})");
    static const auto yearFirst = Pattern("(\\d{3,4})\\s*([/.-])\\s*(\\d{1,2})\\s*\\2\\s*(\\d{1,2})");
    static const auto twoNumbers = Pattern("(\\d{1,2})\\s*[/-]\\s*(\\d{1,2})");
    static const auto monthDay = Pattern("([a-z]+)\\.?[\\s-]*(\\d{1,2})(?:\\s*[,\\s-]\\s*(\\d{1,4}))?");
    static const auto dayMonth = Pattern("(\\d{1,2})[\\s-]*([a-z]+)\\.?(?:[,\\s-]+(\\d{1,4}))?");
    static const auto monthYear = Pattern("([a-z]+)\\.?[,\\s-]+(\\d{3,4})");

    text.remove(time);
    if (const auto m = numbers.match(text); m.hasMatch())
        return FromNumbers(m.captured(1).toInt(), m.captured(3).toInt(), FullYear(m.captured(4)));
    if (const auto m = yearFirst.match(text); m.hasMatch())
        return FromNumbers(m.captured(3).toInt(), m.captured(4).toInt(), m.captured(1).toInt());
    if (const auto m = twoNumbers.match(text); m.hasMatch())
        return FromNumbers(m.captured(1).toInt(), m.captured(2).toInt(), PresentYear());
    if (const auto m = monthYear.match(text); m.hasMatch())
        return Checked(m.captured(2).toInt(), MonthNumber(m.captured(1)), 1);
    if (const auto m = monthDay.match(text); m.hasMatch())
        return Checked(m.captured(3).isEmpty() ? PresentYear() : FullYear(m.captured(3)), MonthNumber(m.captured(1)),
                       m.captured(2).toInt());
    if (const auto m = dayMonth.match(text); m.hasMatch())
        return Checked(m.captured(3).isEmpty() ? PresentYear() : FullYear(m.captured(3)), MonthNumber(m.captured(2)),
                       m.captured(1).toInt());
    return {};
}

QDate InRange(QDate date)
{
    if (date.toJulianDay() < FirstDay || date.toJulianDay() > LastDay) // what is no date lies before the first
        RaiseError(RuntimeError::InvalidProcedureCall);
    return date;
}

} // namespace

bool IsDate(const QString &text)
{
    return Parse(text).has_value();
}

QDate ToDate(const QString &text)
{
    const auto date = Parse(text);
    if (!date)
        RaiseError(RuntimeError::TypeMismatch);
    return *date;
}

QDate AddDays(QDate date, int days)
{
    return InRange(date.addDays(days));
}

QDate AddMonths(QDate date, int months)
{
    return InRange(date.addMonths(months));
}

QDate DateSerial(int year, int month, int day)
{
    constexpr int months = 12;
    const int counted = month - 1; // from January, in either direction
    const int years = counted / months - (counted % months < 0 ? 1 : 0);
    return InRange(QDate(year + years, counted - years * months + 1, 1).addDays(day - 1));
}

QString Format(QDate date, DateFormat format)
{
    const QString year = QString::number(date.year()).rightJustified(4, QLatin1Char('0'));
    const auto two = [](int number) { return QString::number(number).rightJustified(2, QLatin1Char('0')); };
    const QString longDate =
        u"%1 %2, %3"_s.arg(QLocale::c().monthName(date.month()), QString::number(date.day()), year);
    switch (format) {
    case DateFormat::Long: return longDate;
    case DateFormat::Dashes: return two(date.month()) + QLatin1Char('-') + two(date.day()) + QLatin1Char('-') + year;
    case DateFormat::Short: return u"%1/%2/%3"_s.arg(date.month()).arg(date.day()).arg(date.year());
    case DateFormat::ShortYear: return u"%1/%2/%3"_s.arg(date.month()).arg(date.day()).arg(year.right(2));
    case DateFormat::Weekday: return QLocale::c().dayName(date.dayOfWeek()) + u"  "_s + longDate;
    }
    return {};
}

QString Format(const QString &text, DateFormat format)
{
    const auto date = Parse(text);
    return date ? Format(*date, format) : text;
}

QString FormatClock(QTime time)
{
    return QLocale::c().toString(time, u"hh:mm:ss AP"_s);
}

QString FormatLongDate(const QString &text)
{
    return Format(text, DateFormat::Long);
}
