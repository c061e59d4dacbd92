#include "income/TotalHours.h"

#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/values/RuntimeError.h"

int WeeksOf(qint16 payFrequency)
{
    switch (payFrequency) {
    case Weekly: return 1;
    case Biweekly: return 2;
    case Semimonthly: return 3;
    case Monthly: return 5;
    default: return 0;
    }
}

bool IsMoreThanAWeek(const QString &text)
{
    bool more = false;
    // No number can be had of what is beyond the range, only its sign, which is never that of a negative exponent.
    ResumeNext([&] { more = ToSingle(text) > MostHoursOfWeek; },
               [&](const RuntimeError &) {
                   more = !text.contains(u'-') && !text.contains(u'\u2212') && !text.contains(u'(');
               });
    return more;
}

QString ShownHours(int week, bool enabled)
{
    return Format(enabled ? Income.WeekHours[std::size_t(week)] : 0, NumberFormat::Fixed);
}

void TakeHours(const WeekTexts &texts)
{
    IncomeState taken = Income;
    for (std::size_t week = 0; week < texts.size(); ++week)
        taken.WeekHours[week] = ToSingle(NumericPrefix(texts[week]));
    taken.TotalRegularHours = 0;
    taken.TotalOvertimeHours = 0;
    // Two weeks are added up for every frequency: the box of a week that is not in use holds 0.
    const auto weeks = std::size_t(std::max(2, WeeksOf(State.PayFrequency)));
    for (std::size_t week = 0; week < weeks; ++week) {
        const float hours = taken.WeekHours[week];
        taken.WeekRegularHours[week] = std::min(hours, MostRegularHours);
        taken.WeekOvertimeHours[week] = hours - taken.WeekRegularHours[week];
        taken.TotalRegularHours = ToSingle(double(taken.TotalRegularHours) + double(taken.WeekRegularHours[week]));
        taken.TotalOvertimeHours = ToSingle(double(taken.TotalOvertimeHours) + double(taken.WeekOvertimeHours[week]));
    }
    taken.TotalHoursWorked = ToSingle(double(taken.TotalOvertimeHours) + double(taken.TotalRegularHours));
    Income = taken;
}
