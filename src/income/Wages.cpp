#include "income/Wages.h"

#include "income/TotalHours.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

namespace {

constexpr double OvertimeFactor = 1.5;

Currency Times(Currency amount, double factor)
{
    return Currency::FromDouble(amount.ToDouble() * factor);
}

/// How many paychecks a year has; 0 for a frequency that is none.
int PaychecksOfYear(qint16 payFrequency)
{
    switch (payFrequency) {
    case Weekly: return 52;
    case Biweekly: return 26;
    case Semimonthly: return 24;
    case Monthly: return 12;
    default: return 0;
    }
}

void TakeRates(WageBoxes &boxes)
{
    Income.WageHourlyRate = ToCurrency(boxes.HourlyPayRate);
    boxes.RegularRate = FormatCurrency(Income.WageHourlyRate);
    Income.WageOvertimeRate = Times(Income.WageHourlyRate, OvertimeFactor);
    boxes.OvertimeRate = FormatCurrency(Income.WageOvertimeRate);
}

/// What the gross pay makes in a month and in a year; an unknown frequency leaves both as they are.
void ProjectGross()
{
    const int paychecks = PaychecksOfYear(State.PayFrequency);
    if (paychecks == 0)
        return;
    Income.WageYearlyGross = Income.WageGrossPay * paychecks;
    Income.WageMonthlyGross = State.PayFrequency == Monthly
                                  ? Income.WageGrossPay
                                  : Currency::FromDouble(Income.WageYearlyGross.ToDouble() / 12);
}

void Pay(float regularHours, float overtimeHours, WageBoxes &boxes)
{
    boxes.RegularHours = Format(regularHours, NumberFormat::Fixed);
    boxes.OvertimeHours = Format(overtimeHours, NumberFormat::Fixed);
    Income.WageRegularPay = Times(Income.WageHourlyRate, double(regularHours));
    boxes.TotalRegularPay = FormatCurrency(Income.WageRegularPay);
    Income.WageOvertimePay = Times(Income.WageOvertimeRate, double(overtimeHours));
    boxes.TotalOvertimePay = FormatCurrency(Income.WageOvertimePay);
    Income.WageGrossPay = Income.WageRegularPay + Income.WageOvertimePay;
    boxes.GrossPay = FormatCurrency(Income.WageGrossPay);
    Income.WageNetPay = Times(Income.WageGrossPay, double(State.AverageNetPercentage));
    boxes.NetPay = FormatCurrency(Income.WageNetPay);
    ProjectGross();
    boxes.MonthlyGross = FormatCurrency(Income.WageMonthlyGross);
    boxes.YearlyGross = FormatCurrency(Income.WageYearlyGross);
    State.PaycheckAmount = Income.WageNetPay;
    boxes.PaycheckAmount = FormatCurrency(State.PaycheckAmount);
}

} // namespace

void CalculatePeriodWages(WageBoxes &boxes)
{
    TakeRates(boxes);
    Pay(Income.TotalRegularHours, Income.TotalOvertimeHours, boxes);
}

void CalculateWeeklyWages(WageBoxes &boxes)
{
    TakeRates(boxes);
    // A weekly paycheck counts whole hours, unlike all others: 40.4 are 40.
    const qint16 hours = ToInteger(boxes.TotalHoursWorked);
    Income.WeeklyRegularHours = std::min<float>(hours, MostRegularHours);
    Income.WeeklyOvertimeHours = float(hours) - Income.WeeklyRegularHours;
    Pay(Income.WeeklyRegularHours, Income.WeeklyOvertimeHours, boxes);
}

QString TakeWeeklyHours(const QString &totalHoursWorked)
{
    if (IsNumeric(totalHoursWorked))
        Income.WeeklyRegularHours = ToSingle(totalHoursWorked);
    return Format(Income.WeeklyRegularHours, NumberFormat::Fixed);
}
