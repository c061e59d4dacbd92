// The calculators of loans and savings, and the amortization table, as their windows show them.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "debt/Amortization.h"
#include "foundation/WindowNames.h"
#include "platform/controls/DropDownList.h"
#include "platform/controls/Grid.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A calculator: what is typed into its fields, and what its button brings.
class CalculatorAtWork
{
public:
    CalculatorAtWork(const QString &window, const QString &result, RecordingDesk &desk)
        : m_window(window), m_result(result), m_desk(desk)
    {
        Open(window);
    }

    void Calculate(const QList<QPair<QString, QString>> &fields, int due)
    {
        for (const auto &[field, text] : fields)
            Enter(m_window, field, text);
        SwitchOn(m_window, due == 1 ? u"optPaymentDue0"_s : u"optPaymentDue1"_s);
        // A click leaves the focus on its button, unless a refusal moves it to a field.
        TheWindows.Loaded(m_window)->FocusOn(&TheWindows.ControlOf<QPushButton>(m_window, m_button));
        Press(m_window, m_button);
    }
    QString Sentence() const { return TheWindows.ControlOf<QLabel>(m_window, m_result).text(); }
    /// What the sentence says between these words.
    QString Said(const QString &before, const QString &behind) const
    {
        return Sentence().section(before, 1).section(behind, 0, 0);
    }
    /// A sentence with the figures behind it, a message, or nothing.
    QJsonValue Outcome(QJsonObject figures)
    {
        if (!m_desk.Messages.isEmpty()) {
            const QJsonArray messages = ToldMessages(m_desk);
            const QJsonObject first = messages[0].toObject();
            return QJsonObject{{u"outcome"_s, messages.size() == 1 ? u"message"_s : u"messages"_s},
                               {u"title"_s, first[u"title"]},
                               {u"message"_s, first[u"text"]},
                               {u"focus"_s, FocusIn(m_window) == m_button ? QJsonValue() : FocusIn(m_window)}};
        }
        if (Sentence().isEmpty())
            return QJsonObject{{u"outcome"_s, u"silent"_s}};
        figures[u"outcome"_s] = u"result"_s;
        figures[u"sentence"_s] = Sentence();
        return figures;
    }

private:
    const QString m_button = u"cmdCalculate"_s;
    QString m_window;
    QString m_result;
    RecordingDesk &m_desk;
};

/// Opens the table by way of the question for the month; its row, as the list counts it, from 0.
void OpenTable(int month)
{
    Press(WindowName::frmPaymentCalculator, u"cmdAmortizationTable"_s);
    TheWindows.ControlOf<DropDownList>(WindowName::frmSelectMonth, u"cboMonth"_s).SetListIndex(month);
    Press(WindowName::frmSelectMonth, u"cmdOK"_s);
}

/// The texts are the window's, the exact amounts those of the calculation.
QJsonArray ToldTable(const Grid &grid, const Statement &exact)
{
    const auto kindOf = [](const QString &label) {
        if (label.isEmpty())
            return u"blank"_s;
        if (label.startsWith(u"Year "_s))
            return u"year"_s;
        return label == u"Total"_s ? u"total"_s : u"payment"_s;
    };
    QJsonArray told;
    int row = 0;
    for (const StatementRow &line : exact.Rows) {
        ++row;
        QJsonArray cells;
        for (int column = 0; column < grid.Columns(); ++column)
            cells += grid.Text(row, column);
        QJsonArray amounts;
        for (const Currency amount : line.Amounts)
            amounts += Told(amount);
        told += QJsonObject{{u"kind"_s, kindOf(grid.Text(row, 0))},
                            {u"cells"_s, cells},
                            {u"amounts"_s, amounts.isEmpty() ? QJsonValue() : QJsonValue(amounts)}};
    }
    return told;
}

} // namespace

QJsonValue RunLoansCase(const QJsonObject &input, RecordingDesk &desk)
{
    CalculatorAtWork calculator(WindowName::frmPaymentCalculator, u"lblMonthlyPayment"_s, desk);
    calculator.Calculate({{u"txtBorrowedAmount"_s, input[u"borrowed_amount_text"].toString()},
                          {u"txtAnnualPercentageRate"_s, input[u"annual_percentage_text"].toString()},
                          {u"txtNumberOfMonthlyPayments"_s, input[u"number_of_payments_text"].toString()}},
                         input[u"LoanPaymentDue"].toInt());
    return calculator.Outcome({{u"LoanMonthlyPayment"_s, Told(Debt.LoanMonthlyPayment)},
                               {u"payment_text"_s, calculator.Said(u" payment will be "_s, u" for "_s)}});
}

QJsonValue RunRatesCase(const QJsonObject &input, RecordingDesk &desk)
{
    CalculatorAtWork calculator(WindowName::frmInterestRateCalculator, u"lblInterestRate"_s, desk);
    calculator.Calculate({{u"txtBorrowedAmount"_s, input[u"borrowed_amount_text"].toString()},
                          {u"txtMonthlyPayments"_s, input[u"monthly_payments_text"].toString()},
                          {u"txtNumberOfMonthlyPayments"_s, input[u"number_of_payments_text"].toString()}},
                         input[u"LoanPaymentDue"].toInt());
    return calculator.Outcome({{u"LoanAnnualRate"_s, PlainText(Debt.LoanAnnualRate)},
                               {u"rate_text"_s, calculator.Said(u" interest rate is "_s, u" "_s)}});
}

QJsonValue RunSavingsCase(const QJsonObject &input, RecordingDesk &desk)
{
    CalculatorAtWork calculator(WindowName::frmSavings, u"lblFutureValue"_s, desk);
    calculator.Calculate({{u"txtMonthlyDeposits"_s, input[u"monthly_deposits_text"].toString()},
                          {u"txtAnnualPercentageRate"_s, input[u"annual_percentage_text"].toString()},
                          {u"txtNumberOfMonthlyDeposits"_s, input[u"number_of_deposits_text"].toString()},
                          {u"txtCurrentSavingsAmount"_s, input[u"current_savings_text"].toString()}},
                         input[u"LoanPaymentDue"].toInt());
    return calculator.Outcome({{u"SavingsFutureValue"_s, Told(Debt.SavingsFutureValue)},
                               {u"future_text"_s, calculator.Said(u" will be worth "_s, u" after "_s)}});
}

QJsonValue RunAmortizationCase(const QJsonObject &input, RecordingDesk &desk)
{
    const int month = input[u"SelectedStartMonth"].toInt();
    CalculatorAtWork calculator(WindowName::frmPaymentCalculator, u"lblMonthlyPayment"_s, desk);
    calculator.Calculate(
        {{u"txtBorrowedAmount"_s, PlainText(Currency::FromTenThousandths(input[u"LoanAmount"].toInteger()))},
         {u"txtAnnualPercentageRate"_s, input[u"LoanAnnualRate_text"].toString()},
         {u"txtNumberOfMonthlyPayments"_s, QString::number(input[u"LoanPaymentCount"].toInt())}},
        input[u"LoanPaymentDue"].toInt());
    OpenTable(month);
    const int after = Debt.SelectedStartMonth;
    Debt.SelectedStartMonth = qint16(month);
    Statement exact;
    Amortize(exact);
    return QJsonObject{{u"LoanMonthlyPayment"_s, Told(Debt.LoanMonthlyPayment)},
                       {u"rows"_s, ToldTable(GridIn(WindowName::frmAmortization, u"grdAmortization"_s), exact)},
                       {u"SelectedStartMonth_after"_s, after}};
}
