// The wages of a pay period, its hours week by week, and the average net percentage, each in its window.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "foundation/WindowNames.h"
#include "income/IncomeState.h"
#include "income/TotalHours.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

float SingleOf(const QJsonValue &value)
{
    return ToSingle(value.isObject() ? value[u"text"].toString() : value.toString(), Dialect::File);
}

Currency AmountOf(const QJsonValue &value)
{
    return Currency::FromTenThousandths(value.toInteger());
}

/// What a window's refusal looks like: the titles of its messages are one.
QJsonObject ToldRefusal(const QString &window, const QList<Message> &messages)
{
    return {{u"outcome"_s, u"message"_s}, {u"title"_s, messages.first().Title}, {u"focus"_s, FocusIn(window)}};
}

/// The same where there is one message.
QJsonObject ToldRefusal(const QString &window, const Message &message)
{
    QJsonObject told = ToldRefusal(window, QList<Message>{message});
    told[u"message"_s] = message.Text;
    told[u"help_context"_s] = message.HelpContext;
    return told;
}

/// Leaves a window by its exit button, with Yes where it asks. Returns the question, null where there was none.
QJsonValue Leave(const QString &window, RecordingDesk &desk)
{
    desk.Answers = {Answer::Yes};
    Press(window, u"cmdExit"_s);
    return desk.Messages.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(desk.TakeMessage().Text);
}

/// The question about a percentage, but for one whose digits do not tell the whole of the single: how many are shown of
/// it is open in the cases.
QJsonValue Comparable(const QJsonValue &question, float perCent)
{
    static const QRegularExpression number(u" (-?[0-9.]+)%"_s);
    const QString digits = number.match(question.toString()).captured(1);
    const bool whole = IsPlainNumber(digits) && ToSingle(digits, Dialect::File) == perCent;
    return question.isString() && whole ? question : QJsonValue(QJsonValue::Null);
}

} // namespace

QJsonValue RunWagesCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QString window = WindowName::frmCalculateWages;
    State.PayFrequency = ToInteger(input[u"PayFrequency"].toInt());
    State.AverageNetPercentage = SingleOf(input[u"AverageNetPercentage"]);
    State.PaycheckAmount = AmountOf(input[u"PaycheckAmount"]);
    Income.TotalRegularHours = SingleOf(input[u"TotalRegularHours"]);
    Income.TotalOvertimeHours = SingleOf(input[u"TotalOvertimeHours"]);
    Open(window);
    Enter(window, u"txtHourlyPayRate"_s, input[u"hourly_rate_text"].toString());
    Enter(window, u"txtTotalHoursWorked"_s, input[u"total_hours_text"].toString());
    Press(window, u"cmdCalculate"_s);
    if (!desk.Messages.isEmpty())
        return ToldRefusal(window, desk.TakeMessage());

    QJsonObject texts;
    for (const QString &box :
         {u"txtHourlyPayRate"_s, u"txtRegularRate"_s, u"txtOvertimeRate"_s, u"txtRegularHours"_s, u"txtOvertimeHours"_s,
          u"txtTotalRegularPay"_s, u"txtTotalOvertimePay"_s, u"txtGrossPay"_s, u"txtNetPay"_s, u"txtMonthlyGross"_s,
          u"txtYearlyGross"_s, u"txtPaycheckAmount"_s, u"txtAverageNetPercentage"_s})
        texts[box] = TextIn(window, box);
    const bool weekly = State.PayFrequency == Weekly;
    QJsonObject told{
        {u"outcome"_s, u"result"_s},
        {u"window_title"_s, TitleOf(window)},
        {u"WageHourlyRate"_s, Told(Income.WageHourlyRate)},
        {u"WageOvertimeRate"_s, Told(Income.WageOvertimeRate)},
        {u"regular_hours"_s, Told(weekly ? Income.WeeklyRegularHours : Income.TotalRegularHours)},
        {u"overtime_hours"_s, Told(weekly ? Income.WeeklyOvertimeHours : Income.TotalOvertimeHours)},
        {u"WageRegularPay"_s, Told(Income.WageRegularPay)},
        {u"WageOvertimePay"_s, Told(Income.WageOvertimePay)},
        {u"WageGrossPay"_s, Told(Income.WageGrossPay)},
        {u"WageNetPay"_s, Told(Income.WageNetPay)},
        {u"WageMonthlyGross"_s, Told(Income.WageMonthlyGross)},
        {u"WageYearlyGross"_s, Told(Income.WageYearlyGross)},
        {u"PaycheckAmount"_s, Told(State.PaycheckAmount)},
        {u"texts"_s, texts},
    };
    told[u"exit_question"_s] = Leave(window, desk);
    return told;
}

/// The hours are entered from the wage calculator, which shows their sum afterwards.
QJsonValue RunHoursCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QString wages = WindowName::frmCalculateWages;
    const QString window = WindowName::frmTotalHours;
    State.PayFrequency = ToInteger(input[u"PayFrequency"].toInt());
    Open(wages);
    PressEnterIn(wages, u"txtTotalHoursWorked"_s);
    const QJsonArray entered = input[u"week_texts"].toArray();
    for (qsizetype week = 0; week < entered.size(); ++week)
        Enter(window, u"txtWeek%1"_s.arg(week + 1), entered[week].toString());
    Press(window, u"cmdOK"_s);
    if (!desk.Messages.isEmpty()) {
        QJsonObject told = ToldRefusal(window, desk.Messages);
        QJsonArray texts;
        while (!desk.Messages.isEmpty())
            texts += desk.TakeMessage().Text;
        told[u"messages"_s] = texts;
        return told;
    }

    QJsonArray weeks;
    const auto added = std::size_t(qMax(2, WeeksOf(State.PayFrequency)));
    for (std::size_t week = 0; week < added; ++week)
        weeks += QJsonObject{{u"regular"_s, Told(Income.WeekRegularHours[week])},
                             {u"overtime"_s, Told(Income.WeekOvertimeHours[week])}};
    QJsonArray weekHours;
    for (const float hours : Income.WeekHours)
        weekHours += Told(hours);
    return QJsonObject{{u"outcome"_s, u"result"_s},
                       {u"weeks"_s, weeks},
                       {u"TotalRegularHours"_s, Told(Income.TotalRegularHours)},
                       {u"TotalOvertimeHours"_s, Told(Income.TotalOvertimeHours)},
                       {u"TotalHoursWorked"_s, Told(Income.TotalHoursWorked)},
                       {u"TotalHoursWorked_text"_s, TextIn(wages, u"txtTotalHoursWorked"_s)},
                       {u"WeekHours"_s, weekHours}};
}

QJsonValue RunAverageNetCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QString window = WindowName::frmAverageNetPercentage;
    State.AverageNetPercentage = SingleOf(input[u"AverageNetPercentage"]);
    Open(window);
    Enter(window, u"txtFirstCheckGross"_s, input[u"first_gross_text"].toString());
    Enter(window, u"txtFirstCheckNet"_s, input[u"first_net_text"].toString());
    Enter(window, u"txtSecondCheckGross"_s, input[u"second_gross_text"].toString());
    Enter(window, u"txtSecondCheckNet"_s, input[u"second_net_text"].toString());
    Press(window, u"cmdCalculate"_s);
    if (!desk.Messages.isEmpty())
        return ToldRefusal(window, desk.TakeMessage());

    QJsonObject told{{u"outcome"_s, u"result"_s},
                     {u"FirstCheckGross"_s, Told(Income.FirstCheckGross)},
                     {u"FirstCheckNet"_s, Told(Income.FirstCheckNet)},
                     {u"FirstCheckPercentage"_s, Told(Income.FirstCheckPercentage)},
                     {u"SecondCheckGross"_s, Told(Income.SecondCheckGross)},
                     {u"SecondCheckNet"_s, Told(Income.SecondCheckNet)},
                     {u"SecondCheckPercentage"_s, Told(Income.SecondCheckPercentage)},
                     {u"AverageNetPercentage"_s, Told(State.AverageNetPercentage)},
                     {u"text"_s, TextIn(window, u"txtAverageNetPercentage"_s)}};
    const QJsonValue question = Leave(window, desk);
    told[u"asks_on_close"_s] = question.isString();
    told[u"close_question"_s] = Comparable(question, ToSingle(double(State.AverageNetPercentage) * 100));
    return told;
}
