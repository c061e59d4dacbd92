#include "foundation/Calendar.h"

#include "foundation/State.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// With pay at the month's end every date from the 28th on counts as the month's end, February or not.
constexpr int MonthEndLimit = 28;

/// The last day of the month `months` months after the one of `date`. The month behind it is computed first, so that
/// the calendar ends with the November of the year 9999 here.
QDate LastDayOfMonth(QDate date, int months)
{
    const QDate behind = AddMonths(date, months + 1);
    return AddDays(behind, -behind.day());
}

QDate NextSemimonthly(QDate date)
{
    const int limit = State.SecondPayDate == 0 ? MonthEndLimit : State.SecondPayDate;
    // Only the second pay day is compared: a date before the first one goes straight to the second.
    if (date.day() >= limit)
        return DateSerial(date.year(), date.month() + 1, State.FirstPayDate);
    if (State.SecondPayDate != 0)
        return DateSerial(date.year(), date.month(), State.SecondPayDate);
    return LastDayOfMonth(date, 0);
}

QDate NextMonthly(QDate date)
{
    if (State.MonthEndPay == 0)
        return AddMonths(date, 1); // once clamped to the 28th or 29th, the chain stays there
    return LastDayOfMonth(date, 1);
}

/// Monthly pay needs a MonthEndPay that is either yes or no.
bool HasNextPayPeriod(qint16 frequency)
{
    return frequency == Weekly || frequency == Biweekly || frequency == Semimonthly ||
           (frequency == Monthly && (State.MonthEndPay == 0 || State.MonthEndPay == -1));
}

} // namespace

QDate NextPayPeriod(QDate date, qint16 frequency)
{
    if (!HasNextPayPeriod(frequency))
        return {};
    switch (frequency) {
    case Semimonthly: return NextSemimonthly(date);
    case Monthly: return NextMonthly(date);
    default: return AddDays(date, frequency); // Weekly and Biweekly are numbers of days
    }
}

DateText NextPayPeriod(const DateText &date, qint16 frequency)
{
    // Where there is no next pay period the date is not looked at: it may be the empty text of the one before.
    return HasNextPayPeriod(frequency) ? DateText(NextPayPeriod(date.Date(), frequency)) : DateText();
}

bool PayPeriodsFollow(QDate date, qint16 frequency, int count)
{
    if (!date.isValid() || !HasNextPayPeriod(frequency))
        return false;
    bool follow = true;
    ResumeNext(
        [&] {
            for (int i = 0; i < count; ++i)
                date = NextPayPeriod(date, frequency);
        },
        [&](const RuntimeError &) { follow = false; });
    return follow;
}

QString OrdinalDueLabel(const QString &name, int day)
{
    const QString text = QString::number(day);
    const auto takes = [&](int digit) {
        const bool endsInDigit = text.size() >= 2 && text.endsWith(QString::number(digit));
        return day == digit || (day != 10 + digit && endsInDigit);
    };
    const char *suffix = takes(1) ? "st" : takes(2) ? "nd" : takes(3) ? "rd" : "th";
    return name + u" - "_s + text + QLatin1String(suffix);
}
