// The calculators of loans and savings. Each takes the texts of its window's fields, which are numbers, leaves its
// figures in Debt and gives the sentence that tells the result. Debt is filled step by step, so an entry that fails
// half-way leaves there what was read before. Rates are yearly, their months plain twelfths; see docs/figures.md.
#pragma once

#include "debt/DebtState.h"

#include <optional>

/// The rate of one month as a fraction, from per cent a year: a plain twelfth.
double MonthlyRate(float annualPercentage);

/// The texts of the payment calculator's fields.
struct LoanPaymentEntry {
    QString BorrowedAmount;          ///< money
    QString AnnualPercentageRate;    ///< per cent a year
    QString NumberOfMonthlyPayments; ///< rounded to a whole number, ties to even
};

/// The monthly payment of a loan of equal payments, by the annuity equation. It keeps its four decimals; it is rounded
/// to the ten-thousandth, ties to even. Nothing for a count below 1.
/// Raises error 13 for a text that is no number, error 6 for a count beyond 16 bits or an amount beyond its range, and
/// what Pmt raises.
std::optional<QString> LoanPayment(const LoanPaymentEntry &entry);

/// The texts of the interest rate calculator's fields.
struct InterestRateEntry {
    QString BorrowedAmount;          ///< money
    QString MonthlyPayments;         ///< money, the payment of one month
    QString NumberOfMonthlyPayments; ///< rounded to a whole number, ties to even
};

/// The yearly rate at which such payments repay the loan: twelve times the monthly rate that solves the annuity
/// equation, in single precision. Debt.LoanAnnualRate becomes a fraction. Nothing for a count below 1.
/// Raises what LoanPayment does, and error 5 where no rate is found.
std::optional<QString> LoanInterestRate(const InterestRateEntry &entry);

/// The texts of the savings calculator's fields.
struct SavingsEntry {
    QString MonthlyDeposits;         ///< money, the deposit of one month
    QString AnnualPercentageRate;    ///< per cent a year
    QString NumberOfMonthlyDeposits; ///< rounded to a whole number, ties to even; any, also below 0
    QString CurrentSavingsAmount;    ///< money
};

/// What the current amount and the deposits grow to, by the annuity equation; rounded to the ten-thousandth, ties to
/// even. No deposits leave the current amount. Raises what LoanPayment does.
QString FutureSavings(const SavingsEntry &entry);
