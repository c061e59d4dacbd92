// The calendar of pay periods: from a pay date to the one after it, and how a due day is written in a label.
#pragma once

#include "platform/values/Dates.h"

/// The pay date after `date` for a pay frequency of 7, 14, 15 or 30; the empty text for any other. Semimonthly pay
/// looks at State.FirstPayDate and State.SecondPayDate, monthly pay at State.MonthEndPay.
/// Raises error 13 if `date` is no date, error 5 beyond the year 9999.
DateText NextPayPeriod(const DateText &date, qint16 frequency);
/// The same on a date without text, for whoever walks many pay periods; an invalid date stands for the empty text.
QDate NextPayPeriod(QDate date, qint16 frequency);

/// Whether `count` pay periods follow a date: the frequency is known, and the calendar does not end before.
bool PayPeriodsFollow(QDate date, qint16 frequency, int count);

/// "Rent - 1st", "Cable - 11th", "Phone - 22nd".
QString OrdinalDueLabel(const QString &name, int day);
