// The share of gross pay that is paid out, from two paychecks, and the question about it.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "foundation/State.h"
#include "income/AverageNet.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency TenThousandths(qint64 count)
{
    return Currency::FromTenThousandths(count);
}

} // namespace

class tst_averagenet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMeanOfTwoShares_data()
    {
        QTest::addColumn<QString>("firstGross");
        QTest::addColumn<QString>("firstNet");
        QTest::addColumn<QString>("secondGross");
        QTest::addColumn<QString>("secondNet");
        QTest::addColumn<float>("first");
        QTest::addColumn<float>("second");
        QTest::addColumn<float>("mean");
        const auto row = [](const char *name, const QString &firstGross, const QString &firstNet,
                            const QString &secondGross, const QString &secondNet, float first, float second,
                            float mean) {
            QTest::newRow(name) << firstGross << firstNet << secondGross << secondNet << first << second << mean;
        };
        row("two like paychecks", u"1000"_s, u"850"_s, u"1000"_s, u"850"_s, 0.85F, 0.85F, 0.85F);
        row("a small one counts as much as a large one", u"$100.00"_s, u"$50.00"_s, u"$10,000.00"_s, u"$9,000.00"_s,
            0.5F, 0.9F, 0.7F);
        row("nothing of nothing is nothing", u"0"_s, u"0"_s, u"1000"_s, u"850"_s, 0, 0.85F, 0.425F);
        row("no gross counts as a cent", u"0"_s, u"100"_s, u"0.00"_s, u"100"_s, 10000, 10000, 10000);
        row("a ten-thousandth is not nothing", u"0.0001"_s, u"0.0001"_s, u"1"_s, u"1"_s, 1, 1, 1);
        row("as text it may be less", u"0.00004"_s, u"0.01"_s, u"1"_s, u"1"_s, 1, 1, 1);
        row("more net than gross is accepted", u"100"_s, u"110"_s, u"100"_s, u"110"_s, 1.1F, 1.1F, 1.1F);
        row("less than nothing, too", u"100"_s, u"(50)"_s, u"-100"_s, u"50"_s, -0.5F, -0.5F, -0.5F);
    }
    void TheMeanOfTwoShares()
    {
        QFETCH(QString, firstGross);
        QFETCH(QString, firstNet);
        QFETCH(QString, secondGross);
        QFETCH(QString, secondNet);
        QFETCH(float, first);
        QFETCH(float, second);
        QFETCH(float, mean);
        FakeDesk desk;
        CalculateAverageNet({firstGross, firstNet, secondGross, secondNet});
        QCOMPARE(PlainText(Income.FirstCheckPercentage), PlainText(first));
        QCOMPARE(PlainText(Income.SecondCheckPercentage), PlainText(second));
        QCOMPARE(PlainText(State.AverageNetPercentage), PlainText(mean));
    }

    void TheAmountsAreKept()
    {
        FakeDesk desk;
        CalculateAverageNet({u"0"_s, u"12.34"_s, u"$1,000.00"_s, u"900"_s});
        QCOMPARE(Income.FirstCheckGross, TenThousandths(100)); // the cent
        QCOMPARE(Income.FirstCheckNet, TenThousandths(123400));
        QCOMPARE(Income.SecondCheckGross, TenThousandths(10000000));
        QCOMPARE(Income.SecondCheckNet, TenThousandths(9000000));
    }

    void AnErrorChangesNothing_data()
    {
        QTest::addColumn<int>("box");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("error");
        for (int box = 0; box < 4; ++box) {
            QTest::addRow("box %d, no number", box) << box << u"ten"_s << 13;
            QTest::addRow("box %d, beyond the range", box) << box << u"1e15"_s << 6;
        }
    }
    void AnErrorChangesNothing()
    {
        QFETCH(int, box);
        QFETCH(QString, text);
        QFETCH(int, error);
        FakeDesk desk;
        State.AverageNetPercentage = 0.9F;
        Income.FirstCheckGross = Income.SecondCheckNet = TenThousandths(7);
        std::array<QString, 4> texts{u"1"_s, u"2"_s, u"3"_s, u"4"_s};
        texts[std::size_t(box)] = text;
        QCOMPARE(ErrorOf([&] { CalculateAverageNet({texts[0], texts[1], texts[2], texts[3]}); }), error);
        QCOMPARE(State.AverageNetPercentage, 0.9F);
        QCOMPARE(Income.FirstCheckGross, TenThousandths(7));
        QCOMPARE(Income.SecondCheckNet, TenThousandths(7));
    }

    void TheQuestionTellsThePerCent_data()
    {
        QTest::addColumn<float>("percentage");
        QTest::addColumn<QString>("question");
        const QString question = u"Do you wish to save %1% as the new Average Net Percentage?"_s;
        QTest::newRow("two blanks") << 0.85F << question.arg(u" 85"_s);
        QTest::newRow("a fraction") << 0.425F << question.arg(u" 42.5"_s);
        QTest::newRow("less than one per cent") << 0.005F << question.arg(u" .5"_s);
        QTest::newRow("nothing") << 0.F << question.arg(u" 0"_s);
        QTest::newRow("one blank before a sign") << -0.5F << question.arg(u"-50"_s);
        QTest::newRow("a very large one") << 10000.F << question.arg(u" 1000000"_s);
        QTest::newRow("seven digits") << 0.49923325F << question.arg(u" 49.92332"_s);
    }
    void TheQuestionTellsThePerCent()
    {
        QFETCH(float, percentage);
        QFETCH(QString, question);
        FakeDesk desk;
        State.AverageNetPercentage = percentage;
        QCOMPARE(AverageNetQuestion(), question);
    }
};

REGISTER_TEST(tst_averagenet)
#include "tst_averagenet.moc"
