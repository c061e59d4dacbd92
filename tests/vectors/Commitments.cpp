// The edits of creditors, regular items, extras and projects, and a project planned against the forecast.
#include "Cases.h"

#include "RecordingDesk.h"
#include "StatementOf.h"
#include "budget/SavingsForecast.h"
#include "commitments/Creditors.h"
#include "commitments/Extras.h"
#include "commitments/Projects.h"
#include "commitments/Regulars.h"
#include "foundation/BudgetFiles.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

namespace {

QJsonValue ToldRefusal(const std::optional<Refusal> &refusal, const char *title, int helpContext)
{
    if (!refusal)
        return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("title"), QString::fromLatin1(title)},
                       {QStringLiteral("text"), refusal->Text},
                       {QStringLiteral("focus"), refusal->Focus},
                       {QStringLiteral("help_context"), helpContext}};
}

/// Puts the list of a case where it belongs.
void TakeList(const QString &kind, const QJsonArray &list)
{
    QJsonObject household;
    if (kind.contains(u"creditor"))
        household[QStringLiteral("Creditors")] = list;
    else if (kind.contains(u"regular"))
        household[QStringLiteral("Regulars")] = list;
    else if (kind.contains(u"project"))
        household[QStringLiteral("Projects")] = list;
    else if (kind.contains(u"pay_period"))
        household[QStringLiteral("ExtraPayPeriods")] = list;
    else
        household[QStringLiteral("ExtraPayPeriods")] = QJsonArray{QJsonObject{
            {QStringLiteral("PayPeriodDate"), QStringLiteral("1/1/2004")}, {QStringLiteral("ExtraItems"), list}}};
    TakeHousehold(household);
}

} // namespace

QJsonValue RunCommitmentsCase(const QJsonObject &input, const QJsonObject &, RecordingDesk &)
{
    const QString kind = input[u"kind"].toString();
    const QString amount = input[u"amount_text"].toString();
    const QString name = input[u"name_text"].toString();
    const int index = input[u"ListIndex"].toInt() + 1;
    const QString list = QStringLiteral("list");
    const QString message = QStringLiteral("message");
    TakeList(kind, input[u"list"].toArray());
    Extras = {false, 1};

    if (kind == u"validate_creditor")
        return QJsonObject{
            {message, ToldRefusal(ValidateCreditorEntry({input[u"due_date_text"].toString(), amount, name}),
                                  "Creditors", CreditorList.HelpContext)}};
    if (kind == u"validate_regular")
        return QJsonObject{
            {message, ToldRefusal(ValidateRegularEntry({amount, name}), "Regulars", RegularList.HelpContext)}};
    if (kind == u"validate_extra")
        return QJsonObject{
            {message, ToldRefusal(ValidateExtraEntry({amount, name}), "Extras", ExtraItemList.HelpContext)}};
    if (kind == u"validate_project")
        return QJsonObject{
            {message, ToldRefusal(ValidateProjectEntry({name, amount}), "Projects", ProjectList.HelpContext)}};
    if (kind == u"credit_click")
        return QJsonObject{{QStringLiteral("amount_text"), AmountWithCredit(amount, input[u"checked"].toBool())}};
    if (kind == u"sort_creditors") {
        SortCreditors();
        return QJsonObject{{list, ToldCreditors()}};
    }
    if (kind == u"delete_creditor") {
        DeleteCreditor(index);
        return QJsonObject{{list, ToldCreditors()}};
    }
    if (kind == u"delete_regular") {
        DeleteRegular(index);
        return QJsonObject{{list, ToldRegulars()}};
    }
    if (kind == u"delete_extra_item") {
        DeleteExtraItem(index);
        return QJsonObject{{list, ToldExtras()[0][u"ExtraItems"]}};
    }
    if (kind == u"delete_extra_pay_period") {
        Extras.SelectedExtraPayPeriod = ToInteger(index);
        DeleteExtraPayPeriod();
        return QJsonObject{{list, ToldExtras()}};
    }
    if (kind == u"delete_project") {
        Projects.SelectedProject = ToInteger(index);
        DeleteProject();
        return QJsonObject{{list, ToldProjects()}};
    }
    return QStringLiteral("unknown kind ") + kind;
}

/// A forecast, the pick of a row, and the commit of a new project.
QJsonValue RunProjectsCase(const QJsonObject &input, const QJsonObject &expected, RecordingDesk &desk)
{
    const QString file = QStringLiteral("projects.txt");
    TakeHousehold(input);
    HoldProjectDatesAsPlanned();
    Forecast = {};
    SaveProjectsAnew(desk);
    State.BudgetPeriodStart = State.CurrentPayPeriod;
    ForecastSavings();
    const int row = input[u"picked_row"].toInt();
    Forecast.ForecastPickRow = ToInteger(row);
    Forecast.ForecastPickAccumulated = ToCurrency(Forecast.ForecastAccumulated(row));
    QJsonObject told{{QStringLiteral("ForecastPickRow"), Forecast.ForecastPickRow},
                     {QStringLiteral("ForecastPickAccumulated"), Told(Forecast.ForecastPickAccumulated)},
                     {QStringLiteral("completion_date_text"), Forecast.ForecastDates(row)},
                     {QStringLiteral("message"), QJsonValue::Null}};

    QStringList panel{input[u"project_name"].toString(), input[u"project_amount_text"].toString(),
                      Forecast.ForecastDates(row)};
    bool written = false;
    TrapUnknownError(ProjectList.Title, [&] {
        const EntryOutcome outcome = ProjectList.Commit(panel, NewCaption, 0);
        if (outcome.Objection)
            TheDesk.ShowMessage(*outcome.Objection);
        written = outcome.Saved;
    });
    if (const QJsonArray messages = ToldMessages(desk); !messages.isEmpty())
        told[QStringLiteral("message")] = messages[0];
    InputProjects();
    told[QStringLiteral("projects_in_file")] = State.NumberOfProjects;
    told[file] = written ? QJsonValue(QString::fromUtf8(desk.ReadFile(file))) : QJsonValue(QJsonValue::Null);
    if (!written)
        return told;

    const int project = State.NumberOfProjects;
    told[QStringLiteral("ProjectAmount")] = Told(State.ProjectAmounts(project));
    told[QStringLiteral("ProjectAmount_text")] = FormatCurrency(State.ProjectAmounts(project));
    QJsonArray entries;
    QJsonArray view;
    Currency total;
    const Statement shown = ProjectStatement(project);
    for (int entry = 1; entry <= State.ProjectEntryCounts(project); ++entry) {
        const QString date = State.ProjectEntryDates(project)(entry);
        const Currency amount = State.ProjectEntryAmounts(project)(entry);
        const StatementRow &line = shown.Rows[std::size_t(entry - 1)];
        total += amount;
        entries += QJsonObject{{QStringLiteral("Date"), Format(date, DateFormat::Short)},
                               {QStringLiteral("date_text"), date},
                               {QStringLiteral("Amount"), Told(amount)}};
        view += QJsonObject{{QStringLiteral("date_text"), LabelOf(line)},
                            {QStringLiteral("installment_text"), FormatCurrency(line.Amounts[0])},
                            {QStringLiteral("accumulated_text"), FormatCurrency(line.Amounts[1])},
                            {QStringLiteral("installment_red"), line.Amounts[0] < Currency()},
                            {QStringLiteral("accumulated_red"), line.Amounts[1] < Currency()},
                            {QStringLiteral("accumulated"), Told(total)}};
    }
    told[QStringLiteral("Entries")] = entries;
    told[QStringLiteral("view")] = view;
    if (expected.contains(u"view_printed")) {
        PrintProject(project);
        told[QStringLiteral("view_printed")] = Told(desk.Printed.value(0).Lines);
    }
    return told;
}
