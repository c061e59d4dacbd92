// Dates as people type them: month first, English month names, whatever the locale.
#pragma once

#include "platform/values/RuntimeError.h"

#include <QDate>
#include <QString>
#include <QTime>

/// 5/24/1997, 5/24/97, 5-24-97, 5.24.1997, May 24, 1997, 24 May 1997, 24-May-97, 1997-05-24, 1997/5/24, 5/24, May 24,
/// May 1997; three-letter or full month names in any letter case; a trailing time of day is dropped. Two-digit years
/// 00 to 49 are 2000 to 2049, 50 to 99 are 1950 to 1999. Without a year the present one is meant.
bool IsDate(const QString &text);
/// Raises error 13 (Type mismatch) on text that IsDate refuses.
QDate ToDate(const QString &text);

/// Calendar arithmetic; a result beyond the years 100 to 9999 raises error 5. Months clamp to the month's last day.
QDate AddDays(QDate date, int days);
QDate AddMonths(QDate date, int months);
/// Rolls over both ways: month 13 is January of the next year, day 0 the last day of the month before.
QDate DateSerial(int year, int month, int day);

/// The forms in which the program writes dates. English names always.
enum class DateFormat {
    Long,      ///< mmmm d, yyyy
    Dashes,    ///< mm-dd-yyyy
    Short,     ///< m/d/yyyy, what a date turned into text looks like
    ShortYear, ///< m/d/yy
    Weekday,   ///< dddd  mmmm d, yyyy (two blanks)
};
QString Format(QDate date, DateFormat format);
/// A text is converted when it is a date; any other text comes back unchanged.
QString Format(const QString &text, DateFormat format);

/// hh:mm:ss AM/PM
QString FormatClock(QTime time);

/// Format(text, DateFormat::Long)
QString FormatLongDate(const QString &text);

/// A date that is kept as text and compared again and again: text is parsed at the first need and once, and a
/// computed date is put into text ("m/d/yyyy") only when somebody reads it. A QDate that is not valid is the empty
/// text.
class DateText
{
public:
    DateText() = default;
    DateText(const QString &text) : m_text(text) {}
    DateText(QDate date) : m_julianDay(date.isValid() ? date.toJulianDay() : 0), m_textPending(date.isValid()) {}

    const QString &Text() const
    {
        if (m_textPending) {
            m_text = Format(Date(), DateFormat::Short);
            m_textPending = false;
        }
        return m_text;
    }
    operator const QString &() const { return Text(); }
    /// Raises error 13 on text that is no date, each time it is asked.
    qint64 JulianDay() const
    {
        if (m_julianDay == 0)
            m_julianDay = ToDate(m_text).toJulianDay();
        return m_julianDay;
    }
    QDate Date() const { return QDate::fromJulianDay(JulianDay()); }
    bool IsEmpty() const { return !m_textPending && m_text.isEmpty(); }
    bool operator==(const DateText &other) const { return Text() == other.Text(); }

private:
    mutable QString m_text;
    mutable qint64 m_julianDay = 0; // 0 lies long before the year 100
    mutable bool m_textPending = false;
};
