// How a statement stands on the page.
#include "FakeDesk.h"
#include "TestProgram.h"

#include "foundation/Report.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(int amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

const QString Title = u"                         The Corvelle's Tallymere 1.0"_s;

} // namespace

class tst_report : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AmountsEndBeforeTheirColumn()
    {
        FakeDesk desk;
        State.PrintFontName = u"Courier"_s;
        PrintStatement({.Heading = u"OVERHEAD"_s,
                        .Opening = {{u"Income"_s}, {Dollars(1000)}},
                        .Rows = {{{u"Rent"_s}, {Dollars(500)}},
                                 {{u"CREDIT - Gift"_s}, {Dollars(-20)}, StatementRow::Credit},
                                 {.TheKind = StatementRow::Rule},
                                 {{u"Total"_s}, {Dollars(480)}, StatementRow::Total},
                                 {.TheKind = StatementRow::Gap},
                                 {{u"Rest"_s}, {Dollars(520)}, StatementRow::Result}}},
                       AmountPage);
        QCOMPARE(ThePrinter.Font.Name, u"Courier"_s);
        QCOMPARE(ThePrinter.PendingLines(),
                 (QStringList{Title,
                              {},
                              u"                                   OVERHEAD"_s, // (80 - 8) / 2 = 36
                              {},
                              u"              Income                                   $1,000.00"_s,
                              u"              __________________________________________________"_s,
                              {},
                              u"              Rent                                       $500.00"_s,
                              u"              CREDIT - Gift                             ($20.00)"_s,
                              u"              __________________________________________________"_s,
                              {},
                              u"              Total                                      $480.00"_s,
                              {},
                              u"              Rest                                       $520.00"_s}));
        ThePrinter.Reset(); // the document stays open for more
    }

    void ALongLabelMovesTheAmountToTheNextLine_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<QStringList>("lines");
        // $1,234.50 has nine signs: it begins in column 56 and ends in column 64. The label begins in column 15.
        const auto label = [](int length) { return QString(14, u' ') + QString(length, u'r'); };
        QTest::newRow("it ends right beside the amount") << 41 << QStringList{label(41) + u"$1,234.50"_s};
        QTest::newRow("one sign more") << 42 << QStringList{label(42), QString(55, u' ') + u"$1,234.50"_s};
    }
    void ALongLabelMovesTheAmountToTheNextLine()
    {
        QFETCH(int, length);
        FakeDesk desk;
        PrintStatement({.Rows = {{{QString(length, u'r')}, {Currency::FromTenThousandths(12345000)}}}}, AmountPage);
        QTEST(ThePrinter.PendingLines().mid(2), "lines");
        ThePrinter.Reset();
    }

    void ATableHasAColumnForEachAmount()
    {
        FakeDesk desk;
        PrintStatement({.Heading = u"Boat"_s,
                        .Opening = {{u"Pay Period"_s, u"Installment"_s, u"Accumulated"_s}},
                        .Rows = {{{u"May 1, 2004"_s}, {Dollars(-5), Dollars(1200)}, StatementRow::Signed}},
                        .Numbered = true}, // the numbers are for the grid alone
                       TablePage);
        QCOMPARE(ThePrinter.PendingLines(),
                 (QStringList{Title,
                              {},
                              u"                                     Boat"_s, // (80 - 4) / 2 = 38
                              {},
                              u"    Pay Period                       Installment             Accumulated"_s,
                              u"    ______________________________________________________________________"_s,
                              {},
                              u"    May 1, 2004                        ($5.00)                   $1,200.00"_s}));
        ThePrinter.Reset();
    }

    void WithoutAnOpeningThereIsNoHeading()
    {
        FakeDesk desk;
        PrintStatement({.Heading = u"unseen"_s, .Rows = {{{u"Rent"_s}, {Dollars(5)}}}}, AmountPage);
        QCOMPARE(ThePrinter.PendingLines(),
                 (QStringList{Title, {}, u"              Rent                                         $5.00"_s}));
        ThePrinter.Reset();
    }

    void AnEmptyHeadingIsAnEmptyLine()
    {
        FakeDesk desk;
        PrintStatement({.Opening = {{u"Pay Period"_s}}}, TablePage);
        QCOMPARE(ThePrinter.PendingLines().mid(0, 5), (QStringList{Title, {}, {}, {}, u"    Pay Period"_s}));
        ThePrinter.Reset();
    }
};

REGISTER_TEST(tst_report)
#include "tst_report.moc"
