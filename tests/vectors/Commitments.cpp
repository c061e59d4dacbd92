// The edits of creditors, regular items, extras and projects in their windows, and a project planned against the
// forecast.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "StatementOf.h"
#include "budget/SavingsForecast.h"
#include "commitments/Creditors.h"
#include "commitments/Projects.h"
#include "foundation/BudgetFiles.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/values/Format.h"

#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window of commitments: how a case comes to its list, and the names of its controls.
struct Panel {
    QString Household; ///< which list of a household it edits
    QString File;
    void (*Save)();
    QJsonArray (*ToldList)();
    QString Window, List, Read, Add, Delete, Commit;
    QList<QPair<QString, QString>> Fields; ///< and which text of a case goes into each
};

QJsonArray ToldItems()
{
    return ToldExtras()[0][u"ExtraItems"].toArray();
}

const QMap<QString, Panel> Panels{
    {u"creditor"_s,
     {u"Creditors"_s,
      u"creditor.txt"_s,
      SaveCreditors,
      ToldCreditors,
      WindowName::frmCreditors,
      u"lstCreditors"_s,
      u"cmdListCreditors"_s,
      u"cmdAddCreditor"_s,
      u"cmdDeleteCreditor"_s,
      u"cmdAddChangeCreditor"_s,
      {{u"txtCreditorDueDate"_s, u"due_date_text"_s},
       {u"txtCreditorAmount"_s, u"amount_text"_s},
       {u"txtCreditor"_s, u"name_text"_s}}}},
    {u"regular"_s,
     {u"Regulars"_s,
      u"regulars.txt"_s,
      SaveRegulars,
      ToldRegulars,
      WindowName::frmRegulars,
      u"lstRegulars"_s,
      u"cmdListRegularItems"_s,
      u"cmdAddRegularItem"_s,
      u"cmdDeleteRegularItem"_s,
      u"cmdAddChangeRegularItem"_s,
      {{u"txtRegularAmount"_s, u"amount_text"_s}, {u"txtRegularItem"_s, u"name_text"_s}}}},
    {u"extra_pay_period"_s,
     {u"ExtraPayPeriods"_s,
      u"extra.txt"_s,
      SavePayPeriods,
      [] { return ToldExtras(DateFormat::Short); },
      WindowName::frmExtras,
      u"lstExtraItems"_s,
      u"cmdListPayPeriods"_s,
      {},
      u"cmdDeletePayPeriod"_s,
      {},
      {}}},
    {u"extra"_s,
     {u"ExtraItems"_s,
      u"extra.txt"_s,
      SavePayPeriods,
      ToldItems,
      WindowName::frmExtras,
      u"lstExtraItems"_s,
      u"cmdListPayPeriods"_s,
      u"cmdAddExtraItem"_s,
      u"cmdDeleteExtraItem"_s,
      u"cmdAddChangeExtraItem"_s,
      {{u"txtExtraItemAmount"_s, u"amount_text"_s}, {u"txtExtraItem"_s, u"name_text"_s}}}},
    {u"project"_s,
     {u"Projects"_s,
      u"projects.txt"_s,
      SaveProjects,
      ToldProjects,
      WindowName::frmProjects,
      u"lstProjects"_s,
      u"cmdListProjects"_s,
      u"cmdAddProject"_s,
      u"cmdDeleteProject"_s,
      u"cmdNew"_s,
      {{u"txtProject"_s, u"name_text"_s}, {u"txtProjectAmount"_s, u"amount_text"_s}}}},
};

/// What follows the verb in the kind of a case tells the window: "delete_extra_item", "credit_click".
QString PanelOf(const QString &kind)
{
    const QString noun = kind.section(u'_', 1);
    if (noun == u"extra_item" || kind == u"credit_click")
        return u"extra"_s;
    return noun.endsWith(u's') ? noun.chopped(1) : noun;
}

/// Lays the list into its file and opens the window on it; extra items lie in a single pay period, which is opened.
void OpenOn(const QJsonArray &list, const Panel &panel, const RecordingDesk &desk)
{
    const bool items = panel.Household == u"ExtraItems";
    const QJsonArray payPeriod{QJsonObject{{u"PayPeriodDate"_s, u"1/1/2004"_s}, {u"ExtraItems"_s, list}}};
    TakeHousehold({{items ? u"ExtraPayPeriods"_s : panel.Household, items ? payPeriod : list}});
    desk.WriteFile(panel.File, "0\r\n");
    panel.Save();
    Open(panel.Window);
    Press(panel.Window, panel.Read);
    if (items)
        Pick(panel.Window, panel.List, 0);
}

/// A refusal with all of its look, and where the focus is then.
QJsonValue ToldRefusal(const QString &window, RecordingDesk &desk)
{
    if (desk.Messages.isEmpty())
        return QJsonValue::Null;
    const int helpContext = desk.Messages.first().HelpContext;
    QJsonValue told = ToldMessage(desk);
    if (!told.isObject())
        return told;
    QJsonObject refusal = told.toObject();
    refusal[u"focus"_s] = FocusIn(window);
    refusal[u"help_context"_s] = helpContext;
    return refusal;
}

} // namespace

QJsonValue RunCommitmentsCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QString kind = input[u"kind"].toString();
    const QString verb = kind.section(u'_', 0, 0);
    if (!Panels.contains(PanelOf(kind)))
        return u"unknown kind "_s + kind;
    const Panel &panel = Panels[PanelOf(kind)];
    OpenOn(input[u"list"].toArray(), panel, desk);
    if (verb == u"sort") {
        SortCreditors();
        return QJsonObject{{u"list"_s, panel.ToldList()}};
    }
    if (verb == u"delete") {
        Pick(panel.Window, panel.List, input[u"ListIndex"].toInt());
        Press(panel.Window, panel.Delete);
        return QJsonObject{{u"list"_s, panel.ToldList()}};
    }
    Press(panel.Window, panel.Add);
    if (verb == u"credit") {
        Enter(panel.Window, u"txtExtraItemAmount"_s, input[u"amount_text"].toString());
        ClickBox(panel.Window, u"chkCredit"_s, input[u"checked"].toBool());
        return QJsonObject{{u"amount_text"_s, TextIn(panel.Window, u"txtExtraItemAmount"_s)}};
    }
    for (const auto &[field, text] : panel.Fields)
        Enter(panel.Window, field, input[text].toString());
    Press(panel.Window, panel.Commit);
    return QJsonObject{{u"message"_s, ToldRefusal(panel.Window, desk)}};
}

/// A new project: its fields, the pick of its date in the forecast, the commit, and its view.
QJsonValue RunProjectsCase(const QJsonObject &input, RecordingDesk &desk)
{
    const Panel &panel = Panels[u"project"_s];
    const QString view = WindowName::frmViewProject;
    TakeHousehold(input);
    HoldProjectDatesAsPlanned();
    SaveProjectsAnew(desk);
    Open(panel.Window);
    Press(panel.Window, panel.Read);
    Press(panel.Window, panel.Add);
    Enter(panel.Window, u"txtProject"_s, input[u"project_name"].toString());
    Enter(panel.Window, u"txtProjectAmount"_s, input[u"project_amount_text"].toString());
    PressEnterIn(panel.Window, u"txtProjectCompletionDate"_s);
    Grid &forecast = GridIn(WindowName::frmSavingsForecast, u"grdSavingsForecast"_s);
    forecast.SetCurrentRow(input[u"picked_row"].toInt());
    Q_EMIT forecast.Click();
    desk.ReadFile(panel.File); // what follows writes it or not
    Press(panel.Window, panel.Commit);
    const bool written = desk.TakeFiles().contains(panel.File);
    QJsonObject told{{u"ForecastPickRow"_s, Forecast.ForecastPickRow},
                     {u"ForecastPickAccumulated"_s, Told(Forecast.ForecastPickAccumulated)},
                     {u"completion_date_text"_s, TextIn(panel.Window, u"txtProjectCompletionDate"_s)},
                     {u"message"_s, ToldMessage(desk)},
                     {panel.File, written ? QJsonValue(QString::fromUtf8(desk.ReadFile(panel.File)))
                                          : QJsonValue(QJsonValue::Null)}};
    Press(panel.Window, panel.Read);
    ListBox &list = ListIn(panel.Window, panel.List);
    told[u"projects_in_file"_s] = list.count();
    if (!written)
        return told;

    const int project = list.count();
    Pick(panel.Window, panel.List, project - 1);
    told[u"ProjectAmount"_s] = Told(State.ProjectAmounts(project));
    told[u"ProjectAmount_text"_s] = TextIn(panel.Window, u"txtProjectAmount"_s);
    desk.Answers = {Answer::Yes}; // to the question whether to print
    Q_EMIT list.DoubleClick();
    const Grid &grid = GridIn(view, u"grdViewProject"_s);
    const Statement shown = ProjectStatement(project);
    QJsonArray entries;
    QJsonArray rows;
    for (int entry = 1; entry <= State.ProjectEntryCounts(project); ++entry) {
        const QString date = State.ProjectEntryDates(project)(entry);
        entries += QJsonObject{{u"Date"_s, Format(date, DateFormat::Short)},
                               {u"date_text"_s, date},
                               {u"Amount"_s, Told(State.ProjectEntryAmounts(project)(entry))}};
        rows += QJsonObject{{u"date_text"_s, grid.Text(entry, 0)},
                            {u"installment_text"_s, grid.Text(entry, 1)},
                            {u"accumulated_text"_s, grid.Text(entry, 2)},
                            {u"installment_red"_s, grid.Colour(entry, 1) == GridColour::LightRed},
                            {u"accumulated_red"_s, grid.Colour(entry, 2) == GridColour::LightRed},
                            {u"accumulated"_s, Told(shown.Rows[std::size_t(entry - 1)].Amounts[1])}};
    }
    told[u"Entries"_s] = entries;
    told[u"view"_s] = rows;
    told[u"view_printed"_s] = Told(desk.TakePrinted().Lines);
    return told;
}
