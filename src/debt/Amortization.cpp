#include "debt/Amortization.h"

#include "debt/Loans.h"
#include "platform/values/Financial.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint16 MonthsOfYear = 12;

/// To whole cents, half up, unlike every other rounding of loans. Error 6 where a hundredfold is beyond the range.
Currency ToCents(Currency amount)
{
    constexpr Currency halfCent = Currency::FromTenThousandths(50);
    const qint64 hundredfold = ((amount + halfCent) * 100).TenThousandths();
    const qint64 rest = hundredfold % Currency::Unit;
    const qint64 cents = hundredfold / Currency::Unit - (rest < 0 ? 1 : 0); // the whole number that is not above it
    return Currency::FromTenThousandths(cents * (Currency::Unit / 100));
}

struct Totals {
    Currency Payment;
    Currency Principal;
    Currency Interest;

    void AddPaymentAtHand()
    {
        Payment += Debt.LoanMonthlyPayment;
        Principal += Debt.LoanPrincipalPart;
        Interest += Debt.LoanInterestPart;
    }
    StatementRow Row(const QString &label) const
    {
        return {{label}, {Payment, Principal, Interest}, StatementRow::Total};
    }
};

/// Splits payment number `number` into Debt.LoanPrincipalPart and Debt.LoanInterestPart.
void SplitPayment(int number)
{
    Debt.LoanPrincipalPart = Currency::FromDouble(PPmt(MonthlyRate(Debt.LoanAnnualRate), number, Debt.LoanPaymentCount,
                                                       (-Debt.LoanAmount).ToDouble(), 0, Debt.LoanPaymentDue));
    Debt.LoanPrincipalPart = ToCents(Debt.LoanPrincipalPart);
    Debt.LoanInterestPart = Debt.LoanMonthlyPayment - Debt.LoanPrincipalPart;
    Debt.LoanInterestPart = ToCents(Debt.LoanInterestPart);
}

} // namespace

void Amortize(Statement &table)
{
    qint16 tableRow = 0;
    qint16 yearNumber = 0;
    Totals ofYear;
    Totals ofLoan;
    const auto insert = [&](const StatementRow &row) {
        tableRow = ToInteger(tableRow + 1);
        table.Rows.push_back(row);
    };
    const StatementRow empty{.TheKind = StatementRow::Gap};

    for (int number = 1; number <= Debt.LoanPaymentCount; ++number) {
        SplitPayment(number);
        if (Debt.SelectedStartMonth == 0 && yearNumber != 0)
            insert(empty);
        insert({{QString::number(number)}, {Debt.LoanMonthlyPayment, Debt.LoanPrincipalPart, Debt.LoanInterestPart}});
        ofYear.AddPaymentAtHand();
        ofLoan.AddPaymentAtHand();
        Debt.SelectedStartMonth = ToInteger(Debt.SelectedStartMonth + 1);
        if (Debt.SelectedStartMonth == MonthsOfYear || number == Debt.LoanPaymentCount) {
            yearNumber = ToInteger(yearNumber + 1);
            insert(empty);
            insert(ofYear.Row(u"Year "_s + QString::number(yearNumber)));
            Debt.SelectedStartMonth = 0;
            ofYear = {};
        }
    }
    insert(empty);
    insert(ofLoan.Row(u"Total"_s));
}
