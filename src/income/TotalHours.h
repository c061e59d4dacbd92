// The hours of each week of a pay period, and which of them are overtime.
#pragma once

#include "foundation/State.h"
#include "income/IncomeState.h"

#include <QString>

constexpr float MostRegularHours = 40; ///< in a week; what is beyond is overtime
constexpr float MostHoursOfWeek = 168;

/// How many weeks a pay period has, whatever the calendar says; 0 for a frequency that is none.
int WeeksOf(qint16 payFrequency);

/// The texts of the boxes of all weeks, from week 1 at element 0.
using WeekTexts = std::array<QString, MostWeeks>;

/// Whether a text, which is numeric, is more than the hours of a week, compared in single precision; what is too large
/// for that is, too. A negative number of any size is not.
bool IsMoreThanAWeek(const QString &text);

/// What the boxes show: the hours entered last; those of a week without a box to enter them are 0.
QString ShownHours(int week, bool enabled);

/// Takes the numeric prefix of each text as the hours of its week, splits each week in use at 40 hours and adds up. A
/// sum is single precision. A week that is not in use keeps its split, but its text is taken as well.
/// Raises error 6 for hours beyond single precision; then nothing is taken.
void TakeHours(const WeekTexts &texts);
