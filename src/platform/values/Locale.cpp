#include "platform/values/Locale.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The C locale has no currency symbol and no separators; whoever never chose a locale gets those of the United States.
QLocale Usable(const QLocale &locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

/// The locale formats an amount, and what stands around its digits is the pattern.
AmountPattern PatternOf(const QLocale &locale, bool negative)
{
    const QString symbol = locale.currencySymbol();
    if (locale.territory() == QLocale::UnitedStates)
        return negative ? AmountPattern{QLatin1Char('(') + symbol, u")"_s} : AmountPattern{symbol, {}};
    const QString digits = QLatin1Char('1') + locale.decimalPoint() + u"00"_s;
    const QString amount = locale.toCurrencyString(negative ? -1.0 : 1.0, QString(), 2);
    if (const qsizetype at = amount.indexOf(digits); at >= 0)
        return {amount.left(at), amount.mid(at + digits.size())};
    // The locale has digits of its own; amounts keep the common ones.
    return {negative ? locale.negativeSign() : QString(), QLatin1Char(' ') + symbol};
}

LocaleSigns SignsOf(const QLocale &locale)
{
    QString symbol = locale.currencySymbol();
    if (symbol.isEmpty())
        symbol = locale.currencySymbol(QLocale::CurrencyIsoCode);
    return {.Point = locale.decimalPoint(),
            .Thousands = locale.groupSeparator(),
            .Symbol = WithoutDirectionMarks(symbol),
            .Positive = PatternOf(locale, false),
            .Negative = PatternOf(locale, true)};
}

struct Choice {
    explicit Choice(const QLocale &locale) : Locale(Usable(locale)), Signs(SignsOf(Locale)) {}
    QLocale Locale;
    LocaleSigns Signs;
};

Choice &Chosen()
{
    static Choice choice(QLocale::system());
    return choice;
}

} // namespace

const QLocale &UserLocale()
{
    return Chosen().Locale;
}

const LocaleSigns &UserSigns()
{
    return Chosen().Signs;
}

void SetUserLocale(const QLocale &locale)
{
    Chosen() = Choice(locale);
}

QString WithoutDirectionMarks(QString text)
{
    for (const char16_t mark : {u'\u200E', u'\u200F', u'\u061C'})
        text.remove(QChar(mark));
    return text;
}
