// The locale whose signs amounts and numbers use on the screen and on paper.
#pragma once

#include <QLocale>

/// The user's locale; the C locale counts as United States English.
const QLocale &UserLocale();

/// What stands before and behind the digits of an amount in the format "Currency".
struct AmountPattern {
    QString Before;
    QString Behind;
};

/// The signs of amounts and numbers. They are looked up once for a locale, since every amount that is shown needs them.
struct LocaleSigns {
    QString Point;     ///< between whole and fraction
    QString Thousands; ///< parts the whole
    QString Symbol;    ///< of the currency, or its three letters; without the unseen marks of right-to-left scripts
    AmountPattern Positive = {};
    AmountPattern Negative = {};
};
/// Those of UserLocale().
const LocaleSigns &UserSigns();

/// Takes another locale for the rest of the run, for tests.
void SetUserLocale(const QLocale &locale);

/// Right-to-left locales put unseen marks around signs and symbols.
QString WithoutDirectionMarks(QString text);
