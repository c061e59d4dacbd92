#include "debt/Loans.h"

#include "platform/values/Financial.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An amount field's text as money; what stands in the field may be typed in any form.
QString AsMoney(const QString &text)
{
    return Format(text, NumberFormat::Currency);
}

} // namespace

double MonthlyRate(float annualPercentage)
{
    return double(annualPercentage) / 12 / 100;
}

std::optional<QString> LoanPayment(const LoanPaymentEntry &entry)
{
    Debt.LoanAnnualRate = ToSingle(entry.AnnualPercentageRate);
    Debt.LoanPaymentCount = ToInteger(entry.NumberOfMonthlyPayments);
    if (Debt.LoanPaymentCount < 1)
        return std::nullopt;
    Debt.LoanAmount = ToCurrency(entry.BorrowedAmount);
    Debt.LoanFutureValue = {};
    const double payment = Pmt(MonthlyRate(Debt.LoanAnnualRate), Debt.LoanPaymentCount, Debt.LoanAmount.ToDouble(),
                               Debt.LoanFutureValue.ToDouble(), Debt.LoanPaymentDue);
    Debt.LoanMonthlyPayment = Currency::FromDouble(std::abs(-payment));
    return u"With an APR of %1% and a borrowed amount of %2 your monthly payment will be %3 for %4 months"_s.arg(
        entry.AnnualPercentageRate, AsMoney(entry.BorrowedAmount), FormatCurrency(Debt.LoanMonthlyPayment),
        entry.NumberOfMonthlyPayments);
}

std::optional<QString> LoanInterestRate(const InterestRateEntry &entry)
{
    constexpr float guess = 0.1F; // a month
    Debt.LoanMonthlyPayment = ToCurrency(entry.MonthlyPayments);
    Debt.LoanPaymentCount = ToInteger(entry.NumberOfMonthlyPayments);
    if (Debt.LoanPaymentCount < 1)
        return std::nullopt;
    Debt.LoanAmount = ToCurrency(entry.BorrowedAmount);
    Debt.LoanFutureValue = {};
    const double rate = Rate(Debt.LoanPaymentCount, (-Debt.LoanMonthlyPayment).ToDouble(), Debt.LoanAmount.ToDouble(),
                             Debt.LoanFutureValue.ToDouble(), Debt.LoanPaymentDue, double(guess));
    // A fraction, where the payment calculator keeps the percentage in the same place.
    Debt.LoanAnnualRate = ToSingle(rate * 12);
    return u"With a borrowed amount of %1 and monthly payments of %2 for %3 months your interest rate is %4"_s.arg(
        AsMoney(entry.BorrowedAmount), FormatCurrency(Debt.LoanMonthlyPayment), entry.NumberOfMonthlyPayments,
        Format(Debt.LoanAnnualRate, NumberFormat::Percent));
}

QString FutureSavings(const SavingsEntry &entry)
{
    Debt.LoanAnnualRate = ToSingle(entry.AnnualPercentageRate);
    Debt.LoanPaymentCount = ToInteger(entry.NumberOfMonthlyDeposits); // no least count: below 0 it goes back in time
    Debt.SavingsMonthlyDeposit = ToCurrency(entry.MonthlyDeposits);
    Debt.SavingsCurrentAmount = ToCurrency(entry.CurrentSavingsAmount);
    // Both sums are paid in, hence their signs.
    Debt.SavingsFutureValue = Currency::FromDouble(FV(MonthlyRate(Debt.LoanAnnualRate), Debt.LoanPaymentCount,
                                                      (-Debt.SavingsMonthlyDeposit).ToDouble(),
                                                      (-Debt.SavingsCurrentAmount).ToDouble(), Debt.LoanPaymentDue));
    return u"With an APR of %1% and a current savings value of %2 your savings will be worth %3 after %4 monthly "
           u"deposits "
           "of %5"_s.arg(entry.AnnualPercentageRate, AsMoney(entry.CurrentSavingsAmount),
                         FormatCurrency(Debt.SavingsFutureValue), entry.NumberOfMonthlyDeposits,
                         AsMoney(entry.MonthlyDeposits));
}
