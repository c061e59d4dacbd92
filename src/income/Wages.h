// What the hours of one pay period earn. Rates and pay are money, hours are single-precision numbers.
#pragma once

#include "foundation/State.h"
#include "income/IncomeState.h"

#include <QString>

/// The texts of the wage calculator's boxes: the first two are read, the others are written.
struct WageBoxes {
    QString HourlyPayRate;
    QString TotalHoursWorked;
    QString RegularRate, RegularHours, TotalRegularPay;
    QString OvertimeRate, OvertimeHours, TotalOvertimePay;
    QString GrossPay, NetPay, MonthlyGross, YearlyGross, PaycheckAmount;
};

/// The pay of TotalRegularHours and TotalOvertimeHours, whatever the box of the hours says, with what it makes in a
/// month and in a year. Each product with a float or a division is rounded once to the ten-thousandth, ties to even.
/// The net pay becomes PaycheckAmount at once.
/// Raises error 13 where a text is no number and error 6 beyond the range of Currency; what was computed up to there
/// is in the boxes and in the state.
void CalculatePeriodWages(WageBoxes &boxes);
/// The same for a weekly pay period, of the hours in their box, rounded to whole hours, ties to even, of which those
/// beyond 40 are overtime. Raises error 6 also for more hours than a 16-bit integer holds.
void CalculateWeeklyWages(WageBoxes &boxes);

/// What the box of the hours shows when the focus leaves it in a weekly pay period: WeeklyRegularHours, which takes the
/// box's number; a text that is none gives way to what it held.
QString TakeWeeklyHours(const QString &totalHoursWorked);
