#include "platform/values/Currency.h"

#include <cmath>

Currency Currency::FromDouble(double amount)
{
    const double count = std::nearbyint(amount * double(Unit));
    // 2^63 as a double is exact; the greatest count is one less.
    if (!(count >= -9223372036854775808.0 && count < 9223372036854775808.0))
        RaiseError(RuntimeError::Overflow);
    return Currency(qint64(count));
}

Currency Currency::operator+(Currency other) const
{
    qint64 sum = 0;
    if (__builtin_add_overflow(m_count, other.m_count, &sum))
        RaiseError(RuntimeError::Overflow);
    return Currency(sum);
}

Currency Currency::operator-(Currency other) const
{
    qint64 difference = 0;
    if (__builtin_sub_overflow(m_count, other.m_count, &difference))
        RaiseError(RuntimeError::Overflow);
    return Currency(difference);
}

Currency Currency::operator*(qint64 factor) const
{
    qint64 product = 0;
    if (__builtin_mul_overflow(m_count, factor, &product))
        RaiseError(RuntimeError::Overflow);
    return Currency(product);
}
