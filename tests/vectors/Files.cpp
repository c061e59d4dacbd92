#include "Cases.h"

#include "RecordingDesk.h"
#include "foundation/BudgetFiles.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StartAndEnd.h"

#include <QMap>

namespace {

const QMap<QString, void (*)()> Routines{
    {QStringLiteral("InputCreditors"), InputCreditors},
    {QStringLiteral("InputRegulars"), InputRegulars},
    {QStringLiteral("InputPayPeriods"), InputPayPeriods},
    {QStringLiteral("InputProjects"), InputProjects},
    {QStringLiteral("InputMasterShoppingList"), InputMasterShoppingList},
    {QStringLiteral("InputCurrentShoppingList"), InputCurrentShoppingList},
    {QStringLiteral("SaveCreditors"), SaveCreditors},
    {QStringLiteral("SaveRegulars"), SaveRegulars},
    {QStringLiteral("SavePayPeriods"), SavePayPeriods},
    {QStringLiteral("SaveProjects"), SaveProjects},
    {QStringLiteral("SaveMasterShoppingList"), [] { SaveMasterShoppingList(); }},
    {QStringLiteral("SaveCurrentShoppingList"), [] { SaveCurrentShoppingList(); }},
    {QStringLiteral("SaveEnvironmentSettings"), SaveEnvironmentSettings},
};

QJsonArray ToldMaster()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        const MasterItemRecord &item = State.MasterShoppingList(i);
        told += QJsonObject{{QStringLiteral("Item"), item.Item},
                            {QStringLiteral("Unit"), item.Unit},
                            {QStringLiteral("UnitPrice"), Told(item.UnitPrice)},
                            {QStringLiteral("Store"), item.Store},
                            {QStringLiteral("Taxable"), item.Taxable}};
    }
    return told;
}

QJsonArray ToldCurrent()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        const CurrentItemRecord &item = State.CurrentShoppingList(i);
        told += QJsonObject{{QStringLiteral("Item"), item.Item},
                            {QStringLiteral("Unit"), item.Unit},
                            {QStringLiteral("UnitPrice"), Told(item.UnitPrice)},
                            {QStringLiteral("Store"), item.Store},
                            {QStringLiteral("Quantity"), Told(item.Quantity)},
                            {QStringLiteral("Taxable"), item.Taxable},
                            {QStringLiteral("CouponValue"), Told(item.CouponValue)},
                            {QStringLiteral("FullPrice"), Told(item.FullPrice)}};
    }
    return told;
}

const QMap<QString, QJsonArray (*)()> Lists{
    {QStringLiteral("creditors"), ToldCreditors},
    {QStringLiteral("regulars"), ToldRegulars},
    {QStringLiteral("extras"), [] { return ToldExtras(); }},
    {QStringLiteral("projects"), ToldProjects},
    {QStringLiteral("master"), ToldMaster},
    {QStringLiteral("current"), ToldCurrent},
};

/// Which list and which count a loader fills.
const QMap<QString, QPair<QString, qint16 SharedState::*>> Filled{
    {QStringLiteral("InputCreditors"), {QStringLiteral("creditors"), &SharedState::NumberOfCreditors}},
    {QStringLiteral("InputRegulars"), {QStringLiteral("regulars"), &SharedState::NumberOfRegulars}},
    {QStringLiteral("InputPayPeriods"), {QStringLiteral("extras"), &SharedState::NumberOfExtraPayPeriods}},
    {QStringLiteral("InputProjects"), {QStringLiteral("projects"), &SharedState::NumberOfProjects}},
    {QStringLiteral("InputMasterShoppingList"), {QStringLiteral("master"), &SharedState::NumberOfMasterItems}},
    {QStringLiteral("InputCurrentShoppingList"), {QStringLiteral("current"), &SharedState::NumberOfCurrentItems}},
};

QJsonObject ToldSettings()
{
    return {{QStringLiteral("ForecastPeriods"), State.ForecastPeriods},
            {QStringLiteral("PaycheckAmount"), Told(State.PaycheckAmount)},
            {QStringLiteral("PayFrequency"), State.PayFrequency},
            {QStringLiteral("FirstPayDate"), State.FirstPayDate},
            {QStringLiteral("SecondPayDate"), State.SecondPayDate},
            {QStringLiteral("MonthEndPay"), State.MonthEndPay},
            {QStringLiteral("SalesTax"), Told(State.SalesTax)},
            {QStringLiteral("CurrentStoreFile"), State.CurrentStoreFile},
            {QStringLiteral("AverageNetPercentage"), Told(State.AverageNetPercentage)}};
}

void LayFiles(const QJsonObject &files, const QStringList &known, RecordingDesk &desk)
{
    for (const QString &name : known)
        if (!files.contains(name))
            desk.RemoveFile(name);
    for (auto file = files.begin(); file != files.end(); ++file)
        desk.WriteFile(file.key(), file.value().toString().toUtf8());
}

QJsonValue ToldFile(const QString &name, const RecordingDesk &desk)
{
    const QByteArray text = desk.ReadFile(name);
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(QString::fromUtf8(text));
}

} // namespace

QJsonValue RunFilesCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QString kind = input[u"kind"].toString();
    desk.LayHousehold(); // for the tutor's file
    desk.RemoveFile(QStringLiteral("stores\\untitled.lst"));
    const QStringList known{QStringLiteral("creditor.txt"), QStringLiteral("environm.ini"),
                            QStringLiteral("extra.txt"),    QStringLiteral("mastshop.txt"),
                            QStringLiteral("projects.txt"), QStringLiteral("regulars.txt")};
    LayFiles(input[u"files"].toObject(), known, desk);
    InitializeVariables();
    if (kind == QLatin1String("startup")) {
        QJsonObject lists;
        for (auto list = Lists.begin(); list != Lists.end(); ++list)
            lists[list.key()] = list.value()();
        return QJsonObject{{QStringLiteral("settings"), ToldSettings()},
                           {QStringLiteral("lists"), lists},
                           {QStringLiteral("messages"), ToldMessages(desk)},
                           {QStringLiteral("aborted"), State.InitializingVariables},
                           {QStringLiteral("calculator_entry_disabled"), State.MathCalculatorMissing}};
    }
    ToldMessages(desk);
    const QString routine = input[u"routine"].toString();
    if (kind == QLatin1String("reload")) {
        const QJsonObject then = input[u"files_then"].toObject();
        LayFiles(then, input[u"files"].toObject().keys() + known, desk);
        Routines[routine]();
        const auto [list, count] = Filled[routine];
        return QJsonObject{{QStringLiteral("messages"), ToldMessages(desk)},
                           {QStringLiteral("count"), State.*count},
                           {QStringLiteral("list"), Lists[list]()}};
    }
    if (kind == QLatin1String("save")) {
        const QString file = input[u"file"].toString();
        if (input[u"removed_before"].toBool())
            desk.RemoveFile(file);
        Routines[routine]();
        return QJsonObject{{QStringLiteral("messages"), ToldMessages(desk)},
                           {QStringLiteral("text"), ToldFile(file, desk)}};
    }
    if (kind == QLatin1String("initialize")) {
        desk.RemoveFile(input[u"removed_before"].toString());
        InitializeFiles();
        QJsonObject files;
        for (const QString &name : known)
            files[name] = ToldFile(name, desk);
        return QJsonObject{{QStringLiteral("messages"), ToldMessages(desk)}, {QStringLiteral("files"), files}};
    }
    return QStringLiteral("unknown kind ") + kind;
}
