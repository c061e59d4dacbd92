// The edits of the creditors and the regular items: what is refused, the order by due day, the deletion by mark.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "commitments/Creditors.h"
#include "commitments/Regulars.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(int amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

/// Creditors named A, B, C ... with these due days; each one's amount is its place.
void TakeCreditors(const QList<int> &dueDays)
{
    State.NumberOfCreditors = qint16(dueDays.size());
    State.Creditors.Redim(int(dueDays.size()));
    for (int i = 0; i < dueDays.size(); ++i)
        State.Creditors(i + 1) = {QString(QChar(u'A' + i)), qint16(dueDays[i]), Dollars(i + 1)};
}

/// "A5 B7": names and due days in order.
QString Creditors()
{
    QStringList names;
    for (int i = 1; i <= State.NumberOfCreditors; ++i)
        names += State.Creditors(i).CreditorName + QString::number(State.Creditors(i).CreditorDueDate);
    return names.join(u' ');
}

void TakeRegulars(const QStringList &items)
{
    State.NumberOfRegulars = qint16(items.size());
    State.Regulars.Redim(int(items.size()));
    for (int i = 0; i < items.size(); ++i)
        State.Regulars(i + 1) = {items[i], Dollars(i + 1)};
}

QString RegularItems()
{
    QStringList names;
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        names += State.Regulars(i).RegularItem;
    return names.join(u' ');
}

} // namespace

class tst_creditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnEntryOfACreditor_data()
    {
        QTest::addColumn<QString>("dueDate");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("creditor");
        QTest::addColumn<QString>("focus"); // empty: it passes
        QTest::newRow("day 28") << u"28"_s << u"40"_s << u"Rent"_s << QString();
        QTest::newRow("day 1") << u"1"_s << u"40"_s << u"Rent"_s << QString();
        QTest::newRow("day 29") << u"29"_s << u"40"_s << u"Rent"_s << u"txtCreditorDueDate"_s;
        QTest::newRow("day 0") << u"0"_s << u"40"_s << u"Rent"_s << u"txtCreditorDueDate"_s;
        QTest::newRow("a negative day") << u"-3"_s << u"40"_s << u"Rent"_s << u"txtCreditorDueDate"_s;
        QTest::newRow("letters for a day") << u"abc"_s << u"40"_s << u"Rent"_s << u"txtCreditorDueDate"_s;
        QTest::newRow("a normalised amount") << u"5"_s << u"$1,250.00"_s << u"Rent"_s << QString();
        QTest::newRow("a negative amount") << u"5"_s << u"($40.00)"_s << u"Rent"_s << QString();
        QTest::newRow("no amount") << u"5"_s << QString() << u"Rent"_s << u"txtCreditorAmount"_s;
        QTest::newRow("no name leads to the amount") << u"5"_s << u"40"_s << QString() << u"txtCreditorAmount"_s;
        QTest::newRow("a blank is a name") << u"5"_s << u"40"_s << u" "_s << QString();
    }
    void AnEntryOfACreditor()
    {
        QFETCH(QString, dueDate);
        QFETCH(QString, amount);
        QFETCH(QString, creditor);
        QFETCH(QString, focus);
        const auto refusal = ValidateCreditorEntry({dueDate, amount, creditor});
        QCOMPARE(refusal ? refusal->Focus : QString(), focus);
    }

    void Sorting_data()
    {
        QTest::addColumn<QList<int>>("dueDays");
        QTest::addColumn<QString>("sorted");
        QTest::newRow("none") << QList<int>{} << QString();
        QTest::newRow("ascending") << QList<int>{20, 5, 12} << u"B5 C12 A20"_s;
        QTest::newRow("the same day keeps its order") << QList<int>{5, 20, 5, 1, 5} << u"D1 A5 C5 E5 B20"_s;
        QTest::newRow("98 survives") << QList<int>{98, 3} << u"B3 A98"_s;
        // 99 is the mark of a taken record: when all others are taken, the first marked one is found again and again.
        QTest::newRow("99 is lost") << QList<int>{7, 99, 3} << u"C3 A7 A99"_s;
        QTest::newRow("99 in front is found") << QList<int>{99, 7, 3} << u"C3 B7 A99"_s;
        QTest::newRow("beyond 99 is lost") << QList<int>{7, 120, 3} << u"C3 A7 A99"_s;
    }
    void Sorting()
    {
        QFETCH(QList<int>, dueDays);
        QFETCH(QString, sorted);
        FakeDesk desk;
        TakeCreditors(dueDays);
        SortCreditors();
        QCOMPARE(Creditors(), sorted);
    }

    void SortingTakesTheAmountsAlong()
    {
        FakeDesk desk;
        TakeCreditors({20, 5});
        SortCreditors();
        QCOMPARE(State.Creditors(1).CreditorAmount, Dollars(2));
        QCOMPARE(State.Creditors(2).CreditorAmount, Dollars(1));
    }

    void AChangedCreditorGoesByItsPlaceBeforeTheSort_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("sorted");
        QTest::newRow("from the front") << 1 << u"X5 B5 C9"_s;
        QTest::newRow("from the end") << 3 << u"A1 B5 X5"_s;
    }
    void AChangedCreditorGoesByItsPlaceBeforeTheSort()
    {
        QFETCH(int, index);
        QFETCH(QString, sorted);
        FakeDesk desk;
        TakeCreditors({1, 5, 9});
        CreditorRecord changed{u"X"_s, 5, Dollars(7)};
        ChangeCreditor(index, changed);
        SortCreditors();
        QCOMPARE(Creditors(), sorted);
    }

    void ADayBeyond28IsGuardedWithABeep_data()
    {
        QTest::addColumn<int>("day");
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("beeps");
        QTest::newRow("28 passes") << 28 << 28 << 0;
        QTest::newRow("29 becomes 28") << 29 << 28 << 1;
    }
    void ADayBeyond28IsGuardedWithABeep()
    {
        QFETCH(int, day);
        QFETCH(int, stored);
        QFETCH(int, beeps);
        FakeDesk desk;
        CreditorRecord added{u"A"_s, qint16(day), Dollars(1)};
        AddCreditor(added);
        QCOMPARE(int(added.CreditorDueDate), stored); // the window shows this
        QCOMPARE(int(State.Creditors(1).CreditorDueDate), stored);
        QCOMPARE(desk.TakeBeep(), beeps == 1);
        CreditorRecord changed{u"B"_s, qint16(day), Dollars(2)};
        ChangeCreditor(1, changed);
        QCOMPARE(int(State.Creditors(1).CreditorDueDate), stored);
        QCOMPARE(desk.TakeBeep(), beeps == 1);
    }

    void NoRecordIsChangedWithoutARow()
    {
        FakeDesk desk;
        TakeCreditors({5, 7});
        CreditorRecord changed{u"X"_s, 1, Dollars(1)};
        QCOMPARE(ErrorOf([&] { ChangeCreditor(0, changed); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(Creditors(), u"A5 B7"_s);
    }

    void Deleting_data()
    {
        QTest::addColumn<QList<int>>("dueDays");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("left");
        QTest::newRow("the first") << QList<int>{1, 2, 3} << 1 << u"B2 C3"_s;
        QTest::newRow("in between") << QList<int>{1, 2, 3} << 2 << u"A1 C3"_s;
        QTest::newRow("the last") << QList<int>{1, 2, 3} << 3 << u"A1 B2"_s;
        QTest::newRow("the only one") << QList<int>{1} << 1 << QString();
    }
    void Deleting()
    {
        QFETCH(QList<int>, dueDays);
        QFETCH(int, index);
        QFETCH(QString, left);
        FakeDesk desk;
        TakeCreditors(dueDays);
        DeleteCreditor(index);
        QCOMPARE(Creditors(), left);
    }

    void TheOnlyCreditorLeavesABlankRecordBehind()
    {
        FakeDesk desk;
        TakeCreditors({5});
        DeleteCreditor(1);
        QCOMPARE(State.NumberOfCreditors, qint16(0));
        QCOMPARE(State.Creditors.Size(), 1);
        QCOMPARE(State.Creditors(1), CreditorRecord());
    }

    void ARecordWithoutANameDisappearsWithTheDeletedOne()
    {
        FakeDesk desk;
        TakeCreditors({1, 2, 3, 4});
        State.Creditors(2).CreditorName.clear();
        DeleteCreditor(1);
        QCOMPARE(Creditors(), u"C3 D4 0"_s); // the count goes down by one only, so a blank record fills the end
    }

    void OfSeveralNoneIsDeletedWithoutARow()
    {
        FakeDesk desk;
        TakeCreditors({5, 7});
        const QString before = Creditors();
        QCOMPARE(ErrorOf([] { DeleteCreditor(0); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(ErrorOf([] { DeleteCreditor(3); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(Creditors(), before);
    }

    void ASingleOneGoesAlsoWithoutARow()
    {
        FakeDesk desk;
        TakeCreditors({5});
        DeleteCreditor(0);
        QCOMPARE(State.NumberOfCreditors, qint16(0));
        QCOMPARE(State.Creditors.Size(), 1);
        QCOMPARE(State.Creditors(1), CreditorRecord());
    }

    void AnEntryOfARegularItem_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("focus");
        QTest::newRow("nothing is an amount") << u"0"_s << u"Bus"_s << QString();
        QTest::newRow("a negative amount") << u"-4"_s << u"Bus"_s << QString();
        QTest::newRow("letters") << u"x"_s << u"Bus"_s << u"txtRegularAmount"_s;
        QTest::newRow("no description") << u"4"_s << QString() << u"txtRegularItem"_s;
    }
    void AnEntryOfARegularItem()
    {
        QFETCH(QString, amount);
        QFETCH(QString, item);
        QFETCH(QString, focus);
        const auto refusal = ValidateRegularEntry({amount, item});
        QCOMPARE(refusal ? refusal->Focus : QString(), focus);
    }

    void RegularItemsKeepTheOrderOfEntry()
    {
        FakeDesk desk;
        for (const QString &item : {u"Zoo"_s, u"Bus"_s, u"Milk"_s})
            AddRegular({item, Dollars(1)});
        ChangeRegular(2, {u"Apples"_s, Dollars(2)});
        QCOMPARE(RegularItems(), u"Zoo Apples Milk"_s);
        QCOMPARE(State.Regulars(2).RegularAmount, Dollars(2));
        QCOMPARE(ErrorOf([] { ChangeRegular(0, {}); }), int(RuntimeError::SubscriptOutOfRange));
    }

    void DeletingRegularItems_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("left");
        QTest::newRow("in between") << QStringList{u"A"_s, u"B"_s, u"C"_s} << 2 << u"A C"_s;
        QTest::newRow("the only one") << QStringList{u"A"_s} << 1 << QString();
        QTest::newRow("one without a description goes, too") << QStringList{QString(), u"B"_s, u"C"_s} << 2 << u"C "_s;
    }
    void DeletingRegularItems()
    {
        QFETCH(QStringList, items);
        QFETCH(int, index);
        QFETCH(QString, left);
        FakeDesk desk;
        TakeRegulars(items);
        DeleteRegular(index);
        QCOMPARE(RegularItems(), left);
        QCOMPARE(int(State.NumberOfRegulars), int(items.size()) - 1);
    }

    void OfSeveralRegularItemsNoneIsDeletedWithoutARow()
    {
        FakeDesk desk;
        TakeRegulars({u"A"_s, u"B"_s});
        QCOMPARE(ErrorOf([] { DeleteRegular(0); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(RegularItems(), u"A B"_s);
    }

    void ASingleRegularItemGoesAlsoWithoutARow()
    {
        FakeDesk desk;
        TakeRegulars({u"A"_s});
        DeleteRegular(0);
        QCOMPARE(State.NumberOfRegulars, qint16(0));
        QCOMPARE(State.Regulars.Size(), 0);
    }
};

REGISTER_TEST(tst_creditors)
#include "tst_creditors.moc"
