// The state that all subsystems share. It lives from the start to the end of the process; every window and every
// calculation reads and writes it directly. ResetState() puts all of it back.
#pragma once

#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "platform/values/OneBased.h"

#include <QString>
#include <QTime>
#include <algorithm>
#include <array>

struct CreditorRecord {
    QString CreditorName;
    qint16 CreditorDueDate = 0; ///< day of the month
    Currency CreditorAmount;
    bool operator==(const CreditorRecord &) const = default;
};

struct RegularRecord {
    QString RegularItem;
    Currency RegularAmount;
    bool operator==(const RegularRecord &) const = default;
};

struct ExtraItemRecord {
    QString ExtraItem;
    Currency ExtraItemAmount; ///< negative: a credit
    bool operator==(const ExtraItemRecord &) const = default;
};

constexpr int LeastForecastPeriods = 1;
constexpr int MostForecastPeriods = 1000;
constexpr int MostExtraItems = 200;
constexpr int MostProjectEntries = 100;
constexpr int MostTutorPages = 26;

struct ExtraPayPeriodRecord {
    DateText PayPeriodDate;
    qint16 NumberOfExtraItems = 0;
    FixedArray<ExtraItemRecord, MostExtraItems> ExtraItems; ///< 1 to NumberOfExtraItems are used, 0 stays empty
};

struct MasterItemRecord {
    QString Item;
    QString Unit;
    Currency UnitPrice;
    QString Store;
    bool Taxable = false;
    bool operator==(const MasterItemRecord &) const = default;
};

struct CurrentItemRecord {
    QString Item;
    QString Unit;
    Currency UnitPrice;
    QString Store;
    float Quantity = 0;
    bool Taxable = false;
    Currency CouponValue;
    Currency FullPrice; ///< a cache: computed again whenever the list is shown or printed
    bool operator==(const CurrentItemRecord &) const = default;
};

/// How many items of a record are there: a damaged file may count more than a record holds, or less than nothing.
inline int ItemsOf(const ExtraPayPeriodRecord &payPeriod)
{
    return std::clamp<int>(payPeriod.NumberOfExtraItems, 0, MostExtraItems);
}

/// PayFrequency
constexpr qint16 Weekly = 7;
constexpr qint16 Biweekly = 14;
constexpr qint16 Semimonthly = 15;
constexpr qint16 Monthly = 30;

struct SharedState {
    // Paths. The loop counters that every routine of its own needs are locals.
    QString ApplicationPath; ///< folder of every data file, no trailing separator
    QString StoresDirectory; ///< ApplicationPath and "\stores\"
    QString HelpFile;        ///< what F1 and the help buttons open

    // Settings, kept in environm.ini
    qint16 ForecastPeriods = 0;     ///< pay periods that the savings forecast looks ahead, within the bounds above
    Currency PaycheckAmount;        ///< net amount of one paycheck
    qint16 PayFrequency = 0;        ///< 7 weekly, 14 biweekly, 15 semimonthly, 30 monthly
    qint16 FirstPayDate = 0;        ///< day of the first semimonthly paycheck
    qint16 SecondPayDate = 0;       ///< day of the second; 0 is the month's last day
    qint16 MonthEndPay = 0;         ///< with PayFrequency 30: -1 when the paycheck comes on the month's last day
    float SalesTax = 0;             ///< a fraction: 0.06 is six per cent
    QString CurrentStoreFile;       ///< bare file name of the open store list
    float AverageNetPercentage = 0; ///< a fraction: 0.9 is ninety per cent

    // Budget data: elements 1 to the count are valid; behind a count of 0 there may be stale ones
    qint16 NumberOfCreditors = 0;
    OneBased<CreditorRecord> Creditors;
    qint16 NumberOfRegulars = 0;
    OneBased<RegularRecord> Regulars;
    qint16 NumberOfExtraPayPeriods = 0;
    OneBased<ExtraPayPeriodRecord> ExtraPayPeriods;
    qint16 NumberOfProjects = 0; // parallel arrays; the entry arrays are ProjectEntryDates(project)(entry)
    OneBased<QString> ProjectNames;
    OneBased<Currency> ProjectAmounts;
    OneBased<qint16> ProjectEntryCounts;
    OneBased<FixedArray<DateText, MostProjectEntries>> ProjectEntryDates;
    OneBased<FixedArray<Currency, MostProjectEntries>> ProjectEntryAmounts;
    qint16 NumberOfMasterItems = 0;
    OneBased<MasterItemRecord> MasterShoppingList;
    qint16 NumberOfCurrentItems = 0;
    OneBased<CurrentItemRecord> CurrentShoppingList;

    // Calendar, none kept
    QString CurrentPayPeriod;           ///< today as mm-dd-yyyy until the user has set it; then as typed
    DateText BudgetPeriodStart;         ///< first day of the period of the next budget run
    DateText PayPeriodDate;             ///< the period under calculation
    DateText NextPeriodDate;            ///< NextPayPeriod of PayPeriodDate
    DateText NextNextPeriodDate;        ///< NextPayPeriod of NextPeriodDate
    std::array<qint16, 12> MonthDays{}; ///< days per month, February always 28
    QTime ClockTime;                    ///< time of day that the one-second clocks showed last

    // Flags between windows, none kept
    bool InitializingVariables = false;     ///< while InitializeVariables runs; left true if it gives up
    bool MathCalculatorMissing = false;     ///< a file was not found at the start: the calculator's entry is grey
    bool CurrentPayPeriodConfirmed = false; ///< the question for the pay period was answered in this run
    qint32 WelcomeLevel = 0;                ///< level chosen on the welcome window, 0 to 3
    bool WelcomeLevelPending = false;       ///< the main window has not acted on it yet
    bool GuidedSetupActive = false;         ///< a guided route is under way
    qint32 GuidedSetupRoute = 0;
    qint16 GuidedSetupStep = 0;
    bool LookingAhead = false;            ///< the generator's current run is the look-ahead run
    bool ForecastMode = false;            ///< the generator runs silently
    bool ProjectDateFromForecast = false; ///< the forecast is open to pick a completion date
    bool ScanCalledFromExtras = false;    ///< the scan is open to pick a pay period
    bool PrintBudget = false;             ///< the respective report also goes to the printer
    bool PrintPayOffPlan = false;
    bool PrintSavingsForecast = false;
    bool PrintProjectView = false;

    OneBased<QString> TutorInstructions = OneBased<QString>::OfSize(MostTutorPages);

    // Print settings, not kept
    QString PrintFontName;
    float PrintFontSize = 0;
    bool PrintFontBold = false;
    bool PrintFontItalic = false;
    bool PrintFontUnderline = false;
    bool PrintFontStrikethru = false;
    qint32 PrintFontColor = 0;

    // The budget's figures, kept between runs
    Currency BudgetBalance;       ///< money left
    Currency NextPeriodShortfall; ///< the following period's deficit, or what is passed forward
    Currency BudgetCredit;        ///< what the last budget run passed forward, to be received by the next
};
inline SharedState State;

/// How many entries of a project are there, likewise.
inline int EntriesOf(int project)
{
    return std::clamp<int>(State.ProjectEntryCounts(project), 0, MostProjectEntries);
}

inline void ResetState()
{
    State = {};
}
