// A new budget as its setup takes it down: every income with its own pay frequency, folded into one paycheck;
// creditors; regular items; what they come to in a month; and the save that replaces the household's profile. Until
// that save no file is touched and nothing shared is changed.
//
// Each routine that takes an entry leaves the setup as it was where the entry raises an error.
#pragma once

#include "foundation/State.h"

#include <QStringList>

struct IncomeRecord {
    Currency IncomeAmount;   ///< take-home pay per paycheck
    QString IncomeFrequency; ///< one of BudgetFrequencyNames()
    bool operator==(const IncomeRecord &) const = default;
};

struct SetupCreditorRecord {
    qint16 SetupDueDate = 0; ///< day of the month, any number
    Currency SetupAmount;    ///< per month
    QString SetupCreditor;
    bool operator==(const SetupCreditorRecord &) const = default;
};

struct SetupRegularRecord {
    Currency SetupRegularAmount; ///< per budget pay period
    QString SetupRegularItem;
    bool operator==(const SetupRegularRecord &) const = default;
};

struct BudgetSetup {
    qint16 NumberOfIncomes = 0;
    qint16 NumberOfSetupCreditors = 0;
    qint16 NumberOfSetupRegulars = 0;
    qint16 IncomeIndex = 0; ///< how many records of each have been taken
    qint16 SetupCreditorIndex = 0;
    qint16 SetupRegularIndex = 0;
    OneBased<IncomeRecord> Incomes;
    OneBased<SetupCreditorRecord> SetupCreditors;
    OneBased<SetupRegularRecord> SetupRegulars;
    Currency CombinedPaycheck;    ///< the household's income per budget pay period
    QString BudgetFrequencyName;  ///< one of BudgetFrequencyNames()
    Currency TotalCreditorAmount; // monthly, all of these
    Currency TotalRegularAmount;
    Currency TotalExpenses;
    Currency MonthlyIncome;
    Currency MonthlyBalance; ///< may be negative
};

/// "weekly", "biweekly", "semimonthly", "monthly": in the order of PayFrequencyOptions().
const QStringList &BudgetFrequencyNames();

/// What an amount per paycheck of one frequency is per paycheck of the other: by the paychecks of a year, 52, 26, 24
/// and
/// 12. The product is exact, the quotient is taken in double and rounded once, ties to even. Equal names give the
/// amount itself, any other name 0. Error 6 beyond the range of Currency.
Currency ConvertPay(Currency amount, const QString &fromFrequency, const QString &toFrequency);
Currency ConvertToMonthly(Currency amount, const QString &frequency);
/// The exact sum of all incomes, each converted.
Currency CombineIncomes(const BudgetSetup &setup, const QString &frequency);

/// The text of a number of incomes, replaced by "1" where its value is below 1. Error 13 if it is no number.
QString BoundedNumberOfIncomes(const QString &text);
/// These learn how many records follow, and begin with the first of them. Counts are rounded to Integers, ties to even;
/// error 6 beyond their range, 13 if the text is no number. A count below 1 is none.
void TakeNumberOfIncomes(BudgetSetup &setup, const QString &count);
void TakeNumberOfCreditors(BudgetSetup &setup, const QString &count);
void TakeNumberOfRegulars(BudgetSetup &setup, const QString &count);

/// These take one record each. Error 6 for a number beyond its type, 13 for no number, 9 beyond the count.
void TakeIncome(BudgetSetup &setup, const QString &amount, const QString &frequency);
void TakeCreditor(BudgetSetup &setup, const QString &dueDate, const QString &amount, const QString &name);
void TakeRegular(BudgetSetup &setup, const QString &amount, const QString &item);

/// Folds the incomes into one paycheck of that frequency.
void ChooseBudgetFrequency(BudgetSetup &setup, const QString &frequency);
/// Adds up the month's expenses. Regular items are added first and converted once, on their sum.
void AddUpExpenses(BudgetSetup &setup);
/// The month's income, and what the expenses leave of it.
void AddUpOverhead(BudgetSetup &setup);

// The summaries, as the user reads them.
QString IncomeSummary(const BudgetSetup &setup);
/// What to do with an income that is paid less often than the budget counts on it; empty where there is none.
QString IncomeHint(const BudgetSetup &setup);
QString RegularsPrompt(const BudgetSetup &setup);
/// Which amount of a regular item is wanted; the prompt before it says so only where there are creditors.
QString RegularHint(const BudgetSetup &setup);
QString ExpenseSummary(const BudgetSetup &setup);
QString OverheadSummary(const BudgetSetup &setup);

// The save, step by step. Each shows its own error and ends; the next one runs all the same.
/// Puts the paycheck, the pay dates that go with State.PayFrequency and the settings of a new household into the shared
/// state and writes environm.ini.
void WriteProfileSettings(const BudgetSetup &setup);
void WriteSetupCreditors(const BudgetSetup &setup);
void WriteSetupRegulars(const BudgetSetup &setup);
/// All of it: empties the household's files, writes the three above and loads everything anew.
void SaveProfile(const BudgetSetup &setup);
