#include "guidance/BudgetSetup.h"

#include "foundation/BudgetFiles.h"
#include "foundation/ShoppingFiles.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Frequency {
    QString Name;
    int PaychecksAYear = 0;
};

const QList<Frequency> &Frequencies()
{
    static const QList<Frequency> frequencies{
        {u"weekly"_s, 52}, {u"biweekly"_s, 26}, {u"semimonthly"_s, 24}, {u"monthly"_s, 12}};
    return frequencies;
}

/// 0 for a name that is none of the four.
int PaychecksAYear(const QString &name)
{
    const QList<Frequency> &all = Frequencies();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Frequency &one) { return one.Name == name; });
    return found == all.end() ? 0 : found->PaychecksAYear;
}

/// A negative count would be written and read back as one, and no list could be kept behind it.
qint16 CountOf(const QString &text)
{
    return qMax(qint16(0), ToInteger(text));
}

template <class Record>
Currency Sum(const OneBased<Record> &records, Currency Record::*amount)
{
    Currency sum;
    for (const Record &record : records)
        sum += record.*amount;
    return sum;
}

} // namespace

const QStringList &BudgetFrequencyNames()
{
    static const QStringList names = [] {
        QStringList all;
        for (const Frequency &frequency : Frequencies())
            all += frequency.Name;
        return all;
    }();
    return names;
}

Currency ConvertPay(Currency amount, const QString &fromFrequency, const QString &toFrequency)
{
    if (fromFrequency == toFrequency)
        return amount;
    const int from = PaychecksAYear(fromFrequency);
    const int to = PaychecksAYear(toFrequency);
    if (from == 0 || to == 0)
        return {};
    return Currency::FromDouble((amount * from).ToDouble() / to);
}

Currency ConvertToMonthly(Currency amount, const QString &frequency)
{
    return ConvertPay(amount, frequency, u"monthly"_s);
}

Currency CombineIncomes(const BudgetSetup &setup, const QString &frequency)
{
    Currency sum;
    for (const IncomeRecord &income : setup.Incomes)
        sum += ConvertPay(income.IncomeAmount, income.IncomeFrequency, frequency);
    return sum;
}

QString BoundedNumberOfIncomes(const QString &text)
{
    return ToDouble(text) < 1 ? u"1"_s : text;
}

void TakeNumberOfIncomes(BudgetSetup &setup, const QString &count)
{
    setup.NumberOfIncomes = CountOf(count);
    setup.Incomes.Redim(setup.NumberOfIncomes);
    setup.IncomeIndex = 0; // also for a user who was sent back to the beginning half-way
}

void TakeNumberOfCreditors(BudgetSetup &setup, const QString &count)
{
    setup.NumberOfSetupCreditors = CountOf(count);
    setup.SetupCreditors.Redim(setup.NumberOfSetupCreditors);
    setup.SetupCreditorIndex = 0;
}

void TakeNumberOfRegulars(BudgetSetup &setup, const QString &count)
{
    setup.NumberOfSetupRegulars = CountOf(count);
    setup.SetupRegulars.Redim(setup.NumberOfSetupRegulars);
    setup.SetupRegularIndex = 0;
}

void TakeIncome(BudgetSetup &setup, const QString &amount, const QString &frequency)
{
    const IncomeRecord income{ToCurrency(amount), frequency};
    setup.Incomes(setup.IncomeIndex + 1) = income;
    ++setup.IncomeIndex;
}

void TakeCreditor(BudgetSetup &setup, const QString &dueDate, const QString &amount, const QString &name)
{
    const SetupCreditorRecord creditor{ToInteger(dueDate), ToCurrency(amount), name};
    setup.SetupCreditors(setup.SetupCreditorIndex + 1) = creditor;
    ++setup.SetupCreditorIndex;
}

void TakeRegular(BudgetSetup &setup, const QString &amount, const QString &item)
{
    const SetupRegularRecord regular{ToCurrency(amount), item};
    setup.SetupRegulars(setup.SetupRegularIndex + 1) = regular;
    ++setup.SetupRegularIndex;
}

void ChooseBudgetFrequency(BudgetSetup &setup, const QString &frequency)
{
    setup.CombinedPaycheck = CombineIncomes(setup, frequency);
    setup.BudgetFrequencyName = frequency;
}

void AddUpExpenses(BudgetSetup &setup)
{
    const Currency creditors = Sum(setup.SetupCreditors, &SetupCreditorRecord::SetupAmount);
    const Currency regulars =
        ConvertToMonthly(Sum(setup.SetupRegulars, &SetupRegularRecord::SetupRegularAmount), setup.BudgetFrequencyName);
    const Currency expenses = creditors + regulars;
    setup.TotalCreditorAmount = creditors;
    setup.TotalRegularAmount = regulars;
    setup.TotalExpenses = expenses;
}

void AddUpOverhead(BudgetSetup &setup)
{
    const Currency income = ConvertToMonthly(setup.CombinedPaycheck, setup.BudgetFrequencyName);
    const Currency balance = income - setup.TotalExpenses;
    setup.MonthlyIncome = income;
    setup.MonthlyBalance = balance;
}

QString IncomeSummary(const BudgetSetup &setup)
{
    return u"The paycheck amount of %1 will be used for your %2 budget. It is from this amount that Tallymere will "
           u"deduct your expenses in figuring out your budget. This amount represents your BASIC income. At this "
           u"point, "
           u"you need not concern yourself about any extra income that may show up occasionally - just your basic "
           u"income."_s.arg(FormatCurrency(setup.CombinedPaycheck), setup.BudgetFrequencyName);
}

QString IncomeHint(const BudgetSetup &setup)
{
    const int periods = PaychecksAYear(setup.BudgetFrequencyName);
    const bool isRarer = std::any_of(setup.Incomes.begin(), setup.Incomes.end(), [=](const IncomeRecord &income) {
        return PaychecksAYear(income.IncomeFrequency) < periods;
    });
    return isRarer ? u"A paycheck that comes less often than your budget counts with its share of each pay period. "
                     u"Keep back "
                     u"enough of it to last until the next one."_s
                   : QString();
}

QString RegularsPrompt(const BudgetSetup &setup)
{
    return u"For each regular item, Tallymere needs to know their name, and %1 amount. Click Next to proceed or Cancel "
           u"to exit."_s.arg(setup.BudgetFrequencyName);
}

QString RegularHint(const BudgetSetup &setup)
{
    return u"Enter what one %1 pay period costs. Leave quotation marks out of the name: they spoil the file."_s.arg(
        setup.BudgetFrequencyName);
}

QString ExpenseSummary(const BudgetSetup &setup)
{
    return u"Total creditor/monthly obligation amounts: %1\nTotal regular items amounts: %2\n\nTotal expenses: %3"_s
        .arg(FormatCurrency(setup.TotalCreditorAmount), FormatCurrency(setup.TotalRegularAmount),
             FormatCurrency(setup.TotalExpenses));
}

QString OverheadSummary(const BudgetSetup &setup)
{
    return u"Average monthly household income: %1\nTotal monthly expenses: %2\n\nMonthly balance remaining: %3"_s.arg(
        FormatCurrency(setup.MonthlyIncome), FormatCurrency(setup.TotalExpenses), FormatCurrency(setup.MonthlyBalance));
}

void WriteProfileSettings(const BudgetSetup &setup)
{
    State.ForecastPeriods = 26;
    State.PaycheckAmount = setup.CombinedPaycheck;
    // The dates of a frequency come from its own question, those of the others go back to their start.
    switch (State.PayFrequency) {
    case Weekly:
    case Biweekly:
        State.FirstPayDate = 1;
        State.SecondPayDate = 15;
        State.MonthEndPay = 0;
        break;
    case Semimonthly: State.MonthEndPay = 0; break;
    case Monthly:
        State.FirstPayDate = 1;
        State.SecondPayDate = 15;
        break;
    default: break;
    }
    State.SalesTax = 0.06F;
    State.CurrentStoreFile = u"untitled.lst"_s;
    State.AverageNetPercentage = 0.9F;
    SaveEnvironmentSettings();
}

void WriteSetupCreditors(const BudgetSetup &setup)
{
    OneBased<CreditorRecord> creditors = OneBased<CreditorRecord>::OfSize(setup.SetupCreditors.Size());
    std::transform(setup.SetupCreditors.begin(), setup.SetupCreditors.end(), creditors.begin(),
                   [](const SetupCreditorRecord &one) {
                       return CreditorRecord{one.SetupCreditor, one.SetupDueDate, one.SetupAmount};
                   });
    WriteCreditors(setup.NumberOfSetupCreditors, std::move(creditors));
}

void WriteSetupRegulars(const BudgetSetup &setup)
{
    OneBased<RegularRecord> regulars = OneBased<RegularRecord>::OfSize(setup.SetupRegulars.Size());
    std::transform(setup.SetupRegulars.begin(), setup.SetupRegulars.end(), regulars.begin(),
                   [](const SetupRegularRecord &one) {
                       return RegularRecord{one.SetupRegularItem, one.SetupRegularAmount};
                   });
    WriteRegulars(setup.NumberOfSetupRegulars, std::move(regulars));
}

void SaveProfile(const BudgetSetup &setup)
{
    InitializeFiles();
    WriteProfileSettings(setup);
    WriteSetupCreditors(setup);
    WriteSetupRegulars(setup);
    InputCreditors();
    InputRegulars();
    InputPayPeriods();
    InputProjects();
    InputMasterShoppingList();
    InputCurrentShoppingList();
}
