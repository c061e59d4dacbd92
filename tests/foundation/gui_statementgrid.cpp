// How the rows of a statement stand in a grid: inserted or written over what is there, and where colour goes.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/StatementGrid.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(int amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

/// A grid of two rows that holds a heading and one line.
struct StandingGrid : Grid {
    explicit StandingGrid(int columns = 2)
    {
        SetShape(2, columns);
        SetText(0, 0, u"heading"_s);
        SetText(1, 0, u"old"_s);
    }
    QStringList Texts() const
    {
        QStringList rows;
        for (int row = 0; row < Rows(); ++row) {
            QStringList cells;
            for (int column = 0; column < Columns(); ++column)
                cells += Text(row, column) + (Colour(row, column) == GridColour::LightRed    ? u" red"_s
                                              : Colour(row, column) == GridColour::LightBlue ? u" blue"_s
                                                                                             : QString());
            rows += cells.join(u" | "_s);
        }
        return rows;
    }
};

} // namespace

class gui_statementgrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachKindOfRow_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("amount");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("inserted");
        using Row = StatementRow;
        QTest::newRow("an ordinary line is inserted") << int(Row::Ordinary) << 5 << u"line | $5.00"_s << true;
        QTest::newRow("also below 0, in the text colour") << int(Row::Ordinary) << -5 << u"line | ($5.00)"_s << true;
        QTest::newRow("a credit is written over in blue")
            << int(Row::Credit) << -5 << u"line | ($5.00) blue"_s << false;
        QTest::newRow("a credit above 0 too") << int(Row::Credit) << 5 << u"line | $5.00 blue"_s << false;
        QTest::newRow("a signed line is inserted") << int(Row::Signed) << 0 << u"line | $0.00"_s << true;
        QTest::newRow("below 0 it is written over in red")
            << int(Row::Signed) << -5 << u"line | ($5.00) red"_s << false;
        QTest::newRow("a total is written over") << int(Row::Total) << -5 << u"line | ($5.00)"_s << false;
        QTest::newRow("a result is inserted") << int(Row::Result) << 0 << u"line | $0.00"_s << true;
        QTest::newRow("below 0 it is written over, red") << int(Row::Result) << -5 << u"line | ($5.00) red"_s << false;
    }
    void EachKindOfRow()
    {
        QFETCH(int, kind);
        QFETCH(int, amount);
        QFETCH(QString, shown);
        QFETCH(bool, inserted);
        StandingGrid grid;
        ShowRows(grid, {.Rows = {{{u"line"_s}, {Dollars(amount)}, StatementRow::Kind(kind)}}});
        QCOMPARE(grid.Texts().mid(0, 2), (QStringList{u"heading | "_s, shown}));
        QCOMPARE(grid.Texts().contains(u"old | "_s), inserted);
        QCOMPARE(grid.ResultRow(), kind == StatementRow::Result ? 1 : 0);
    }

    void GapsAndRulesAreEmptyRows()
    {
        StandingGrid grid;
        ShowRows(grid, {.Rows = {{.TheKind = StatementRow::Gap}, {{u"a"_s}}, {.TheKind = StatementRow::Rule}}});
        QCOMPARE(grid.Texts(), (QStringList{u"heading | "_s, u" | "_s, u"a | "_s, u" | "_s, u"old | "_s}));
    }

    void ColourDoesNotRunOnBelow()
    {
        StandingGrid grid;
        grid.SetColour(2, 1, GridColour::LightRed); // left there by an earlier statement
        ShowRows(grid, {.Rows = {{{u"gift"_s}, {Dollars(-1)}, StatementRow::Credit}}});
        QCOMPARE(grid.Texts(), (QStringList{u"heading | "_s, u"gift | ($1.00) blue"_s, u" | "_s}));
    }

    void ATotalTakesTheTextColour()
    {
        StandingGrid grid;
        grid.SetColour(1, 1, GridColour::LightRed);
        ShowRows(grid, {.Rows = {{{u"all"_s}, {Dollars(1)}, StatementRow::Total}}});
        QCOMPARE(grid.Texts()[1], u"all | $1.00"_s);
    }

    void EachAmountHasItsOwnColour()
    {
        StandingGrid grid(4);
        ShowRows(grid, {.Rows = {{{u"May"_s, u"1"_s}, {Dollars(-1), Dollars(2)}, StatementRow::Signed}}});
        QCOMPARE(grid.Texts()[1], u"May | 1 | ($1.00) red | $2.00"_s);
    }

    void RowsFollowEachOtherWhetherInsertedOrWrittenOver()
    {
        StandingGrid grid;
        Statement statement{.FirstRow = 2};
        for (const int amount : {1, 2, -3, -4, 5})
            statement.Rows.push_back({{QString::number(amount)}, {Dollars(amount)}, StatementRow::Signed});
        ShowRows(grid, statement);
        QCOMPARE(grid.Texts(), (QStringList{u"heading | "_s, u"old | "_s, u"1 | $1.00"_s, u"2 | $2.00"_s,
                                            u"-3 | ($3.00) red"_s, u"-4 | ($4.00) red"_s, u"5 | $5.00"_s, u" | "_s}));
    }

    void NumbersStandInFront()
    {
        StandingGrid grid(3);
        ShowOpening(grid, {{u"Day"_s, u"Savings"_s}}, true);
        ShowRows(grid, {.Rows = {{{u"May"_s}, {Dollars(1)}}, {{u"June"_s}, {Dollars(-2)}, StatementRow::Signed}},
                        .Numbered = true});
        QCOMPARE(grid.Texts().mid(0, 3),
                 (QStringList{u"No. | Day | Savings"_s, u"1 | May | $1.00"_s, u"2 | June | ($2.00) red"_s}));
        for (int column = 0; column < 3; ++column) {
            QVERIFY(grid.Bold(0, column));
            QVERIFY(!grid.Bold(1, column));
        }
    }

    void MoreCellsThanColumnsAreError9()
    {
        StandingGrid grid;
        bool raised = false;
        try {
            ShowRows(grid, {.Rows = {{{u"a"_s}, {Dollars(1), Dollars(2)}}}});
        } catch (const RuntimeError &error) {
            raised = error.Number == RuntimeError::SubscriptOutOfRange;
        }
        QVERIFY(raised);
    }
};

REGISTER_TEST(gui_statementgrid)
#include "gui_statementgrid.moc"
