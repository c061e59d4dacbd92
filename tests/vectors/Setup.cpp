// A household set up in the guide's window, from the number of incomes to the save, and the files that it leaves.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "foundation/GuidedSetup.h"
#include "foundation/WindowNames.h"
#include "guidance/frmGettingStarted.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QLabel>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Guide = WindowName::frmGettingStarted;

QString LabelIn(const QString &label)
{
    return TheWindows.ControlOf<QLabel>(Guide, label).text();
}

qint16 Whole(const QJsonValue &number)
{
    return qint16(number.toInt());
}

/// Puts the settings from before into the state and begins the route.
void Begin(const QJsonObject &before, const RecordingDesk &desk)
{
    desk.LayHousehold();
    TheWindows.Touch(Guide).setWindowTitle(RouteTitle::Budget);
    State.PayFrequency = Whole(before[u"PayFrequency"]);
    State.FirstPayDate = Whole(before[u"FirstPayDate"]);
    State.SecondPayDate = Whole(before[u"SecondPayDate"]);
    State.MonthEndPay = Whole(before[u"MonthEndPay"]);
    Open(Guide);
}

void EnterIncomes(const QJsonArray &incomes)
{
    Enter(Guide, u"txtNumberOfIncomes"_s, QString::number(incomes.size()));
    Press(Guide, u"cmdNextBS1"_s);
    for (const QJsonValue income : incomes) {
        Enter(Guide, u"txtAverageTakeHomePay"_s, income[u"amount_text"].toString());
        SwitchOn(Guide, u"optPayFrequencyWE%1"_s.arg(BudgetFrequencyNames().indexOf(income[u"frequency"].toString())));
        Press(Guide, u"cmdNextBS2"_s);
    }
}

/// Answers the questions that two of the frequencies ask, as soon as they stand there.
void AnswerWith(const QJsonObject &answers)
{
    QTimer::singleShot(0, qApp, [answers] {
        if (TheWindows.Loaded(WindowName::frmSemiMonthlyPayInfo)) {
            const QString window = WindowName::frmSemiMonthlyPayInfo;
            Enter(window, u"txtFirstPayDate"_s, QString::number(answers[u"FirstPayDate"].toInt()));
            Enter(window, u"txtSecondPayDate"_s, QString::number(answers[u"SecondPayDate"].toInt()));
            Press(window, u"cmdOK"_s);
        } else {
            const QString window = WindowName::frmMonthlyPaymentOption;
            SwitchOn(window, answers[u"MonthEndPay"].toInt() == -1 ? u"optYesNo0"_s : u"optYesNo1"_s);
            Press(window, u"cmdOK"_s);
        }
    });
}

void ChooseFrequency(const QString &name, bool clicked, const QJsonObject &answers)
{
    const int option = int(BudgetFrequencyNames().indexOf(name));
    if (clicked && option == 0)
        SwitchOn(Guide, u"optPayFrequency1"_s); // an option that is selected already has to be left first
    if (option > 1)
        AnswerWith(answers);
    if (clicked || option > 0)
        SwitchOn(Guide, u"optPayFrequency%1"_s.arg(option));
    Press(Guide, u"cmdNextBS3"_s);
}

void EnterCreditors(const QJsonArray &creditors)
{
    Enter(Guide, u"txtNumberOfCreditors"_s, QString::number(creditors.size()));
    Press(Guide, u"cmdNextBS5"_s);
    for (const QJsonValue creditor : creditors) {
        Enter(Guide, u"txtCreditorDueDate"_s, creditor[u"due_date_text"].toString());
        Enter(Guide, u"txtCreditorAmount"_s, creditor[u"amount_text"].toString());
        Enter(Guide, u"txtCreditor"_s, creditor[u"name"].toString());
        Press(Guide, u"cmdNextBS6"_s);
    }
}

void EnterRegulars(const QJsonArray &regulars)
{
    Enter(Guide, u"txtNumberOfRegularItems"_s, QString::number(regulars.size()));
    Press(Guide, u"cmdNextBS7"_s);
    for (const QJsonValue regular : regulars) {
        Enter(Guide, u"txtRegularItemAmount"_s, regular[u"amount_text"].toString());
        Enter(Guide, u"txtRegularItem"_s, regular[u"item"].toString());
        Press(Guide, u"cmdNextBS8"_s);
    }
}

/// The figures as they are held; the paycheck as the save has put it among the settings.
QJsonObject ToldSetup(const RecordingDesk &desk)
{
    const BudgetSetup &setup = static_cast<frmGettingStarted &>(TheWindows.Touch(Guide)).Setup();
    QJsonObject told{{u"CombinedPaycheck"_s, Told(State.PaycheckAmount)},
                     {u"CombinedPaycheck_text"_s, FormatCurrency(State.PaycheckAmount)},
                     {u"income_summary"_s, LabelIn(u"lblIncomeSummary"_s)},
                     {u"TotalCreditorAmount"_s, Told(setup.TotalCreditorAmount)},
                     {u"TotalRegularAmount"_s, Told(setup.TotalRegularAmount)},
                     {u"TotalExpenses"_s, Told(setup.TotalExpenses)},
                     {u"expense_summary"_s, LabelIn(u"lblExpenseSummary"_s)},
                     {u"MonthlyIncome"_s, Told(setup.MonthlyIncome)},
                     {u"MonthlyBalance"_s, Told(setup.MonthlyBalance)},
                     {u"overhead_summary"_s, LabelIn(u"lblOverheadSummary"_s)}};
    QJsonObject files;
    for (const QString &name : {u"environm.ini"_s, u"creditor.txt"_s, u"regulars.txt"_s, u"extra.txt"_s,
                                u"projects.txt"_s, u"mastshop.txt"_s})
        files[name] = QString::fromUtf8(desk.ReadFile(name));
    told[u"files"_s] = files;
    return told;
}

QJsonObject SetUp(const QJsonObject &input, RecordingDesk &desk)
{
    Begin(input[u"before"].toObject(), desk);
    EnterIncomes(input[u"incomes"].toArray());
    ChooseFrequency(input[u"budget_frequency"].toString(), input[u"option_clicked"].toBool(),
                    input[u"dialogs_leave"].toObject());
    Press(Guide, u"cmdNextBS4"_s);
    EnterCreditors(input[u"creditors"].toArray());
    EnterRegulars(input[u"regulars"].toArray());
    Press(Guide, u"cmdNextBS9"_s);
    Press(Guide, u"cmdNextBS10"_s);
    Press(Guide, u"cmdSaveBS11"_s);
    return ToldSetup(desk);
}

/// A conversion is a household of that one income.
QJsonObject Convert(const QJsonObject &input, RecordingDesk &desk)
{
    const QString amount = PlainText(Currency::FromTenThousandths(input[u"amount"].toInteger()));
    const QJsonObject income{{u"amount_text"_s, amount}, {u"frequency"_s, input[u"from"]}};
    const QJsonObject told = SetUp({{u"incomes"_s, QJsonArray{income}}, {u"budget_frequency"_s, input[u"to"]}}, desk);
    return {{u"amount"_s, told[u"CombinedPaycheck"]}, {u"text"_s, told[u"CombinedPaycheck_text"]}};
}

} // namespace

QJsonValue RunSetupCase(const QJsonObject &input, RecordingDesk &desk)
{
    const bool converts = input[u"kind"] == u"convert"_s;
    const QJsonValue told = converts ? Convert(input, desk) : SetUp(input, desk);
    if (desk.TakeMessage() != Message{u"Profile saved."_s, u"Budget Setup"_s, Icon::Information, Buttons::Ok, 0})
        return u"the profile was not saved"_s;
    return told;
}
