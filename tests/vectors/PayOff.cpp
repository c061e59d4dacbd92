// The pay off plan, as its dialogue takes the figures and its window shows it.
#include "Cases.h"

#include "ErrorOf.h"
#include "Hand.h"
#include "RecordingDesk.h"
#include "debt/PayOffPlan.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/values/Numbers.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Types an answer into each dialog that comes.
void AnswerInTurn(const QStringList &answers)
{
    if (answers.isEmpty())
        return;
    QTimer::singleShot(0, [answers] {
        Enter(WindowName::frmInput, u"txtInput"_s, answers.first());
        AnswerInTurn(answers.mid(1));
        Press(WindowName::frmInput, u"cmdOK"_s);
    });
}

QString MoneyText(const QJsonValue &tenThousandths)
{
    return PlainText(Currency::FromTenThousandths(tenThousandths.toInteger()));
}

void TypeFigures(const QJsonObject &creditor)
{
    const QString window = WindowName::frmCreditorInfo;
    Enter(window, u"txtBalanceOwed"_s, MoneyText(creditor[u"balance"]));
    Enter(window, u"txtAnnualPercentageRate"_s, creditor[u"annual_percentage_text"].toString());
    Enter(window, u"txtMonthlyPayment"_s, MoneyText(creditor[u"monthly_amount"]));
    Enter(window, u"txtDueDate"_s, creditor[u"due_date"].toString());
    Press(window, u"cmdOK"_s);
}

QJsonArray ToldOrder()
{
    QJsonArray told;
    for (int i = 1; i <= Debt.NumberOfPayOffCreditors; ++i)
        told += QJsonObject{{u"name"_s, Debt.PayOffCreditorNames(i)},
                            {u"PayOffMonthsToPay"_s, Debt.PayOffMonthsToPay(i)},
                            {u"monthly_rate"_s, Told(Debt.PayOffMonthlyRates(i))}};
    return told;
}

/// The cells are the window's, the exact amounts those of the calculation.
QJsonArray ToldRows(const Grid &grid, const PayOffPlan &plan)
{
    QJsonArray told;
    int gridRow = 0;
    for (const PayOffRow &row : plan.Rows) {
        ++gridRow;
        QJsonArray cells;
        for (int column = 0; column < grid.Columns(); ++column)
            cells += grid.Text(gridRow, column);
        const QJsonValue amounts =
            row.Date.isValid() ? QJsonValue(QJsonArray{Told(row.PreviousBalance), Told(row.Interest),
                                                       Told(row.NewBalance), Told(row.Payment), Told(row.NextBalance)})
                               : QJsonValue();
        told += QJsonObject{{u"cells"_s, cells}, {u"amounts"_s, amounts}};
    }
    return told;
}

int ErrorOfThePlan()
{
    const int error = ErrorOf([] { CalculateMonthsToPay(); });
    return error != 0 ? error : ErrorOf([] { BuildPayOffPlan(); });
}

} // namespace

QJsonValue RunPayOffCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QJsonArray creditors = input[u"creditors"].toArray();
    std::shared_ptr<const PayOffPlan> plan;
    const QObject context;
    QObject::connect(&ThePayOffOutlet, &PayOffOutlet::Ready, &context, [&](const auto &made) { plan = made; });

    Open(WindowName::frmPayOff);
    const Grid &grid = GridIn(WindowName::frmPayOff, u"grdPayOff"_s);
    const int rowsBefore = grid.Rows();
    SwitchOn(WindowName::frmPayOff, u"pbPrintOn"_s);
    QStringList answers{QString::number(creditors.size())};
    for (const QJsonValue creditor : creditors)
        answers += creditor[u"name"].toString();
    AnswerInTurn(answers);
    Press(WindowName::frmPayOff, u"cmdEnterCreditors"_s);

    QJsonObject told{{u"outcome"_s, u"plan"_s}};
    QJsonArray entry;
    for (const QJsonValue creditor : creditors) {
        TypeFigures(creditor.toObject());
        const bool refused = !desk.Messages.isEmpty() && desk.Messages.first().Title == u"Enter Creditor Info"_s;
        entry += QJsonObject{{u"accepted"_s, !refused},
                             {u"message"_s, refused ? QJsonValue(desk.TakeMessage().Text) : QJsonValue()}};
        if (refused) {
            told[u"outcome"_s] = u"refused"_s;
            break;
        }
    }
    told[u"entry"_s] = entry;
    const QJsonValue message = ToldMessage(desk);
    if (!message.isNull()) {
        told[u"outcome"_s] = u"error"_s;
        told[u"message"_s] = message;
    }
    told[u"list"_s] = Told(ListIn(WindowName::frmPayOff, u"lstPayOffInfo"_s).Items());
    told[u"grid_row_count"_s] = grid.Rows() - rowsBefore;
    if (plan) {
        told[u"order"_s] = ToldOrder();
        told[u"rows"_s] = ToldRows(grid, *plan);
        told[u"printed"_s] = Told(desk.TakePrinted().Lines);
    }
    if (!message.isNull())
        told[u"error"_s] = ErrorOfThePlan();
    return told;
}
