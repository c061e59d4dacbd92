#include "platform/values/Format.h"

#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

#include <cmath>

namespace {

/// Moves the point of plain digits two places to the right.
QString TimesHundred(QString digits)
{
    qsizetype point = digits.indexOf(QLatin1Char('.'));
    if (point < 0) {
        point = digits.size();
        digits += QLatin1Char('.');
    }
    digits.remove(point, 1);
    while (digits.size() < point + 2)
        digits += QLatin1Char('0');
    digits.insert(point + 2, QLatin1Char('.'));
    return digits;
}

struct Rounded {
    bool Negative = false;
    QString Whole;
    QString Fraction; ///< two digits
};

/// Plain digits rounded to two decimals, half away from zero.
Rounded RoundedToCents(QString digits)
{
    Rounded result;
    result.Negative = digits.startsWith(QLatin1Char('-'));
    if (result.Negative)
        digits.remove(0, 1);
    const qsizetype point = digits.indexOf(QLatin1Char('.'));
    result.Whole = point < 0 ? digits : digits.left(point);
    QString fraction = point < 0 ? QString() : digits.mid(point + 1);
    while (fraction.size() < 3)
        fraction += QLatin1Char('0');
    QString all = result.Whole + fraction.left(2);
    if (fraction[2] >= QLatin1Char('5')) {
        qsizetype i = all.size() - 1;
        while (i >= 0 && all[i] == QLatin1Char('9'))
            all[i--] = QLatin1Char('0');
        if (i >= 0)
            all[i] = QChar(all[i].unicode() + 1);
        else
            all.prepend(QLatin1Char('1'));
    }
    result.Whole = all.left(all.size() - 2);
    while (result.Whole.size() > 1 && result.Whole.startsWith(QLatin1Char('0')))
        result.Whole.remove(0, 1);
    result.Fraction = all.right(2);
    if (all.count(QLatin1Char('0')) == all.size())
        result.Negative = false;
    return result;
}

QString WithSeparators(const QString &whole)
{
    const QString separator = UserLocale().groupSeparator();
    // The locale knows where its separators stand, in threes or not; its digits count only if they are read back.
    bool fits = false;
    const qulonglong value = whole.toULongLong(&fits);
    const QString grouped = UserLocale().toString(value);
    if (fits && QString(grouped).remove(separator) == whole)
        return grouped;
    QString text = whole;
    for (qsizetype i = text.size() - 3; i > 0; i -= 3)
        text.insert(i, separator);
    return text;
}

/// The currency pattern of the user's locale around digits that are already rounded: the locale formats a probe, and
/// its digits are exchanged.
QString InCurrencyPattern(const Rounded &number, const QString &digits)
{
    const QLocale &locale = UserLocale();
    if (locale.territory() == QLocale::UnitedStates) {
        const QString text = locale.currencySymbol() + digits;
        return number.Negative ? QLatin1Char('(') + text + QLatin1Char(')') : text;
    }
    const QString probe = locale.toCurrencyString(number.Negative ? -1.0 : 1.0, QString(), 2);
    const QString one = QLatin1Char('1') + locale.decimalPoint() + QStringLiteral("00");
    if (const qsizetype at = probe.indexOf(one); at >= 0)
        return QString(probe).replace(at, one.size(), digits);
    return (number.Negative ? locale.negativeSign() : QString()) + digits + QLatin1Char(' ') + locale.currencySymbol();
}

QString FormatDigits(const QString &digits, NumberFormat format)
{
    if (format == NumberFormat::GeneralNumber)
        return QString(digits).replace(QLatin1Char('.'), UserLocale().decimalPoint());
    const Rounded number = RoundedToCents(format == NumberFormat::Percent ? TimesHundred(digits) : digits);
    const QString minus = number.Negative ? QStringLiteral("-") : QString();
    const QString fraction = UserLocale().decimalPoint() + number.Fraction;
    switch (format) {
    case NumberFormat::Currency: return InCurrencyPattern(number, WithSeparators(number.Whole) + fraction);
    case NumberFormat::Standard: return minus + WithSeparators(number.Whole) + fraction;
    case NumberFormat::Percent: return minus + number.Whole + fraction + QLatin1Char('%');
    case NumberFormat::Fixed:
    case NumberFormat::GeneralNumber: break;
    }
    return minus + number.Whole + fraction;
}

} // namespace

QString Format(Currency amount, NumberFormat format)
{
    return FormatDigits(PlainText(amount), format);
}

QString Format(double value, NumberFormat format)
{
    if (!std::isfinite(value))
        RaiseError(RuntimeError::Overflow);
    return FormatDigits(PlainText(value), format);
}

QString Format(int value, NumberFormat format)
{
    return FormatDigits(PlainText(value), format);
}

QString Format(float value, NumberFormat format)
{
    return FormatDigits(PlainText(value), format);
}

QString Format(const QString &text, NumberFormat format)
{
    return IsNumeric(text) ? FormatDigits(PlainDigits(text), format) : text;
}

QString FormatCurrency(Currency amount)
{
    return Format(amount, NumberFormat::Currency);
}

Currency AsShown(Currency amount)
{
    constexpr qint64 cent = Currency::Unit / 100;
    const qint64 rest = amount.TenThousandths() % cent; // with the sign of the amount
    const qint64 down = amount.TenThousandths() - rest;
    return Currency::FromTenThousandths(qAbs(rest) < cent / 2 ? down : rest > 0 ? down + cent : down - cent);
}
