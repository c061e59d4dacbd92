#include "platform/values/Numbers.h"

#include "platform/values/Locale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

/// A decimal number taken apart: 0.DIGITS times ten to the power `Point`, and its sign. Neither the first nor the last
/// digit is 0; the number 0 has no digits.
struct Decimal {
    bool Negative = false;
    QByteArray Digits;
    int Point = 0;
};

// An exponent beyond this is as good as infinite whatever digits stand before it, and it still leaves room for adding
// their count.
constexpr int GreatestExponent = 1000000000;

struct Signs {
    QString Point, Thousands, Symbol;
};

/// Right-to-left locales put unseen marks around signs and symbols.
QString WithoutDirectionMarks(QString text)
{
    for (const char16_t mark : {u'\u200E', u'\u200F', u'\u061C'})
        text.remove(QChar(mark));
    return text;
}

Signs SignsOf(Dialect dialect)
{
    if (dialect == Dialect::File)
        return {QStringLiteral("."), QStringLiteral(","), QStringLiteral("$")};
    const QLocale &locale = UserLocale();
    // A locale without a symbol shows the three letters of its currency.
    const QString symbol = locale.currencySymbol();
    return {locale.decimalPoint(), locale.groupSeparator(),
            WithoutDirectionMarks(symbol.isEmpty() ? locale.currencySymbol(QLocale::CurrencyIsoCode) : symbol)};
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

Decimal WithoutOuterZeros(Decimal number)
{
    const auto counts = [](char c) { return c != '0'; };
    const auto first = std::find_if(number.Digits.cbegin(), number.Digits.cend(), counts);
    const auto last = std::find_if(number.Digits.crbegin(), number.Digits.crend(), counts).base();
    if (first == number.Digits.cend())
        return {};
    number.Point -= int(first - number.Digits.cbegin());
    number.Digits = QByteArray(first, last - first);
    return number;
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
    const QByteArray digits = QByteArray::number(value);
    return WithoutOuterZeros({false, digits, int(digits.size())});
}

/// The digits of a number: integer part with separators, point, fraction, exponent. Nothing if there is no digit.
std::optional<Decimal> ReadDigits(Scanner &text, const Signs &signs, bool separatorsAllowed)
{
    Decimal number;
    bool any = false;
    // Some locales part thousands with a no-break space or a curly apostrophe; people type the plain ones for them.
    const bool blankParts = !signs.Thousands.isEmpty() && IsBlank(signs.Thousands.front());
    const bool apostropheParts = signs.Thousands == QStringView(u"\u2019");
    for (;;) {
        if (const auto digit = text.TakeDigit()) {
            number.Digits += *digit;
            any = true;
        } else if (!(any && separatorsAllowed &&
                     (text.Take(signs.Thousands) || (apostropheParts && text.Take(u"'")) ||
                      (blankParts && text.Rest().size() > 1 && text.Rest()[1].isDigit() && text.Take(u" "))))) {
            break;
        }
    }
    number.Point = int(number.Digits.size());
    if (text.Take(signs.Point)) {
        while (const auto digit = text.TakeDigit()) {
            number.Digits += *digit;
            any = true;
        }
    }
    if (!any)
        return {};
    Scanner exponent = text;
    if (exponent.Take(u"e") || exponent.Take(u"E")) {
        const bool negative = TakeSign(exponent, false) < 0;
        qint64 value = 0;
        bool digits = false;
        while (const auto digit = exponent.TakeDigit()) {
            value = std::min<qint64>(value * 10 + (*digit - '0'), GreatestExponent);
            digits = true;
        }
        if (digits) {
            number.Point += int(negative ? -value : value);
            text = exponent;
        }
    }
    return WithoutOuterZeros(number);
}

std::optional<Decimal> Read(const QString &source, Dialect dialect)
{
    const QString plain = WithoutDirectionMarks(source);
    Scanner text(plain);
    if (const auto radix = ReadRadix(text.Rest()))
        return radix;
    const Signs signs = SignsOf(dialect);
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
    number->Negative = negative;
    return number;
}

Decimal ReadOrMismatch(const QString &text, Dialect dialect)
{
    const auto number = Read(text, dialect);
    if (!number)
        RaiseError(RuntimeError::TypeMismatch);
    return *number;
}

/// Ten to the power `decimals` times the number, rounded to a whole number, ties to even.
qint64 Scaled(const Decimal &number, int decimals)
{
    if (number.Digits.isEmpty())
        return 0;
    const int whole = number.Point + decimals; // digits ahead of the rounding place
    if (whole > 19)
        RaiseError(RuntimeError::Overflow);
    if (whole < 0)
        return 0;
    quint64 count = 0;
    for (int i = 0; i < whole; ++i) {
        const quint64 digit = i < number.Digits.size() ? quint64(number.Digits[i] - '0') : 0;
        if (__builtin_mul_overflow(count, quint64(10), &count) || __builtin_add_overflow(count, digit, &count))
            RaiseError(RuntimeError::Overflow);
    }
    if (whole < number.Digits.size()) {
        const QByteArray rest = number.Digits.mid(whole);
        const bool tie = rest == "5";
        if (tie ? count % 2 == 1 : rest[0] >= '5')
            ++count;
    }
    const quint64 limit = quint64(std::numeric_limits<qint64>::max()) + (number.Negative ? 1 : 0);
    if (count > limit)
        RaiseError(RuntimeError::Overflow);
    return number.Negative ? qint64(-count) : qint64(count);
}

/// The nearest double or single.
template <class Float>
Float Value(const Decimal &number)
{
    if (number.Digits.isEmpty())
        return 0;
    const QByteArray text = (number.Negative ? "-0." : "0.") + number.Digits + 'e' + QByteArray::number(number.Point);
    Float value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    // Both ends of the range answer alike; a small exponent means that the number is as good as 0.
    if (error == std::errc::result_out_of_range && number.Point <= 0)
        return 0;
    if (error == std::errc::result_out_of_range || !std::isfinite(value))
        RaiseError(RuntimeError::Overflow);
    return value;
}

/// The shortest digits that read back as the same value, in plain notation with a point.
template <class Float>
QString Shortest(Float value)
{
    char text[1100]; // the least double has 1074 decimals
    const auto result =
        std::to_chars(text, text + sizeof text, value == 0 ? Float(0) : value, std::chars_format::fixed);
    return QString::fromLatin1(text, result.ptr - text);
}

/// What is left of a single when only seven digits are shown.
double SevenDigits(float value)
{
    return QByteArray::number(double(value), 'e', 6).toDouble();
}

} // namespace

bool IsNumeric(const QString &text, Dialect dialect)
{
    return Read(text, dialect).has_value();
}

Currency ToCurrency(const QString &text, Dialect dialect)
{
    return Currency::FromTenThousandths(Scaled(ReadOrMismatch(text, dialect), 4));
}

qint16 ToInteger(const QString &text, Dialect dialect)
{
    const qint64 value = Scaled(ReadOrMismatch(text, dialect), 0);
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        RaiseError(RuntimeError::Overflow);
    return qint16(value);
}

double ToDouble(const QString &text, Dialect dialect)
{
    return Value<double>(ReadOrMismatch(text, dialect));
}

float ToSingle(const QString &text, Dialect dialect)
{
    return Value<float>(ReadOrMismatch(text, dialect));
}

QString PlainDigits(const QString &text, Dialect dialect)
{
    const Decimal number = ReadOrMismatch(text, dialect);
    Value<double>(number); // an exponent beyond every range ends here
    if (number.Digits.isEmpty() || number.Point < -400)
        return QStringLiteral("0");
    QByteArray digits = QByteArray(std::max(0, 1 - number.Point), '0') + number.Digits;
    const int point = std::max(number.Point, 1);
    digits = digits.leftJustified(point, '0');
    if (digits.size() > point)
        digits.insert(point, '.');
    return QString::fromLatin1(number.Negative ? '-' + digits : digits);
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
    number->Negative = negative;
    return Value<double>(*number);
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
    const qint64 count = amount.TenThousandths();
    const quint64 magnitude = count < 0 ? 0 - quint64(count) : quint64(count);
    QString text = QString::number(magnitude / quint64(Currency::Unit));
    QString fraction = QString::number(magnitude % quint64(Currency::Unit)).rightJustified(4, QLatin1Char('0'));
    while (fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    if (!fraction.isEmpty())
        text += QLatin1Char('.') + fraction;
    return count < 0 ? QLatin1Char('-') + text : text;
}

QString PlainText(float value)
{
    return Shortest(value);
}

QString PlainText(double value)
{
    return Shortest(value);
}

QString PlainText(int value)
{
    return QString::number(value);
}

QString ShownText(float value)
{
    return PlainText(SevenDigits(value)).replace(QLatin1Char('.'), UserLocale().decimalPoint());
}

QString SpacedText(float value)
{
    QString text = PlainText(SevenDigits(value));
    if (text.startsWith(QLatin1String("0.")))
        text.remove(0, 1);
    else if (text.startsWith(QLatin1String("-0.")))
        text.remove(1, 1);
    return value < 0 ? text : QLatin1Char(' ') + text;
}
