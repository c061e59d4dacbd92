// The household's data files: environm.ini, creditor.txt, regulars.txt, extra.txt and projects.txt in
// State.ApplicationPath, each loaded into and written from the shared state as a whole.
//
// A loader tells each statement that fails and goes on with the next one. A writer deletes the old file first and ends
// at the first failure; so a missing file is not healed by use, deliberately: only an installation supplies the first
// copy.
#pragma once

#include "foundation/FileRoutine.h"
#include "foundation/State.h"

void InputCreditors();
void InputRegulars();
void InputPayPeriods();
void InputProjects();

void SaveCreditors();
void SaveRegulars();
void SavePayPeriods();
void SaveProjects();

/// The same files with entries that are not the household's yet: what is in memory stays as it is.
void WriteCreditors(qint16 count, OneBased<CreditorRecord> creditors);
void WriteRegulars(qint16 count, OneBased<RegularRecord> regulars);

/// The nine settings: read by the start, whose handler runs the opening and each read, and written on the way out.
void ReadEnvironmentSettings(const StatementRunner &run);
void SaveEnvironmentSettings();

/// Resets the household: creditor.txt, extra.txt, mastshop.txt, projects.txt and regulars.txt in this order are deleted
/// and made anew with a count of nothing. Stops at the first failure.
void InitializeFiles();
