// The named formats of amounts and numbers. Rounding to the shown decimals is half away from zero on the exact
// decimal value; an amount that rounds to zero shows no sign. Signs follow the user's locale.
#pragma once

#include "platform/values/Currency.h"

#include <QString>

enum class NumberFormat {
    Currency,      ///< symbol, separators, two decimals; negatives in parentheses in a United States locale
    Fixed,         ///< two decimals, no separators
    Standard,      ///< two decimals, separators
    Percent,       ///< the value times 100, two decimals, a percent sign
    GeneralNumber, ///< plain number
};

QString Format(Currency amount, NumberFormat format);
QString Format(double value, NumberFormat format);
QString Format(int value, NumberFormat format);
/// A single is formatted from its shortest decimal text: 0.06 is 6.00%, whatever its double says.
QString Format(float value, NumberFormat format);
/// A text is converted first when it is numeric; any other text comes back unchanged.
QString Format(const QString &text, NumberFormat format);

/// Format(amount, NumberFormat::Currency)
QString FormatCurrency(Currency amount);

/// A fraction as the number of per cent that a text box shows: 0.06 is "6.00". The same digits as those of
/// NumberFormat::Percent. "Times 100" and "divided by 100" shift the decimal point and lose no digit.
QString PerCent(float fraction);
/// The fraction that a number of per cent stands for: "6.625" is 0.06625. Error 13 for no number, 6 beyond a single.
float FractionOf(const QString &perCent);
/// The amount that this text tells: rounded to two decimals, half away from zero.
Currency AsShown(Currency amount);
