// What the settings windows show, test and store, as calculations on texts and the shared state.
#pragma once

#include "foundation/Refusal.h"
#include "foundation/State.h"

/// The texts of frmEnvironmentSettings that apply when the window is left. Percentages are in per cent. A null text is
/// that of a field that nobody has edited: it stores nothing, since a text shows less than the setting may hold.
struct EnvironmentEntry {
    QString ForecastPeriods = {};
    QString PaycheckAmount = {};
    QString SalesTax = {};
    QString AverageNetPercentage = {};
    bool operator==(const EnvironmentEntry &) const = default;
};

/// The settings as the window shows them.
EnvironmentEntry ShownEnvironment();

/// The forecast text, replaced by "1000" or "1" where its integer value lies outside 1 to 1000.
/// Error 6 if it is beyond an Integer, 13 if it is no number.
QString BoundedForecastPeriods(const QString &text);

/// The forecast text one step of the spinner further, kept within 1 to maximum; a text that is no number stays.
QString SteppedForecastPeriods(const QString &text, int step, int maximum);

/// Stores the entry, setting by setting in the order of the record; an error leaves those before it stored.
/// Percentages become fractions in single precision. Error 6 for a number beyond its type, 13 for no number.
void TakeEnvironmentEntry(const EnvironmentEntry &entry);

/// What is known of the pay days of the frequencies that ask for them, and how to change it, in full sentences.
QString SemimonthlyPayDays();
QString MonthlyPayDay();

/// What two semimonthly pay dates are refused for, if anything. A second date of 0 is the month's end.
std::optional<Refusal> ValidateSemimonthlyEntry(const QString &firstPayDate, const QString &secondPayDate);
/// Stores them, rounded to Integers, ties to even.
void TakeSemimonthlyEntry(const QString &firstPayDate, const QString &secondPayDate);
