// A decimal number of any length, between texts, binary numbers and amounts: what is read, rounded and printed digit by
// digit passes through here.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVarLengthArray>

/// Where a number goes that lies exactly between two neighbours.
enum class Ties { AwayFromZero, ToEven };

/// 0.DIGITS times ten to the power Point. Neither the first nor the last digit is 0; the number 0 has no digits.
class Decimal
{
public:
    Decimal() = default;
    /// The digits '0' to '9', with or without zeros outside. `point` counts the digits ahead of the decimal point; it
    /// may lie outside them.
    Decimal(bool negative, const char *digits, qsizetype count, int point);
    /// Ten to the power -decimals times `count`.
    Decimal(qint64 count, int decimals);
    /// The shortest digits that read back as the same value. The value is finite.
    explicit Decimal(float value);
    explicit Decimal(double value);
    /// So many digits of the value, rounded. The value is finite.
    static Decimal WithDigits(double value, int digits);

    bool IsNegative() const { return m_negative && !IsZero(); }
    bool IsZero() const { return m_digits.isEmpty(); }
    void SetNegative(bool negative) { m_negative = negative; }

    /// The number times ten to the power `places`: shifts the point and keeps every digit.
    Decimal Shifted(int places) const;
    Decimal Rounded(int decimals, Ties ties) const;

    /// The whole number, without decimals. Error 6 (Overflow) beyond the range.
    qint64 ToWhole() const;
    /// The nearest value. Error 6 beyond the range; what is too small for it is 0.
    float ToFloat() const;
    double ToDouble() const;

    /// Plain notation without a sign, with at least one digit ahead of the point.
    QString Whole() const;
    /// The digits behind the point, filled up with zeros to `least`.
    QString Fraction(int least) const;
    /// The whole in plain notation: a sign if negative, "." as the point, no zeros at the end.
    QString PlainText() const;

private:
    template <class Float>
    Float Nearest() const;
    void DropOuterZeros();
    /// The digits from one place to before another, counted from the first; outside stand zeros.
    QString Digits(qsizetype from, qsizetype to) const;

    bool m_negative = false;
    QVarLengthArray<char, 32> m_digits; // an amount, a single and a double fit without a separate allocation
    int m_point = 0;
};
