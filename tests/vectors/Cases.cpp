#include "Cases.h"

#include "RecordingDesk.h"
#include "foundation/BudgetFiles.h"
#include "platform/values/Numbers.h"

#include <QJsonDocument>
#include <QSet>
#include <bit>

using namespace Qt::Literals::StringLiterals;

QJsonValue Told(Currency amount)
{
    return amount.TenThousandths();
}

QJsonValue Told(float value)
{
    const QString bits = QString::number(std::bit_cast<quint32>(value), 16).rightJustified(8, QLatin1Char('0'));
    return QJsonObject{{u"text"_s, PlainText(value)}, {u"bits"_s, u"0x"_s + bits}};
}

QJsonArray Told(const QStringList &lines)
{
    return QJsonArray::fromStringList(lines);
}

namespace {

Currency Money(const QJsonValue &value)
{
    return Currency::FromTenThousandths(value.toInteger());
}

qint16 Count(const QJsonArray &array)
{
    return ToInteger(int(array.size()));
}

qint16 Integer(const QJsonValue &value)
{
    return ToInteger(value.toInt());
}

} // namespace

void TakeHousehold(const QJsonObject &household)
{
    State.CurrentPayPeriod = household[u"CurrentPayPeriod"].toString();
    State.PaycheckAmount = Money(household[u"PaycheckAmount"]);
    State.PayFrequency = Integer(household[u"PayFrequency"]);
    State.FirstPayDate = Integer(household[u"FirstPayDate"]);
    State.SecondPayDate = Integer(household[u"SecondPayDate"]);
    State.MonthEndPay = Integer(household[u"MonthEndPay"]);
    State.ForecastPeriods = Integer(household[u"ForecastPeriods"]);
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.PrintFontName = u"Courier"_s;
    State.PrintFontSize = 8;

    const QJsonArray creditors = household[u"Creditors"].toArray();
    State.NumberOfCreditors = Count(creditors);
    State.Creditors.Redim(State.NumberOfCreditors);
    for (int i = 1; i <= State.NumberOfCreditors; ++i) {
        const QJsonValue creditor = creditors[i - 1];
        State.Creditors(i) = {creditor[u"CreditorName"].toString(), Integer(creditor[u"CreditorDueDate"]),
                              Money(creditor[u"CreditorAmount"])};
    }
    const QJsonArray regulars = household[u"Regulars"].toArray();
    State.NumberOfRegulars = Count(regulars);
    State.Regulars.Redim(State.NumberOfRegulars);
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        State.Regulars(i) = {regulars[i - 1][u"RegularItem"].toString(), Money(regulars[i - 1][u"RegularAmount"])};

    const QJsonArray extras = household[u"ExtraPayPeriods"].toArray();
    State.NumberOfExtraPayPeriods = Count(extras);
    State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods);
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
        const QJsonArray items = extras[i - 1][u"ExtraItems"].toArray();
        payPeriod.PayPeriodDate = extras[i - 1][u"PayPeriodDate"].toString();
        payPeriod.NumberOfExtraItems = Count(items);
        for (int item = 1; item <= payPeriod.NumberOfExtraItems; ++item)
            payPeriod.ExtraItems.At(item) = {items[item - 1][u"ExtraItem"].toString(),
                                             Money(items[item - 1][u"ExtraItemAmount"])};
    }
    const QJsonArray projects = household[u"Projects"].toArray();
    State.NumberOfProjects = Count(projects);
    State.ProjectNames.Redim(State.NumberOfProjects);
    State.ProjectAmounts.Redim(State.NumberOfProjects);
    State.ProjectEntryCounts.Redim(State.NumberOfProjects);
    State.ProjectEntryDates.Redim(State.NumberOfProjects);
    State.ProjectEntryAmounts.Redim(State.NumberOfProjects);
    for (int i = 1; i <= State.NumberOfProjects; ++i) {
        const QJsonValue project = projects[i - 1];
        const QJsonArray entries = project[u"Entries"].toArray();
        State.ProjectNames(i) = project[u"ProjectName"].toString();
        State.ProjectAmounts(i) = Money(project[u"ProjectAmount"]);
        State.ProjectEntryCounts(i) = Count(entries);
        for (int entry = 1; entry <= State.ProjectEntryCounts(i); ++entry) {
            State.ProjectEntryDates(i).At(entry) = entries[entry - 1][u"Date"].toString();
            State.ProjectEntryAmounts(i).At(entry) = Money(entries[entry - 1][u"Amount"]);
        }
    }
}

QJsonArray ToldCreditors()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfCreditors; ++i)
        told += QJsonObject{{u"CreditorDueDate"_s, State.Creditors(i).CreditorDueDate},
                            {u"CreditorName"_s, State.Creditors(i).CreditorName},
                            {u"CreditorAmount"_s, Told(State.Creditors(i).CreditorAmount)}};
    return told;
}

QJsonArray ToldRegulars()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        told += QJsonObject{{u"RegularItem"_s, State.Regulars(i).RegularItem},
                            {u"RegularAmount"_s, Told(State.Regulars(i).RegularAmount)}};
    return told;
}

void HoldDatesAsLoaded()
{
    for (ExtraPayPeriodRecord &payPeriod : State.ExtraPayPeriods)
        payPeriod.PayPeriodDate = Format(payPeriod.PayPeriodDate.Text(), DateFormat::Dashes);
}

void HoldProjectDatesAsPlanned()
{
    for (int i = 1; i <= State.NumberOfProjects; ++i)
        for (int entry = 1; entry <= State.ProjectEntryCounts(i); ++entry)
            State.ProjectEntryDates(i).At(entry) = FormatLongDate(State.ProjectEntryDates(i)(entry));
}

void SaveProjectsAnew(const RecordingDesk &desk)
{
    desk.WriteFile(u"projects.txt"_s, "0\r\n");
    SaveProjects();
}

QJsonArray ToldExtras(std::optional<DateFormat> format)
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        const ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
        QJsonArray items;
        for (int item = 1; item <= payPeriod.NumberOfExtraItems; ++item)
            items += QJsonObject{{u"ExtraItem"_s, payPeriod.ExtraItems(item).ExtraItem},
                                 {u"ExtraItemAmount"_s, Told(payPeriod.ExtraItems(item).ExtraItemAmount)}};
        told += QJsonObject{{u"PayPeriodDate"_s,
                             format ? Format(payPeriod.PayPeriodDate.Text(), *format) : payPeriod.PayPeriodDate.Text()},
                            {u"ExtraItems"_s, items}};
    }
    return told;
}

QJsonArray ToldProjects()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfProjects; ++i) {
        QJsonArray entries;
        for (int entry = 1; entry <= State.ProjectEntryCounts(i); ++entry)
            entries += QJsonObject{{u"Date"_s, State.ProjectEntryDates(i)(entry).Text()},
                                   {u"Amount"_s, Told(State.ProjectEntryAmounts(i)(entry))}};
        told += QJsonObject{{u"ProjectName"_s, State.ProjectNames(i)},
                            {u"ProjectAmount"_s, Told(State.ProjectAmounts(i))},
                            {u"Entries"_s, entries}};
    }
    return told;
}

QJsonArray ToldMessages(RecordingDesk &desk)
{
    QJsonArray told;
    while (!desk.Messages.isEmpty()) {
        const Message message = desk.TakeMessage();
        told += QJsonObject{{u"title"_s, message.Title}, {u"text"_s, message.Text}};
    }
    return told;
}

QJsonValue ToldMessage(RecordingDesk &desk)
{
    const QJsonArray all = ToldMessages(desk);
    if (all.isEmpty())
        return QJsonValue::Null;
    return all.size() == 1 ? all[0] : QJsonValue(all);
}

namespace {

QString Shown(const QJsonValue &value)
{
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(json.mid(1, json.size() - 2)).left(300);
}

/// Whether a list stands for any one of its texts.
bool AnyOf(const QJsonValue &expected, const QJsonValue &actual)
{
    return expected.isArray() && actual.isString();
}

const QString Tolerance = u"tolerance"_s;

/// Whether both are numbers told as texts, and near enough.
bool IsWithin(const QJsonValue &tolerance, const QJsonValue &expected, const QJsonValue &actual)
{
    if (!tolerance.isString() || !IsPlainNumber(expected.toString()) || !IsPlainNumber(actual.toString()))
        return false;
    return qAbs(expected.toString().toDouble() - actual.toString().toDouble()) <= tolerance.toString().toDouble();
}

QJsonValue Changed(const QJsonValue &leaf)
{
    switch (leaf.type()) {
    case QJsonValue::Bool: return !leaf.toBool();
    case QJsonValue::Double: return leaf.toInteger() + 1;
    case QJsonValue::String: return leaf.toString() + QLatin1Char('x');
    default: return u"x"_s;
    }
}

QJsonArray AllChanged(QJsonArray texts)
{
    for (QJsonValueRef text : texts)
        text = Changed(text);
    return texts;
}

} // namespace

QStringList Differences(const QJsonValue &expected, const QJsonValue &actual, const QString &where)
{
    QStringList found;
    if (expected.isObject() && actual.isObject()) {
        const QJsonObject one = expected.toObject();
        for (auto member = one.begin(); member != one.end(); ++member)
            if (member.key() != Tolerance && !IsWithin(one[Tolerance], member.value(), actual[member.key()]))
                found += Differences(member.value(), actual[member.key()], where + QLatin1Char('.') + member.key());
        return found;
    }
    if (expected.isArray() && actual.isArray()) {
        const QJsonArray one = expected.toArray();
        const QJsonArray other = actual.toArray();
        for (qsizetype i = 0; i < qMax(one.size(), other.size()); ++i)
            found += Differences(i < one.size() ? one[i] : QJsonValue(QJsonValue::Undefined),
                                 i < other.size() ? other[i] : QJsonValue(QJsonValue::Undefined),
                                 u"%1[%2]"_s.arg(where).arg(i));
        return found;
    }
    if (AnyOf(expected, actual) && expected.toArray().contains(actual))
        return found;
    if (expected != actual)
        found += u"%1: expected %2, got %3"_s.arg(where, Shown(expected), Shown(actual));
    return found;
}

QList<Falsified> Falsifications(const QJsonValue &expected, const QJsonValue &actual)
{
    QList<Falsified> found;
    if (AnyOf(expected, actual))
        return {{QString(), AllChanged(expected.toArray())}};
    if (expected.isObject()) {
        const QJsonObject whole = expected.toObject();
        for (auto member = whole.begin(); member != whole.end(); ++member) {
            if (member.key() == Tolerance)
                continue;
            const QList<Falsified> inside = Falsifications(member.value(), actual[member.key()]);
            for (const Falsified &one : inside) {
                QJsonObject changed = whole;
                changed[member.key()] = one.Value;
                found.append({QLatin1Char('.') + member.key() + one.Kind, changed});
            }
        }
        return found;
    }
    if (!expected.isArray())
        return {{QString(), Changed(expected)}};
    const QJsonArray whole = expected.toArray();
    QSet<QString> kinds;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        const QList<Falsified> inside = Falsifications(whole[i], actual[i]);
        for (const Falsified &one : inside) {
            if (kinds.contains(one.Kind))
                continue;
            kinds += one.Kind;
            QJsonArray changed = whole;
            changed[i] = one.Value;
            found.append({u"[]"_s + one.Kind, changed});
        }
    }
    QJsonArray other = whole;
    if (other.isEmpty())
        other.append(QJsonValue::Null);
    else
        other.removeLast();
    found.append({u"[] "_s + (whole.isEmpty() ? u"longer"_s : u"shorter"_s), other});
    return found;
}
