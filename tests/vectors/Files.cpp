#include "Cases.h"

#include "RecordingDesk.h"
#include "foundation/BudgetFiles.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StartAndEnd.h"

#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

const QMap<QString, void (*)()> Routines{
    {u"InputCreditors"_s, InputCreditors},
    {u"InputRegulars"_s, InputRegulars},
    {u"InputPayPeriods"_s, InputPayPeriods},
    {u"InputProjects"_s, InputProjects},
    {u"InputMasterShoppingList"_s, InputMasterShoppingList},
    {u"InputCurrentShoppingList"_s, InputCurrentShoppingList},
    {u"SaveCreditors"_s, SaveCreditors},
    {u"SaveRegulars"_s, SaveRegulars},
    {u"SavePayPeriods"_s, SavePayPeriods},
    {u"SaveProjects"_s, SaveProjects},
    {u"SaveMasterShoppingList"_s, [] { SaveMasterShoppingList(); }},
    {u"SaveCurrentShoppingList"_s, [] { SaveCurrentShoppingList(); }},
    {u"SaveEnvironmentSettings"_s, SaveEnvironmentSettings},
};

QJsonArray ToldMaster()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        const MasterItemRecord &item = State.MasterShoppingList(i);
        told += QJsonObject{{u"Item"_s, item.Item},
                            {u"Unit"_s, item.Unit},
                            {u"UnitPrice"_s, Told(item.UnitPrice)},
                            {u"Store"_s, item.Store},
                            {u"Taxable"_s, item.Taxable}};
    }
    return told;
}

QJsonArray ToldCurrent()
{
    QJsonArray told;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        const CurrentItemRecord &item = State.CurrentShoppingList(i);
        told += QJsonObject{{u"Item"_s, item.Item},
                            {u"Unit"_s, item.Unit},
                            {u"UnitPrice"_s, Told(item.UnitPrice)},
                            {u"Store"_s, item.Store},
                            {u"Quantity"_s, Told(item.Quantity)},
                            {u"Taxable"_s, item.Taxable},
                            {u"CouponValue"_s, Told(item.CouponValue)},
                            {u"FullPrice"_s, Told(item.FullPrice)}};
    }
    return told;
}

const QMap<QString, QJsonArray (*)()> Lists{
    {u"creditors"_s, ToldCreditors}, {u"regulars"_s, ToldRegulars}, {u"extras"_s, [] { return ToldExtras(); }},
    {u"projects"_s, ToldProjects},   {u"master"_s, ToldMaster},     {u"current"_s, ToldCurrent},
};

/// Which list and which count a loader fills.
const QMap<QString, QPair<QString, qint16 SharedState::*>> Filled{
    {u"InputCreditors"_s, {u"creditors"_s, &SharedState::NumberOfCreditors}},
    {u"InputRegulars"_s, {u"regulars"_s, &SharedState::NumberOfRegulars}},
    {u"InputPayPeriods"_s, {u"extras"_s, &SharedState::NumberOfExtraPayPeriods}},
    {u"InputProjects"_s, {u"projects"_s, &SharedState::NumberOfProjects}},
    {u"InputMasterShoppingList"_s, {u"master"_s, &SharedState::NumberOfMasterItems}},
    {u"InputCurrentShoppingList"_s, {u"current"_s, &SharedState::NumberOfCurrentItems}},
};

QJsonObject ToldSettings()
{
    return {{u"ForecastPeriods"_s, State.ForecastPeriods},
            {u"PaycheckAmount"_s, Told(State.PaycheckAmount)},
            {u"PayFrequency"_s, State.PayFrequency},
            {u"FirstPayDate"_s, State.FirstPayDate},
            {u"SecondPayDate"_s, State.SecondPayDate},
            {u"MonthEndPay"_s, State.MonthEndPay},
            {u"SalesTax"_s, Told(State.SalesTax)},
            {u"CurrentStoreFile"_s, State.CurrentStoreFile},
            {u"AverageNetPercentage"_s, Told(State.AverageNetPercentage)}};
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
    desk.RemoveFile(u"stores\\untitled.lst"_s);
    const QStringList known{u"creditor.txt"_s, u"environm.ini"_s, u"extra.txt"_s,
                            u"mastshop.txt"_s, u"projects.txt"_s, u"regulars.txt"_s};
    LayFiles(input[u"files"].toObject(), known, desk);
    InitializeVariables();
    if (kind == QLatin1String("startup")) {
        QJsonObject lists;
        for (auto list = Lists.begin(); list != Lists.end(); ++list)
            lists[list.key()] = list.value()();
        return QJsonObject{{u"settings"_s, ToldSettings()},
                           {u"lists"_s, lists},
                           {u"messages"_s, ToldMessages(desk)},
                           {u"aborted"_s, State.InitializingVariables},
                           {u"calculator_entry_disabled"_s, State.MathCalculatorMissing}};
    }
    ToldMessages(desk);
    const QString routine = input[u"routine"].toString();
    if (kind == QLatin1String("reload")) {
        const QJsonObject then = input[u"files_then"].toObject();
        LayFiles(then, input[u"files"].toObject().keys() + known, desk);
        Routines[routine]();
        const auto [list, count] = Filled[routine];
        return QJsonObject{{u"messages"_s, ToldMessages(desk)}, {u"count"_s, State.*count}, {u"list"_s, Lists[list]()}};
    }
    if (kind == QLatin1String("save")) {
        const QString file = input[u"file"].toString();
        if (input[u"removed_before"].toBool())
            desk.RemoveFile(file);
        Routines[routine]();
        return QJsonObject{{u"messages"_s, ToldMessages(desk)}, {u"text"_s, ToldFile(file, desk)}};
    }
    if (kind == QLatin1String("initialize")) {
        desk.RemoveFile(input[u"removed_before"].toString());
        InitializeFiles();
        QJsonObject files;
        for (const QString &name : known)
            files[name] = ToldFile(name, desk);
        return QJsonObject{{u"messages"_s, ToldMessages(desk)}, {u"files"_s, files}};
    }
    return u"unknown kind "_s + kind;
}
