// What share of gross pay is paid out, from two sample paychecks.
#pragma once

#include "income/IncomeState.h"

#include <QString>

/// The texts of the boxes of both paychecks.
struct PaychecksEntry {
    QString FirstCheckGross, FirstCheckNet;
    QString SecondCheckGross, SecondCheckNet;
};

/// AverageNetPercentage becomes the plain mean of both paychecks' net divided by gross, so that a small paycheck counts
/// as much as a large one. Fractions in single precision; a gross of exactly 0 counts as 0.01.
/// Raises error 13 where a text is no number and error 6 beyond the range of Currency; then nothing is changed.
void CalculateAverageNet(const PaychecksEntry &entry);

/// The question about AverageNetPercentage when it has changed: per cent in single precision, with a blank of its own
/// in front of a number that is not negative.
QString AverageNetQuestion();
