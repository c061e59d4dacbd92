#include "foundation/Calendar.h"

#include "foundation/State.h"

namespace {

// With pay at the month's end every date from the 28th on counts as the month's end, February or not.
constexpr int MonthEndLimit = 28;

QDate NextSemimonthly(QDate date)
{
    const int limit = State.SecondPayDate == 0 ? MonthEndLimit : State.SecondPayDate;
    // Only the second pay day is compared: a date before the first one goes straight to the second.
    if (date.day() >= limit)
        return DateSerial(date.year(), date.month() + 1, State.FirstPayDate);
    if (State.SecondPayDate != 0)
        return DateSerial(date.year(), date.month(), State.SecondPayDate);
    const QDate nextMonth = AddMonths(date, 1);
    return DateSerial(nextMonth.year(), nextMonth.month(), 0);
}

/// Invalid for a MonthEndPay that is neither yes nor no.
QDate NextMonthly(const DateText &date)
{
    if (State.MonthEndPay == 0)
        return AddMonths(date.Date(), 1); // once clamped to the 28th or 29th, the chain stays there
    if (State.MonthEndPay != -1)
        return {};
    const QDate afterNext = AddMonths(date.Date(), 2);
    return DateSerial(afterNext.year(), afterNext.month(), 0);
}

} // namespace

DateText NextPayPeriod(const DateText &date, qint16 frequency)
{
    QDate next;
    switch (frequency) {
    case Weekly: next = AddDays(date.Date(), 7); break;
    case Biweekly: next = AddDays(date.Date(), 14); break;
    case Semimonthly: next = NextSemimonthly(date.Date()); break;
    case Monthly: next = NextMonthly(date); break;
    default: break;
    }
    return next.isValid() ? DateText(next) : DateText();
}

QString OrdinalDueLabel(const QString &name, int day)
{
    const QString text = QString::number(day);
    const auto takes = [&](int digit) {
        const bool endsInDigit = text.size() >= 2 && text.endsWith(QString::number(digit));
        return day == digit || (day != 10 + digit && endsInDigit);
    };
    const char *suffix = takes(1) ? "st" : takes(2) ? "nd" : takes(3) ? "rd" : "th";
    return name + QStringLiteral(" - ") + text + QLatin1String(suffix);
}
