#include "platform/values/Format.h"

#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Hundred = 2; // as a power of ten

QString WithSeparators(const QString &whole)
{
    const QString &separator = UserSigns().Thousands;
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

template <class Float>
Decimal Finite(Float value)
{
    if (!std::isfinite(value))
        RaiseError(RuntimeError::Overflow);
    return Decimal(value);
}

QString FormatDecimal(const Decimal &number, NumberFormat format)
{
    const LocaleSigns &signs = UserSigns();
    if (format == NumberFormat::GeneralNumber)
        return number.PlainText().replace(QLatin1Char('.'), signs.Point);
    if (format == NumberFormat::Percent)
        return FormatDecimal(number.Shifted(Hundred), NumberFormat::Fixed) + QLatin1Char('%');
    constexpr int cents = 2;
    const Decimal shown = number.Rounded(cents, Ties::AwayFromZero);
    const QString fraction = signs.Point + shown.Fraction(cents);
    if (format == NumberFormat::Currency) {
        const AmountPattern &pattern = shown.IsNegative() ? signs.Negative : signs.Positive;
        return pattern.Before + WithSeparators(shown.Whole()) + fraction + pattern.Behind;
    }
    const QString whole = format == NumberFormat::Standard ? WithSeparators(shown.Whole()) : shown.Whole();
    return (shown.IsNegative() ? u"-"_s : QString()) + whole + fraction;
}

} // namespace

QString Format(Currency amount, NumberFormat format)
{
    return FormatDecimal(ToDecimal(amount), format);
}

QString Format(double value, NumberFormat format)
{
    return FormatDecimal(Finite(value), format);
}

QString Format(int value, NumberFormat format)
{
    return FormatDecimal(Decimal(value, 0), format);
}

QString Format(float value, NumberFormat format)
{
    return FormatDecimal(Finite(value), format);
}

QString Format(const QString &text, NumberFormat format)
{
    return IsNumeric(text) ? FormatDecimal(ToDecimal(text), format) : text;
}

QString FormatCurrency(Currency amount)
{
    return Format(amount, NumberFormat::Currency);
}

QString PerCent(float fraction)
{
    return FormatDecimal(Finite(fraction).Shifted(Hundred), NumberFormat::Fixed);
}

float FractionOf(const QString &perCent)
{
    return Decimal(ToSingle(perCent)).Shifted(-Hundred).ToFloat();
}

Currency AsShown(Currency amount)
{
    constexpr qint64 cent = Currency::Unit / 100;
    const qint64 rest = amount.TenThousandths() % cent; // with the sign of the amount
    const qint64 down = amount.TenThousandths() - rest;
    return Currency::FromTenThousandths(qAbs(rest) < cent / 2 ? down : rest > 0 ? down + cent : down - cent);
}
