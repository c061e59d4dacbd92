// The state of the income tools: what their windows share and leave for each other. Nothing of it is kept when the
// program ends.
#pragma once

#include "platform/values/Currency.h"

#include <array>

constexpr int MostWeeks = 5; ///< that a pay period can have

struct IncomeState {
    // The wage calculator
    Currency WageHourlyRate;
    Currency WageOvertimeRate;
    float WeeklyRegularHours = 0; ///< of a weekly pay period only
    float WeeklyOvertimeHours = 0;
    Currency WageRegularPay;
    Currency WageOvertimePay;
    Currency WageGrossPay;
    Currency WageNetPay;
    Currency WageMonthlyGross;
    Currency WageYearlyGross;

    // Hours week by week, from week 1 at element 0, and their sums
    std::array<float, MostWeeks> WeekHours{};
    std::array<float, MostWeeks> WeekRegularHours{};
    std::array<float, MostWeeks> WeekOvertimeHours{};
    float TotalRegularHours = 0;
    float TotalOvertimeHours = 0;
    float TotalHoursWorked = 0;

    // The average net percentage; the percentages are fractions
    Currency FirstCheckGross;
    Currency FirstCheckNet;
    Currency SecondCheckGross;
    Currency SecondCheckNet;
    float FirstCheckPercentage = 0;
    float SecondCheckPercentage = 0;
};
inline IncomeState Income;
