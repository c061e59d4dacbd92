#include "foundation/BudgetFiles.h"

#include "foundation/FileRoutine.h"
#include "foundation/State.h"

namespace {

QString DataPath(const char *name)
{
    return State.ApplicationPath + QLatin1Char('\\') + QLatin1String(name);
}

void Rewrite(const char *title, const char *name, const std::function<void(OutputFile &)> &fill)
{
    RunWriter(QLatin1String(title), DataPath(name), OldFile::MustExist, fill);
}

/// The entries of a list within a record that lie beyond its bound: they come after the others, each of their two
/// values fails with a message of its own, and they take nothing from the file.
void FailBeyond(int bound, int count, Loader &loader)
{
    if (count > bound)
        loader.Fail(RuntimeError::SubscriptOutOfRange, 2 * qint64(count - bound));
}

} // namespace

void InputCreditors()
{
    Loader loader(QStringLiteral("Input Creditors"), DataPath("creditor.txt"));
    loader.Read(State.NumberOfCreditors);
    if (State.NumberOfCreditors == 0)
        return;
    loader.Step([](InputFile &) { State.Creditors.Redim(State.NumberOfCreditors); });
    for (int i = 1; i <= State.NumberOfCreditors; ++i) {
        CreditorRecord &creditor = State.Creditors(i);
        loader.ReadByText(creditor.CreditorDueDate);
        loader.Read(creditor.CreditorName);
        loader.ReadByText(creditor.CreditorAmount);
    }
}

void InputRegulars()
{
    Loader loader(QStringLiteral("Input Regulars"), DataPath("regulars.txt"));
    loader.Read(State.NumberOfRegulars);
    if (State.NumberOfRegulars == 0)
        return;
    loader.Step([](InputFile &) { State.Regulars.Redim(State.NumberOfRegulars); });
    for (int i = 1; i <= State.NumberOfRegulars; ++i) {
        loader.Read(State.Regulars(i).RegularItem);
        loader.ReadByText(State.Regulars(i).RegularAmount);
    }
}

void InputPayPeriods()
{
    Loader loader(QStringLiteral("Input Pay Periods"), DataPath("extra.txt"));
    loader.Read(State.NumberOfExtraPayPeriods);
    if (State.NumberOfExtraPayPeriods == 0)
        return;
    loader.Step([](InputFile &) { State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods); });
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
        loader.Step([&](InputFile &file) { payPeriod.PayPeriodDate = Format(file.InputString(), DateFormat::Dashes); });
        loader.Read(payPeriod.NumberOfExtraItems);
        const int items = payPeriod.NumberOfExtraItems;
        for (int item = 1; item <= qMin(items, MostExtraItems); ++item) {
            loader.Read(payPeriod.ExtraItems(item).ExtraItem);
            loader.ReadByText(payPeriod.ExtraItems(item).ExtraItemAmount);
        }
        FailBeyond(MostExtraItems, items, loader);
    }
}

void InputProjects()
{
    Loader loader(QStringLiteral("Input Projects"), DataPath("projects.txt"));
    loader.Read(State.NumberOfProjects);
    if (State.NumberOfProjects == 0)
        return;
    loader.Step([](InputFile &) {
        State.ProjectNames.Redim(State.NumberOfProjects);
        State.ProjectAmounts.Redim(State.NumberOfProjects);
        State.ProjectEntryCounts.Redim(State.NumberOfProjects);
        State.ProjectEntryDates.Redim(State.NumberOfProjects);
        State.ProjectEntryAmounts.Redim(State.NumberOfProjects);
    });
    for (int i = 1; i <= State.NumberOfProjects; ++i) {
        loader.Read(State.ProjectNames(i));
        loader.Read(State.ProjectAmounts(i));
        loader.Read(State.ProjectEntryCounts(i));
        const int entries = State.ProjectEntryCounts(i);
        for (int entry = 1; entry <= qMin(entries, MostProjectEntries); ++entry) {
            loader.Step([&](InputFile &file) { State.ProjectEntryDates(i)(entry) = file.InputString(); });
            loader.ReadByText(State.ProjectEntryAmounts(i)(entry));
        }
        FailBeyond(MostProjectEntries, entries, loader);
    }
}

void SaveCreditors()
{
    Rewrite("Save Creditors", "creditor.txt", [](OutputFile &file) {
        file.Write(State.NumberOfCreditors);
        for (int i = 1; i <= State.NumberOfCreditors; ++i) {
            const CreditorRecord &creditor = State.Creditors(i);
            file.Write(creditor.CreditorDueDate);
            file.Write(creditor.CreditorName);
            file.Write(creditor.CreditorAmount);
        }
    });
}

void SaveRegulars()
{
    Rewrite("Save Regulars", "regulars.txt", [](OutputFile &file) {
        file.Write(State.NumberOfRegulars);
        for (int i = 1; i <= State.NumberOfRegulars; ++i) {
            file.Write(State.Regulars(i).RegularItem);
            file.Write(State.Regulars(i).RegularAmount);
        }
    });
}

void SavePayPeriods()
{
    Rewrite("Save Pay Periods", "extra.txt", [](OutputFile &file) {
        file.Write(State.NumberOfExtraPayPeriods);
        for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
            const ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
            file.Write(payPeriod.PayPeriodDate.Text());
            file.Write(payPeriod.NumberOfExtraItems);
            for (int item = 1; item <= payPeriod.NumberOfExtraItems; ++item) {
                file.Write(payPeriod.ExtraItems(item).ExtraItem);
                file.Write(payPeriod.ExtraItems(item).ExtraItemAmount);
            }
        }
    });
}

void SaveProjects()
{
    Rewrite("Save Projects", "projects.txt", [](OutputFile &file) {
        file.Write(State.NumberOfProjects);
        for (int i = 1; i <= State.NumberOfProjects; ++i) {
            file.Write(State.ProjectNames(i));
            file.Write(State.ProjectAmounts(i));
            file.Write(State.ProjectEntryCounts(i));
            for (int entry = 1; entry <= State.ProjectEntryCounts(i); ++entry) {
                file.Write(std::as_const(State.ProjectEntryDates)(i)(entry).Text());
                file.Write(std::as_const(State.ProjectEntryAmounts)(i)(entry));
            }
        }
    });
}

void SaveEnvironmentSettings()
{
    Rewrite("Save Environment Settings", "environm.ini", [](OutputFile &file) {
        file.Write(State.ForecastPeriods);
        file.Write(State.PaycheckAmount);
        file.Write(State.PayFrequency);
        file.Write(State.FirstPayDate);
        file.Write(State.SecondPayDate);
        file.Write(State.MonthEndPay);
        file.Write(State.SalesTax);
        file.Write(State.CurrentStoreFile);
        file.Write(State.AverageNetPercentage);
    });
}

void InitializeFiles()
{
    RunFileSteps(QStringLiteral("Initialize Files"), [] {
        for (const char *name : {"creditor.txt", "extra.txt", "mastshop.txt", "projects.txt", "regulars.txt"}) {
            DeleteFile(DataPath(name));
            OutputFile file;
            file.Open(DataPath(name));
            file.Write(qint16(0));
            file.Close();
        }
    });
}
