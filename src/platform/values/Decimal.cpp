#include "platform/values/Decimal.h"

#include "platform/values/RuntimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

/// Digits and exponent of a text like "-1.25e-07", as std::to_chars writes it.
Decimal FromScientific(const char *text, const char *end)
{
    const bool negative = *text == '-';
    const char *mantissa = text + (negative ? 1 : 0);
    const char *letter = std::find(mantissa, end, 'e');
    char digits[64];
    const char *behind = std::remove_copy(mantissa, letter, digits, '.');
    int exponent = 0;
    std::from_chars(letter + (letter[1] == '+' ? 2 : 1), end, exponent);
    return {negative, digits, behind - digits, exponent + 1};
}

template <class Float, class... Precision>
Decimal FromFloat(Float value, Precision... precision)
{
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, precision...);
    return FromScientific(text, result.ptr);
}

} // namespace

Decimal::Decimal(bool negative, const char *digits, qsizetype count, int point) : m_negative(negative), m_point(point)
{
    m_digits.append(digits, count);
    DropOuterZeros();
}

Decimal::Decimal(qint64 count, int decimals) : m_negative(count < 0)
{
    char digits[20];
    const quint64 magnitude = count < 0 ? 0 - quint64(count) : quint64(count);
    const auto result = std::to_chars(digits, digits + sizeof digits, magnitude);
    m_digits.append(digits, result.ptr - digits);
    m_point = int(m_digits.size()) - decimals;
    DropOuterZeros();
}

Decimal::Decimal(float value) : Decimal(FromFloat(value)) {}

Decimal::Decimal(double value) : Decimal(FromFloat(value)) {}

Decimal Decimal::WithDigits(double value, int digits)
{
    return FromFloat(value, digits - 1);
}

void Decimal::DropOuterZeros()
{
    const auto counts = [](char digit) { return digit != '0'; };
    while (!m_digits.isEmpty() && m_digits.back() == '0')
        m_digits.removeLast();
    const auto zeros = std::find_if(m_digits.cbegin(), m_digits.cend(), counts) - m_digits.cbegin();
    if (zeros > 0)
        m_digits.remove(0, zeros);
    m_point = m_digits.isEmpty() ? 0 : m_point - int(zeros);
}

Decimal Decimal::Shifted(int places) const
{
    Decimal shifted = *this;
    if (!IsZero())
        shifted.m_point += places;
    return shifted;
}

Decimal Decimal::Rounded(int decimals, Ties ties) const
{
    Decimal rounded = *this;
    auto &digits = rounded.m_digits;
    const qsizetype kept = m_point + decimals; // digits ahead of the rounding place
    if (kept >= digits.size())
        return rounded;
    if (kept < 0)
        return {};
    const bool isTie = digits[kept] == '5' && digits.size() == kept + 1;
    const bool toEven = isTie && ties == Ties::ToEven;
    const bool isOdd = kept > 0 && (digits[kept - 1] - '0') % 2 == 1;
    const bool up = toEven ? isOdd : digits[kept] >= '5';
    digits.resize(kept);
    if (!up) {
        rounded.DropOuterZeros();
        return rounded;
    }
    while (!digits.isEmpty() && digits.back() == '9') // becomes a zero at the end
        digits.removeLast();
    if (digits.isEmpty()) {
        digits.append('1');
        ++rounded.m_point;
    } else {
        ++digits.back();
    }
    return rounded;
}

qint64 Decimal::ToWhole() const
{
    constexpr int mostDigits = 19;
    if (m_point > mostDigits)
        RaiseError(RuntimeError::Overflow);
    quint64 count = 0; // 19 digits fit
    for (int i = 0; i < m_point; ++i)
        count = count * 10 + (i < m_digits.size() ? quint64(m_digits[i] - '0') : 0);
    const quint64 limit = quint64(std::numeric_limits<qint64>::max()) + (m_negative ? 1 : 0);
    if (count > limit)
        RaiseError(RuntimeError::Overflow);
    return m_negative ? qint64(0 - count) : qint64(count);
}

template <class Float>
Float Decimal::Nearest() const
{
    if (IsZero())
        return 0;
    QVarLengthArray<char, 64> text;
    text.append(m_negative ? "-0." : "0.", m_negative ? 3 : 2);
    text.append(m_digits.data(), m_digits.size());
    char exponent[16] = {'e'};
    text.append(exponent, std::to_chars(exponent + 1, exponent + sizeof exponent, m_point).ptr - exponent);
    Float value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    // Both ends of the range answer alike; a small exponent means that the number is as good as 0.
    if (error == std::errc::result_out_of_range && m_point <= 0)
        return 0;
    if (error == std::errc::result_out_of_range || !std::isfinite(value))
        RaiseError(RuntimeError::Overflow);
    return value;
}

float Decimal::ToFloat() const
{
    return Nearest<float>();
}

double Decimal::ToDouble() const
{
    return Nearest<double>();
}

QString Decimal::Digits(qsizetype from, qsizetype to) const
{
    QString text(to - from, QLatin1Char('0'));
    const qsizetype end = std::min(to, m_digits.size());
    for (qsizetype i = std::max<qsizetype>(from, 0); i < end; ++i)
        text[i - from] = QLatin1Char(m_digits[i]);
    return text;
}

QString Decimal::Whole() const
{
    return Digits(std::min(0, m_point - 1), m_point);
}

QString Decimal::Fraction(int least) const
{
    return Digits(m_point, std::max<qsizetype>(m_digits.size(), m_point + least));
}

QString Decimal::PlainText() const
{
    const qsizetype first = std::min(0, m_point - 1);
    const qsizetype last = std::max<qsizetype>(m_digits.size(), m_point);
    QString text = Digits(first, last);
    if (last > m_point)
        text.insert(m_point - first, QLatin1Char('.'));
    return IsNegative() ? QLatin1Char('-') + text : text;
}
