// Arrays that count from 1, and fixed ones: their bounds hold.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/values/OneBased.h"

#include <QtTest>

class TestArrays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ElementsRunFromOneToTheSize()
    {
        OneBased<int> array{10, 20, 30};
        QCOMPARE(array.Size(), 3);
        QCOMPARE(array(1), 10);
        QCOMPARE(array(3), 30);
        array(2) = 21;
        QCOMPARE(std::as_const(array)(2), 21);
        QCOMPARE(std::vector<int>(array.begin(), array.end()), (std::vector<int>{10, 21, 30}));
        QVERIFY(array == (OneBased<int>{10, 21, 30}));
    }

    void AnIndexOutsideIsError9_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("index");
        QTest::newRow("element 0 does not exist") << 3 << 0;
        QTest::newRow("one beyond the last") << 3 << 4;
        QTest::newRow("negative") << 3 << -1;
        QTest::newRow("an array that never got bounds") << 0 << 1;
        QTest::newRow("the least number") << 3 << std::numeric_limits<int>::min();
    }
    void AnIndexOutsideIsError9()
    {
        QFETCH(int, size);
        QFETCH(int, index);
        OneBased<int> array;
        array.Redim(size);
        QCOMPARE(ErrorOf([&] { array(index) = 1; }), 9);
        QCOMPARE(ErrorOf([&] { Q_UNUSED(std::as_const(array)(index)) }), 9);
    }

    void NewBoundsClearTheElements()
    {
        OneBased<int> array{1, 2, 3};
        array.Redim(2);
        QVERIFY(array == (OneBased<int>{0, 0}));
        array.Redim(0);
        QCOMPARE(array.Size(), 0);
    }

    void PreservingKeepsTheElementsThatFit()
    {
        OneBased<int> array{1, 2, 3};
        array.RedimPreserve(4);
        QVERIFY(array == (OneBased<int>{1, 2, 3, 0}));
        array.RedimPreserve(2);
        QVERIFY(array == (OneBased<int>{1, 2}));
    }

    void ANegativeCountIsError9AndChangesNothing()
    {
        OneBased<int> array{1, 2};
        QCOMPARE(ErrorOf([&] { array.Redim(-1); }), 9);
        QCOMPARE(ErrorOf([&] { array.RedimPreserve(-32768); }), 9);
        QVERIFY(array == (OneBased<int>{1, 2}));
    }

    void AFixedArrayRunsFromZeroToItsLastElement()
    {
        FixedArray<int, 200> array;
        QCOMPARE(array(0), 0);
        QCOMPARE(array(200), 0);
        array.At(200) = 7;
        array.At(1) = 5;
        QCOMPARE(array(200), 7);
        QCOMPARE(array(1), 5);
        QCOMPARE(array(199), 0);
    }

    void ReadingAFixedArrayNeverMakesItGrow()
    {
        FixedArray<int, 100> array;
        const int *untouched = &array(0);
        QCOMPARE(array(100), 0);
        QCOMPARE(&array(100), untouched); // one element stands for all that were never written
        array.At(3) = 4;
        QVERIFY(&array(3) != untouched);
        QVERIFY(&array(2) != untouched);
        QCOMPARE(&array(4), untouched);
    }

    void AnIndexOutsideAFixedArrayIsError9_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("one beyond the last") << 201;
        QTest::newRow("negative") << -1;
        QTest::newRow("the least number") << std::numeric_limits<int>::min();
    }
    void AnIndexOutsideAFixedArrayIsError9()
    {
        QFETCH(int, index);
        FixedArray<int, 200> array;
        QCOMPARE(ErrorOf([&] { array.At(index) = 1; }), 9);
        QCOMPARE(ErrorOf([&] { Q_UNUSED(array(index)) }), 9);
    }
};

REGISTER_TEST(TestArrays)
#include "tst_arrays.moc"
