// Text to number and back. What counts as a number is settled here once: IsNumeric and every conversion share one
// reader.
#pragma once

#include "platform/values/Currency.h"
#include "platform/values/Decimal.h"

#include <QString>

/// Whose signs a text uses: the user's locale, or the data files', where "." is the point and "," parts thousands.
enum class Dialect { User, File };

/// After trimming blanks: an optional sign before or after, an optional currency symbol before or after, parentheses
/// around the whole for a negative, digits with thousands separators in the integer part, at most one decimal
/// separator, an optional exponent; or &H1F, &O17.
bool IsNumeric(const QString &text, Dialect dialect = Dialect::User);

/// These accept exactly what IsNumeric accepts, else they raise error 13; too large is error 6.
/// Decimal text becomes Currency exactly, never through a double; a fifth decimal is rounded, ties to even.
Currency ToCurrency(const QString &text, Dialect dialect = Dialect::User);
/// Rounded to the nearest integer, ties to even.
qint16 ToInteger(const QString &text, Dialect dialect = Dialect::User);
double ToDouble(const QString &text, Dialect dialect = Dialect::User);
float ToSingle(const QString &text, Dialect dialect = Dialect::User);

/// The same exactly, however many decimals the text has; what is as good as 0 in a double is 0.
Decimal ToDecimal(const QString &text, Dialect dialect = Dialect::User);
Decimal ToDecimal(Currency amount);

/// The plain numbers that a data file holds: sign, digits, ".", exponent. No symbol and no separators.
bool IsPlainNumber(const QString &text);

/// The longest leading plain number of a text in the user's locale, blanks skipped; 0 where there is none.
double NumericPrefix(const QString &text);

/// A double as a 16-bit integer: nearest, ties to even; error 6 beyond the range.
qint16 ToInteger(double value);
/// A 16-bit counter or count after an addition: error 6 beyond the range, never a wrap.
qint16 ToInteger(int value);
/// A double narrowed to single precision; error 6 beyond the range.
float ToSingle(double value);
/// The nearest whole number, ties to even, for columns and the like.
int RoundToEven(double value);

/// Plain text as the data files hold it: "." as the point, no separators, the shortest digits that read back as the
/// same value, a zero before the point.
QString PlainText(Currency amount);
QString PlainText(float value);
QString PlainText(int value);
QString PlainText(double value);

/// A single as a text box shows it: at most seven significant digits, the user's decimal separator.
QString ShownText(float value);
/// The one form with a blank in front of a number that is not negative and no zero before the point: " 85", " .5".
/// At most seven significant digits, "." as the point.
QString SpacedText(float value);
