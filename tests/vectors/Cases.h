// A worked case: a name, an input and the expected result, as JSON. Each area has one routine that runs a case on the
// program and gives the result in the same shape; it never sees what is expected.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

#include "platform/values/Currency.h"
#include "platform/values/Dates.h"

#include <optional>

class RecordingDesk;

/// A result holds everything that a case of the area can tell; what a case does not expect is not compared.
using RunCase = QJsonValue (*)(const QJsonObject &input, RecordingDesk &desk);

QJsonValue RunFilesCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunBudgetCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunForecastCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunOverheadCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunScanCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunCommitmentsCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunProjectsCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunLoansCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunAmortizationCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunRatesCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunSavingsCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunWagesCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunHoursCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunAverageNetCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunPayOffCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunShoppingCase(const QJsonObject &input, RecordingDesk &desk);
QJsonValue RunSetupCase(const QJsonObject &input, RecordingDesk &desk);

// How results are told
QJsonValue Told(Currency amount);
/// The shortest text and the bits.
QJsonValue Told(float value);
QJsonArray Told(const QStringList &lines);

/// Puts a household into the shared state: settings, creditors, regular items, extra pay periods, projects.
void TakeHousehold(const QJsonObject &household);
/// The dates of the extra pay periods in the form in which a loader holds them.
void HoldDatesAsLoaded();
/// The dates of the projects' entries in the form in which a plan writes them.
void HoldProjectDatesAsPlanned();
/// Writes projects.txt for the projects in memory.
void SaveProjectsAnew(const RecordingDesk &desk);
QJsonArray ToldCreditors();
QJsonArray ToldRegulars();
/// With a format the dates are told in it, else as they are held.
QJsonArray ToldExtras(std::optional<DateFormat> format = {});
QJsonArray ToldProjects();
/// The messages that were shown since the last call: title and text.
QJsonArray ToldMessages(RecordingDesk &desk);
/// The same where at most one is expected: null for none, that one, or the list of all.
QJsonValue ToldMessage(RecordingDesk &desk);

/// Where `actual` differs from `expected`, a line a difference. Where a list of texts is expected in place of one, any
/// of them will do; members that are not expected are not compared. A member "tolerance" says by how much the numbers
/// beside it that are told as texts may differ.
QStringList Differences(const QJsonValue &expected, const QJsonValue &actual, const QString &where = {});

/// A value with one thing in it changed, and the way to that thing without the indexes of lists.
struct Falsified {
    QString Kind;
    QJsonValue Value;
};
/// Every kind of leaf of `expected` changed once, in the first of its kind, and every kind of list made one shorter or,
/// where it is empty, one longer. `actual` tells where a list stands for any of its texts: all of them are changed
/// then.
QList<Falsified> Falsifications(const QJsonValue &expected, const QJsonValue &actual);
