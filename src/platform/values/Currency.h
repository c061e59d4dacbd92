// Money: a signed 64-bit count of ten-thousandths. Sums and differences are exact; a float enters only through
// FromDouble, so that every rounding can be found by searching for that word.
#pragma once

#include "platform/values/RuntimeError.h"

#include <compare>

class Currency
{
public:
    static constexpr qint64 Unit = 10000;

    static const Currency Zero;

    constexpr Currency() = default;
    static constexpr Currency FromTenThousandths(qint64 count) { return Currency(count); }
    /// `amount` in whole units of money, rounded to the nearest ten-thousandth, ties to even.
    /// Raises error 6 (Overflow) outside the range, also for what is no number.
    static Currency FromDouble(double amount);

    constexpr qint64 TenThousandths() const { return m_count; }
    double ToDouble() const { return double(m_count) / double(Unit); }
    constexpr bool IsNegative() const { return m_count < 0; }
    Currency Abs() const { return IsNegative() ? -*this : *this; }

    /// All of these are exact and raise error 6 outside the range.
    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator*(qint64 factor) const;
    Currency operator-() const { return Zero - *this; }
    Currency &operator+=(Currency other) { return *this = *this + other; }
    Currency &operator-=(Currency other) { return *this = *this - other; }

    constexpr auto operator<=>(const Currency &) const = default;

private:
    constexpr explicit Currency(qint64 count) : m_count(count) {}
    qint64 m_count = 0;
};

inline constexpr Currency Currency::Zero{};
