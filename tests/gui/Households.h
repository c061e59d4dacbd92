// The two households in which every window is looked at: a fresh one, and the sample family's.
#pragma once

#include "RecordingDesk.h"

enum class Household { Empty, Filled };

/// Lays the household into the desk's folder, the sample's dated entries in the pay periods from desk.Now on.
void LayHouseholdOf(const RecordingDesk &desk, Household household);

/// What there is to look at: every declared window by its name and, of one that has several panels, each of the others
/// as "frmWelcome.pnlHowToDo".
QStringList Views();
QString WindowOf(const QString &view);

/// Shows a view as the user sees it at work: opened from the main window and, in the filled household, with what its
/// first clicks bring. The main window itself is shown with its hint. Returns whether the window stands there.
bool ShowAtWork(const QString &view, Household household);

/// The desktops on which every window is looked at.
void UseDesktop(bool dark, double fontSize);
constexpr double UsualFontSize = 10; // points
