// The pay dates ahead, and how an extra pay period is made from one of them.
#pragma once

#include "platform/values/Dates.h"

#include <QObject>
#include <array>

/// The scan's own state; a test puts it back with one assignment.
struct ScanState {
    std::array<DateText, 101> ScanDates; ///< entry 0 is the current pay period
    QString ScanPickedDate;              ///< the date that was clicked, mm-dd-yyyy
    bool PayPeriodsUnsaved = false;      ///< an extra item that failed half-way stands in memory and not in the file
};
inline ScanState Scan;

inline const QString ScanTitle = QStringLiteral("Valid Pay Periods"); ///< of the window and its messages

/// Computes the current pay period and the 100 pay dates after it. Uses the generator's date fields as scratch and
/// leaves them changed; the generator sets them anew on each run.
void FillScanPayPeriods();

/// Appends an extra pay period for Scan.ScanPickedDate, with one item "New Item" of amount 0.
void NewExtraPayPeriod();

/// Puts the extra pay periods in date order. Records are found again by date and not by identity: of two with the same
/// date the first stands twice afterwards and the second is lost, and that is how a pay period picked twice behaves.
/// Raises error 13 for a stored date that is none.
void SortExtraPayPeriods();

/// The rows of the window: all dates, in words.
QStringList ScanRows();

/// A click on a row, from 0: its date is the picked one. If the extras window waits for it, an extra pay period is made
/// of it, sorted in, saved and read back. Where the records cannot be sorted because one of them holds no date, the
/// unknown error is told and nothing is changed: the extras window goes on waiting. Returns whether one was made.
bool PickScanDate(int row);

/// What an extra item has left in memory and not in the file, because it failed half-way, is dropped by reading the
/// file, so that the next edit saves the file and itself alone.
void DropUnsavedPayPeriods();

/// Where whoever shows the extra pay periods hears of a new one.
class PayPeriodOutlet : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    void PayPeriodAdded();
};
inline PayPeriodOutlet ThePayPeriodOutlet;
