#include "foundation/BudgetFiles.h"

#include "foundation/FileRoutine.h"
#include "foundation/State.h"

using namespace Qt::Literals::StringLiterals;

// The fields of each file, once for reading and writing.
namespace {

/// The order is not the record's.
void CreditorFields(auto &file, qint16 &count, OneBased<CreditorRecord> &creditors)
{
    const auto redim = [&] { creditors.Redim(count); };
    file.List(count, redim, [&](int i) {
        CreditorRecord &creditor = creditors(i);
        file.ByText(creditor.CreditorDueDate);
        file.Value(creditor.CreditorName);
        file.ByText(creditor.CreditorAmount);
    });
}

void RegularFields(auto &file, qint16 &count, OneBased<RegularRecord> &regulars)
{
    const auto redim = [&] { regulars.Redim(count); };
    file.List(count, redim, [&](int i) {
        RegularRecord &regular = regulars(i);
        file.Value(regular.RegularItem);
        file.ByText(regular.RegularAmount);
    });
}

void PayPeriodFields(auto &file)
{
    const auto redim = [] { State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods); };
    file.List(State.NumberOfExtraPayPeriods, redim, [&](int i) {
        ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
        file.DashedDate(payPeriod.PayPeriodDate);
        file.Pairs(payPeriod.NumberOfExtraItems, MostExtraItems, [&](int item) {
            file.Value(payPeriod.ExtraItems.At(item).ExtraItem);
            file.ByText(payPeriod.ExtraItems.At(item).ExtraItemAmount);
        });
    });
}

void ProjectFields(auto &file)
{
    const auto redim = [] {
        State.ProjectNames.Redim(State.NumberOfProjects);
        State.ProjectAmounts.Redim(State.NumberOfProjects);
        State.ProjectEntryCounts.Redim(State.NumberOfProjects);
        State.ProjectEntryDates.Redim(State.NumberOfProjects);
        State.ProjectEntryAmounts.Redim(State.NumberOfProjects);
    };
    file.List(State.NumberOfProjects, redim, [&](int i) {
        file.Value(State.ProjectNames(i));
        file.Value(State.ProjectAmounts(i));
        file.Pairs(State.ProjectEntryCounts(i), MostProjectEntries, [&](int entry) {
            file.Value(State.ProjectEntryDates(i).At(entry));
            file.ByText(State.ProjectEntryAmounts(i).At(entry));
        });
    });
}

void SettingFields(auto &file)
{
    file.Value(State.ForecastPeriods);
    file.Value(State.PaycheckAmount);
    file.Value(State.PayFrequency);
    file.Value(State.FirstPayDate);
    file.Value(State.SecondPayDate);
    file.Value(State.MonthEndPay);
    file.Value(State.SalesTax);
    file.Value(State.CurrentStoreFile);
    file.Value(State.AverageNetPercentage);
}

QString DataPath(const QString &name)
{
    return State.ApplicationPath + u'\\' + name;
}

void Load(const QString &title, const QString &name, const std::function<void(Loader &)> &fields)
{
    LoadFile(title, DataPath(name), fields);
}

void Save(const QString &title, const QString &name, const std::function<void(ListWriter &)> &fields)
{
    SaveFile(title, DataPath(name), OldFile::MustExist, fields);
}

} // namespace

void InputCreditors()
{
    Load(u"Input Creditors"_s, u"creditor.txt"_s,
         [](Loader &file) { CreditorFields(file, State.NumberOfCreditors, State.Creditors); });
}

void InputRegulars()
{
    Load(u"Input Regulars"_s, u"regulars.txt"_s,
         [](Loader &file) { RegularFields(file, State.NumberOfRegulars, State.Regulars); });
}

void InputPayPeriods()
{
    Load(u"Input Pay Periods"_s, u"extra.txt"_s, PayPeriodFields<Loader>);
}

void InputProjects()
{
    Load(u"Input Projects"_s, u"projects.txt"_s, ProjectFields<Loader>);
}

void SaveCreditors()
{
    WriteCreditors(State.NumberOfCreditors, State.Creditors);
}

void WriteCreditors(qint16 count, OneBased<CreditorRecord> creditors)
{
    Save(u"Save Creditors"_s, u"creditor.txt"_s, [&](ListWriter &file) { CreditorFields(file, count, creditors); });
}

void SaveRegulars()
{
    WriteRegulars(State.NumberOfRegulars, State.Regulars);
}

void WriteRegulars(qint16 count, OneBased<RegularRecord> regulars)
{
    Save(u"Save Regulars"_s, u"regulars.txt"_s, [&](ListWriter &file) { RegularFields(file, count, regulars); });
}

void SavePayPeriods()
{
    Save(u"Save Pay Periods"_s, u"extra.txt"_s, PayPeriodFields<ListWriter>);
}

void SaveProjects()
{
    Save(u"Save Projects"_s, u"projects.txt"_s, ProjectFields<ListWriter>);
}

void ReadEnvironmentSettings(const StatementRunner &run)
{
    InputFile file;
    run([&] { file.Open(DataPath(u"environm.ini"_s)); });
    ValueReader reader(file, run);
    SettingFields(reader);
}

void SaveEnvironmentSettings()
{
    Save(u"Save Environment Settings"_s, u"environm.ini"_s, SettingFields<ListWriter>);
}

void InitializeFiles()
{
    RunFileSteps(u"Initialize Files"_s, [] {
        for (const QString &name :
             {u"creditor.txt"_s, u"extra.txt"_s, u"mastshop.txt"_s, u"projects.txt"_s, u"regulars.txt"_s}) {
            OutputFile file;
            file.Collect();
            file.Write(qint16(0));
            file.Replace(DataPath(name), OldFile::MustExist);
        }
    });
}
