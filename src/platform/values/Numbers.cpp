#include "platform/values/Numbers.h"

#include "platform/values/Locale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

// An exponent beyond this is as good as infinite whatever digits stand before it, and it still leaves room for adding
// their count.
constexpr int GreatestExponent = 1000000000;

/// The data files' signs, which a household keeps when it moves to another locale.
const LocaleSigns &SignsOf(Dialect dialect)
{
    static const LocaleSigns file{.Point = u"."_s, .Thousands = u","_s, .Symbol = u"$"_s};
    return dialect == Dialect::File ? file : UserSigns();
}

bool IsBlank(QChar c)
{
    return c.isSpace();
}

/// Reads one number off the front of a text, sign by sign.
class Scanner
{
public:
    explicit Scanner(QStringView text) : m_text(text.trimmed()) {}

    bool AtEnd() const { return m_text.isEmpty(); }
    bool Take(QStringView word)
    {
        if (word.isEmpty() || !m_text.startsWith(word))
            return false;
        m_text = m_text.mid(word.size());
        return true;
    }
    bool TakeBack(QStringView word)
    {
        if (word.isEmpty() || !m_text.endsWith(word))
            return false;
        m_text.chop(word.size());
        return true;
    }
    std::optional<char> TakeDigit()
    {
        if (AtEnd() || m_text.front() < u'0' || m_text.front() > u'9')
            return {};
        const char digit = char(m_text.front().unicode());
        m_text = m_text.mid(1);
        return digit;
    }
    void Trim() { m_text = m_text.trimmed(); }
    QStringView Rest() const { return m_text; }

private:
    QStringView m_text;
};

/// +1 or -1 if a sign stands there, else 0. The true minus sign counts beside the hyphen.
int TakeSign(Scanner &text, bool atBack)
{
    const auto take = [&](QStringView sign) { return atBack ? text.TakeBack(sign) : text.Take(sign); };
    if (take(u"+"))
        return 1;
    return take(u"-") || take(u"\u2212") ? -1 : 0;
}

std::optional<Decimal> ReadRadix(QStringView text)
{
    if (text.size() < 3 || text[0] != u'&')
        return {};
    const QChar letter = text[1].toUpper();
    if (letter != u'H' && letter != u'O')
        return {};
    const unsigned radix = letter == u'H' ? 16 : 8;
    quint32 value = 0;
    for (const QChar c : text.mid(2)) {
        const char16_t lower = c.toLower().unicode();
        const unsigned digit = lower >= u'0' && lower <= u'9'   ? unsigned(lower - u'0')
                               : lower >= u'a' && lower <= u'f' ? unsigned(lower - u'a') + 10
                                                                : radix;
        if (digit >= radix || __builtin_mul_overflow(value, radix, &value) ||
            __builtin_add_overflow(value, digit, &value))
            return {};
    }
    return Decimal(qint64(value), 0);
}

/// The digits of a number: integer part with separators, point, fraction, exponent. Nothing if there is no digit.
std::optional<Decimal> ReadDigits(Scanner &text, const LocaleSigns &signs, bool separatorsAllowed)
{
    QVarLengthArray<char, 32> digits;
    // Some locales part thousands with a no-break space or a curly apostrophe; people type the plain ones for them.
    const bool blankParts = !signs.Thousands.isEmpty() && IsBlank(signs.Thousands.front());
    const bool apostropheParts = signs.Thousands == QStringView(u"\u2019");
    for (;;) {
        if (const auto digit = text.TakeDigit()) {
            digits.append(*digit);
        } else if (!(!digits.isEmpty() && separatorsAllowed &&
                     (text.Take(signs.Thousands) || (apostropheParts && text.Take(u"'")) ||
                      (blankParts && text.Rest().size() > 1 && text.Rest()[1].isDigit() && text.Take(u" "))))) {
            break;
        }
    }
    int point = int(digits.size());
    if (text.Take(signs.Point))
        while (const auto digit = text.TakeDigit())
            digits.append(*digit);
    if (digits.isEmpty())
        return {};
    Scanner exponent = text;
    if (exponent.Take(u"e") || exponent.Take(u"E")) {
        const bool negative = TakeSign(exponent, false) < 0;
        qint64 value = 0;
        bool any = false;
        while (const auto digit = exponent.TakeDigit()) {
            value = std::min<qint64>(value * 10 + (*digit - '0'), GreatestExponent);
            any = true;
        }
        if (any) {
            point += int(negative ? -value : value);
            text = exponent;
        }
    }
    return Decimal(false, digits.data(), digits.size(), point);
}

std::optional<Decimal> Read(const QString &source, Dialect dialect)
{
    const QString plain = WithoutDirectionMarks(source);
    Scanner text(plain);
    if (const auto radix = ReadRadix(text.Rest()))
        return radix;
    const LocaleSigns &signs = SignsOf(dialect);
    bool negative = false;
    bool symbolSeen = false;
    bool signSeen = false;
    if (text.Take(u"(")) {
        if (!text.TakeBack(u")"))
            return {};
        negative = true;
        signSeen = true;
        text.Trim();
    }
    // Sign and symbol may stand on either side, in either order, each once.
    for (const bool atBack : {false, true}) {
        for (int i = 0; i < 2; ++i) {
            text.Trim();
            if (!symbolSeen && (atBack ? text.TakeBack(signs.Symbol) : text.Take(signs.Symbol))) {
                symbolSeen = true;
            } else if (!signSeen) {
                const int sign = TakeSign(text, atBack);
                signSeen = sign != 0;
                negative = negative || sign < 0;
            }
        }
    }
    text.Trim();
    auto number = ReadDigits(text, signs, true);
    if (!number || !text.AtEnd())
        return {};
    number->SetNegative(negative);
    return number;
}

Decimal ReadOrMismatch(const QString &text, Dialect dialect)
{
    const auto number = Read(text, dialect);
    if (!number)
        RaiseError(RuntimeError::TypeMismatch);
    return *number;
}

/// What a text box shows of a single.
Decimal SevenDigits(float value)
{
    constexpr int digits = 7;
    return Decimal::WithDigits(double(value), digits);
}

} // namespace

bool IsNumeric(const QString &text, Dialect dialect)
{
    return Read(text, dialect).has_value();
}

Currency ToCurrency(const QString &text, Dialect dialect)
{
    constexpr int decimals = 4;
    return Currency::FromTenThousandths(
        ReadOrMismatch(text, dialect).Shifted(decimals).Rounded(0, Ties::ToEven).ToWhole());
}

qint16 ToInteger(const QString &text, Dialect dialect)
{
    const qint64 value = ReadOrMismatch(text, dialect).Rounded(0, Ties::ToEven).ToWhole();
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        RaiseError(RuntimeError::Overflow);
    return qint16(value);
}

double ToDouble(const QString &text, Dialect dialect)
{
    return ReadOrMismatch(text, dialect).ToDouble();
}

float ToSingle(const QString &text, Dialect dialect)
{
    return ReadOrMismatch(text, dialect).ToFloat();
}

Decimal ToDecimal(const QString &text, Dialect dialect)
{
    const Decimal number = ReadOrMismatch(text, dialect);
    return number.ToDouble() == 0 ? Decimal() : number;
}

Decimal ToDecimal(Currency amount)
{
    constexpr int decimals = 4;
    return {amount.TenThousandths(), decimals};
}

bool IsPlainNumber(const QString &source)
{
    Scanner text(source);
    TakeSign(text, false);
    return ReadDigits(text, SignsOf(Dialect::File), false).has_value() && text.AtEnd();
}

double NumericPrefix(const QString &source)
{
    Scanner text(source);
    const bool negative = TakeSign(text, false) < 0;
    auto number = ReadDigits(text, SignsOf(Dialect::User), false);
    if (!number)
        return 0;
    number->SetNegative(negative);
    return number->ToDouble();
}

qint16 ToInteger(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<qint16>::min() && rounded <= std::numeric_limits<qint16>::max()))
        RaiseError(RuntimeError::Overflow);
    return qint16(rounded);
}

qint16 ToInteger(int value)
{
    return ToInteger(double(value));
}

float ToSingle(double value)
{
    const float narrowed = float(value);
    if (!std::isfinite(narrowed))
        RaiseError(RuntimeError::Overflow);
    return narrowed;
}

int RoundToEven(double value)
{
    return int(std::nearbyint(value));
}

QString PlainText(Currency amount)
{
    return ToDecimal(amount).PlainText();
}

QString PlainText(float value)
{
    return Decimal(value).PlainText();
}

QString PlainText(double value)
{
    return Decimal(value).PlainText();
}

QString PlainText(int value)
{
    return QString::number(value);
}

QString ShownText(float value)
{
    return SevenDigits(value).PlainText().replace(QLatin1Char('.'), UserSigns().Point);
}

QString SpacedText(float value)
{
    const Decimal number = SevenDigits(value);
    const QString whole = number.Whole();
    const QString fraction = number.Fraction(0);
    const QString sign = number.IsNegative() ? u"-"_s : u" "_s;
    if (fraction.isEmpty())
        return sign + whole;
    return sign + (whole == QLatin1String("0") ? QString() : whole) + QLatin1Char('.') + fraction;
}
