// The state of debts, loans and savings: what its windows share and leave for each other. Nothing of it is kept when
// the program ends.
#pragma once

#include "platform/values/Currency.h"
#include "platform/values/OneBased.h"

#include <QDate>
#include <QString>

struct DebtState {
    // The creditors of the pay off plan, parallel from 1 to NumberOfPayOffCreditors; the budget's are others.
    qint16 NumberOfPayOffCreditors = 0;
    OneBased<QString> PayOffCreditorNames;
    OneBased<Currency> PayOffBalances;
    OneBased<float> PayOffMonthlyRates; ///< fractions: 0.015 is one and a half per cent a month
    OneBased<Currency> PayOffMonthlyAmounts;
    OneBased<QDate> PayOffDueDates; ///< the date of the creditor's first row
    OneBased<qint16> PayOffMonthsToPay;
    qint16 LoopIndex = 0; ///< the creditor whose figures are asked for

    // The month of the plan at hand; what was computed last stays.
    Currency PayOffPreviousBalance;
    Currency PayOffInterest;
    Currency PayOffNewBalance;
    Currency PayOffPayment;
    Currency PayOffNextBalance;
    QDate PayOffDate;
    qint16 PayOffMonthNumber = 0;

    // The question dialogue
    QString InputPrompt;
    QString InputResult; ///< the last answer, which stands until another is given

    // The loan, shared by all calculators: whichever calculated last has set it.
    /// Per cent as the payment and savings calculators leave it, a fraction as the rate calculator does, and the yearly
    /// rate of the pay off plan's creditor at hand.
    float LoanAnnualRate = 0;
    qint16 LoanPaymentCount = 0;
    Currency LoanAmount;
    Currency LoanFutureValue;
    qint16 LoanPaymentDue = 0; ///< 1: at the beginning of the period, 0: at its end
    Currency LoanMonthlyPayment;
    qint16 SelectedStartMonth = 0; ///< 0 January to 11 December; the amortization table walks it on
    Currency LoanPrincipalPart;    ///< of the table's row at hand
    Currency LoanInterestPart;

    // The savings calculator
    Currency SavingsMonthlyDeposit;
    Currency SavingsCurrentAmount;
    Currency SavingsFutureValue;
};
inline DebtState Debt;
