// The printed shopping list, line by line.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "foundation/StartAndEnd.h"
#include "shopping/PrintedList.h"
#include "shopping/ShoppingState.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

CurrentItemRecord Line(const QString &item, qint64 price = 10000, float quantity = 1, bool taxable = false,
                       qint64 coupon = 0)
{
    return {item, u"each"_s, Count(price), u"Shop"_s, quantity, taxable, Count(coupon), {}};
}

void TakeLines(const std::vector<CurrentItemRecord> &lines)
{
    State.SalesTax = 0.06F;
    State.CurrentStoreFile = u"weekly.lst"_s;
    State.NumberOfCurrentItems = qint16(lines.size());
    State.CurrentShoppingList.Redim(int(lines.size()));
    std::copy(lines.begin(), lines.end(), State.CurrentShoppingList.begin());
}

/// What is printed of a list, without the title and the name above it and the total below.
QStringList PrintedLines(FakeDesk &desk)
{
    PrintShoppingList();
    const QStringList page = desk.TakePrinted().Lines;
    return page.mid(4, page.size() - 7);
}

const QString Title = u"                         The Corvelle's Tallymere 1.0"_s; // 28 signs in the middle of 80
const QString Rule(70, u'_');

} // namespace

class tst_printedlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AListIsOneDocument()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk, whole"_s, 24900, 2, true, 2500), Line(u"Tea"_s, 30000)});
        PrintShoppingList();
        QCOMPARE(desk.Printed.size(), 1);
        QCOMPARE(desk.TakePrinted().Lines,
                 (QStringList{Title,
                              {},
                              u"                                  WEEKLY.LST"_s,
                              {},
                              u"1) Milk, whole"_s,
                              u"  2 each @ $2.49 each + Tax($0.30) - Coupon($0.25)         $4.88"_s,
                              {},
                              u"2) Tea"_s,
                              u"  1 each @ $3.00 each                                      $3.00"_s,
                              {},
                              Rule,
                              {},
                              u"Total Grocery Bill                                         $7.88"_s}));
    }

    void AnEmptyListHasATotalOfNothing()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s)});
        State.NumberOfCurrentItems = 0; // an empty file leaves the lines in memory
        State.CurrentStoreFile = u"untitled.lst"_s;
        PrintShoppingList();
        QCOMPARE(desk.TakePrinted().Lines,
                 (QStringList{Title,
                              {},
                              u"                                 UNTITLED.LST"_s,
                              {},
                              Rule,
                              {},
                              u"Total Grocery Bill                                         $0.00"_s}));
    }

    void TheArithmetic_data()
    {
        QTest::addColumn<qint64>("price");
        QTest::addColumn<float>("quantity");
        QTest::addColumn<bool>("taxable");
        QTest::addColumn<qint64>("coupon");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *name, qint64 price, float quantity, bool taxable, qint64 coupon,
                            const QString &line) {
            QTest::newRow(name) << price << quantity << taxable << coupon << line;
        };
        row("neither tax nor coupon", 10000, 1, false, 0,
            u"  1 each @ $1.00 each                                      $1.00"_s);
        row("the tax of the whole quantity beside that of one unit", 10000, 2, true, 0,
            u"  2 each @ $1.00 each + Tax($0.12)                         $2.06"_s);
        row("no tax of no quantity beside that of one unit", 20000, 0, true, 0,
            u"  0 each @ $2.00 each + Tax($0.00)                         $0.12"_s);
        row("a broken quantity in plain digits", 10000, 2.5F, false, 0,
            u"  2.5 each @ $1.00 each                                    $2.50"_s);
        row("a large quantity without separators", 10000, 1250, false, 0,
            u"  1250 each @ $1.00 each                               $1,250.00"_s);
        row("a negative coupon as any other", 10000, 1, false, -2500,
            u"  1 each @ $1.00 each - Coupon(($0.25))                    $1.25"_s);
        row("a coupon above the price", 30000, 1, false, 50000,
            u"  1 each @ $3.00 each - Coupon($5.00)                    ($2.00)"_s);
        row("a coupon that shows nothing is one all the same", 10000, 1, false, 1,
            u"  1 each @ $1.00 each - Coupon($0.00)                      $1.00"_s);
    }
    void TheArithmetic()
    {
        FakeDesk desk;
        QFETCH(qint64, price);
        QFETCH(float, quantity);
        QFETCH(bool, taxable);
        QFETCH(qint64, coupon);
        QFETCH(QString, line);
        TakeLines({Line(u"Milk"_s, price, quantity, taxable, coupon)});
        QCOMPARE(PrintedLines(desk), (QStringList{u"1) Milk"_s, line, {}}));
    }

    // A text that goes up to column 59 leaves the amount its place in column 60; one more does not.
    void AnAmountWithoutRoomGoesToTheNextLine_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<QStringList>("lines");
        const auto text = [](int length) { return QString(length - 17, u'u'); };
        QTest::newRow("a blank between") << 58 << QStringList{u"  1 "_s + text(58) + u" @ $1.00 each $1.00"_s};
        QTest::newRow("just room") << 59 << QStringList{u"  1 "_s + text(59) + u" @ $1.00 each$1.00"_s};
        QTest::newRow("none") << 60
                              << QStringList{u"  1 "_s + text(60) + u" @ $1.00 each"_s, QString(59, u' ') + u"$1.00"_s};
    }
    void AnAmountWithoutRoomGoesToTheNextLine()
    {
        FakeDesk desk;
        QFETCH(int, length);
        QFETCH(QStringList, lines);
        TakeLines({Line(u"Milk"_s)});
        State.CurrentShoppingList(1).Unit = QString(length - 17, u'u');
        QCOMPARE(lines.first().indexOf(u" each"_s) + 5, length); // the text is as long as the row says
        QCOMPARE(PrintedLines(desk), QStringList{u"1) Milk"_s} + lines + QStringList{{}});
    }

    void ItemsAreNumberedThrough()
    {
        FakeDesk desk;
        std::vector<CurrentItemRecord> lines(12, Line(u"Milk"_s));
        lines[9].Item = QString(100, u'm'); // as long as it likes
        TakeLines(lines);
        const QStringList printed = PrintedLines(desk);
        QCOMPARE(printed.size(), 36);
        QCOMPARE(printed[0], u"1) Milk"_s);
        QCOMPARE(printed[27], u"10) "_s + QString(100, u'm'));
        QCOMPARE(printed[33], u"12) Milk"_s);
    }

    void TheNameStandsInTheMiddle_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("blanks");
        QTest::newRow("even") << u"ab.lst"_s << 36; // column 37
        QTest::newRow("odd: 36.5 goes to 36") << u"abc.lst"_s << 35;
        QTest::newRow("odd: 37.5 goes to 38") << u"a.lst"_s << 37;
        QTest::newRow("as wide as the page") << QString(80, u'a') << 0;
        QTest::newRow("wider than the page") << QString(100, u'a') << 0;
    }
    void TheNameStandsInTheMiddle()
    {
        FakeDesk desk;
        QFETCH(QString, name);
        QFETCH(int, blanks);
        TakeLines({});
        State.CurrentStoreFile = name;
        PrintShoppingList();
        QCOMPARE(desk.TakePrinted().Lines[2], QString(blanks, u' ') + name.toUpper());
    }

    void PrintingPricesTheListAnew()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s, 10000, 2, true)});
        State.CurrentShoppingList(1).FullPrice = Count(77);
        Shopping.TotalGroceryBill = Count(99);
        PrintShoppingList();
        desk.TakePrinted();
        QCOMPARE(State.CurrentShoppingList(1).FullPrice, Count(20600));
        QCOMPARE(Shopping.TotalGroceryBill, Count(20600));
    }

    void ThePrintSettingsAreApplied()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s)});
        State.PrintFontName = u"Fixed"_s;
        State.PrintFontSize = 11;
        State.PrintFontBold = State.PrintFontItalic = State.PrintFontUnderline = State.PrintFontStrikethru = true;
        State.PrintFontColor = 255;
        PrintShoppingList();
        const PrintJob job = desk.TakePrinted();
        ApplyPrintSettings();
        QCOMPARE(job.Font, ThePrinter.Font);
        QCOMPARE(job.Font.Name, u"Fixed"_s);
        QCOMPARE(job.Name, u"Shopping List"_s);
    }

    void ABillBeyondMoneyPrintsNothing()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s), Line(u"Gold"_s, 10000, 1e30F)});
        QCOMPARE(ErrorOf([] { PrintShoppingList(); }), 6);
        QVERIFY(ThePrinter.PendingLines().isEmpty());
    }
};

REGISTER_TEST(tst_printedlist)
#include "tst_printedlist.moc"
