// The pay dates ahead, and how an extra pay period is made from one of them.
#pragma once

#include "platform/values/Dates.h"

#include <array>
#include <functional>

/// The scan's own state; a test puts it back with one assignment.
struct ScanState {
    std::array<DateText, 101> ScanDates; ///< entry 0 is the current pay period
    QString ScanPickedDate;              ///< the date that was clicked, mm-dd-yyyy
};
inline ScanState Scan;

/// Computes the current pay period and the 100 pay dates after it. Uses the generator's date fields as scratch and
/// leaves them changed; the generator sets them anew on each run.
void FillScanPayPeriods();

/// Appends an extra pay period for Scan.ScanPickedDate, with one item "New Item" of amount 0.
void NewExtraPayPeriod();

/// Puts the extra pay periods in date order. Records are found again by date and not by identity: of two with the same
/// date the first stands twice afterwards and the second is lost, and that is how a pay period picked twice behaves.
/// Raises error 13 for a stored date that is none.
void SortExtraPayPeriods();

/// The extras window's list of pay periods. Empty while that window is not loaded.
inline std::function<void()> FillPayPeriodList;
