// The grid: rows put in and written in place, the heading, the colours, and many rows without waiting.
#include "ErrorOf.h"
#include "Palettes.h"
#include "TestProgram.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Theme.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

/// All rows, cells joined by " | ".
QStringList RowsOf(const Grid &grid)
{
    QStringList rows;
    for (int row = 0; row < grid.Rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.Columns(); ++column)
            cells += grid.Text(row, column);
        rows += cells.join(QStringLiteral(" | "));
    }
    return rows;
}

/// What the user sees of it: heading and rows as the view shows them.
QStringList ShownRows(const Grid &grid)
{
    QStringList rows;
    const QAbstractItemModel *model = grid.model();
    for (int row = -1; row < model->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells += row < 0 ? model->headerData(column, Qt::Horizontal).toString()
                             : model->index(row, column).data().toString();
        rows += cells.join(QStringLiteral(" | "));
    }
    return rows;
}

/// Whether any point of the picture has very nearly that colour; the edges of letters are blended.
bool Shows(const QImage &picture, const QColor &colour)
{
    const auto near = [](int one, int other) { return qAbs(one - other) < 40; };
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (const QColor point = picture.pixelColor(x, y); near(point.red(), colour.red()) &&
                                                               near(point.green(), colour.green()) &&
                                                               near(point.blue(), colour.blue()))
                return true;
    return false;
}

void Fill(Grid &grid, int rows)
{
    grid.SetShape(1, 2);
    grid.SetText(0, 0, "Item");
    grid.SetText(0, 1, "Amount");
    for (int row = 1; row <= rows; ++row)
        grid.AddItem(QStringLiteral("item %1\t%2").arg(row).arg(row * 10), row);
}

void Present(Grid &grid)
{
    grid.resize(400, 300);
    grid.show();
    grid.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&grid));
    QCoreApplication::processEvents();
}

/// What of a widget is drawn from now on.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget &widget) { widget.installEventFilter(this); }
    QRegion Region;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            Region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

} // namespace

class gui_grid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rows

    void AnInsertedRowPushesTheRestDown()
    {
        Grid grid;
        Fill(grid, 2);
        grid.AddItem("new\t5", 1);
        QCOMPARE(RowsOf(grid), (QStringList{"Item | Amount", "new | 5", "item 1 | 10", "item 2 | 20"}));
        grid.AddItem("last", 4); // at the row count it appends; cells that are not given are empty
        QCOMPARE(grid.Rows(), 5);
        QCOMPARE(RowsOf(grid).last(), "last | ");
        grid.AddItem("heading\t", 0); // also before the heading, which becomes a row then
        QCOMPARE(RowsOf(grid).mid(0, 2), (QStringList{"heading | ", "Item | Amount"}));
    }

    void WhatIsOutsideIsErrorNine_data()
    {
        QTest::addColumn<int>("what");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("error");
        const int write = 0, insert = 1, read = 2, colour = 3, bold = 4, width = 5, align = 6;
        QTest::newRow("writing in the last column") << write << 1 << 1 << 0;
        QTest::newRow("writing right of the last column") << write << 1 << 2 << 9;
        QTest::newRow("writing left of the first column") << write << 1 << -1 << 9;
        QTest::newRow("writing above the heading") << write << -1 << 0 << 9;
        QTest::newRow("writing below the last row") << write << 9 << 0 << 0;
        QTest::newRow("writing below the last row, right of the last column") << write << 9 << 2 << 9;
        QTest::newRow("inserting at the row count") << insert << 3 << 0 << 0;
        QTest::newRow("inserting beyond the row count") << insert << 4 << 0 << 9;
        QTest::newRow("inserting above the heading") << insert << -1 << 0 << 9;
        QTest::newRow("inserting more cells than columns") << insert << 1 << 2 << 9;
        QTest::newRow("reading below the last row") << read << 3 << 0 << 9;
        QTest::newRow("reading right of the last column") << read << 1 << 2 << 9;
        QTest::newRow("colouring right of the last column") << colour << 1 << 2 << 9;
        QTest::newRow("bold right of the last column") << bold << 1 << 2 << 9;
        QTest::newRow("a width right of the last column") << width << 0 << 2 << 9;
        QTest::newRow("an alignment right of the last column") << align << 0 << 2 << 9;
    }
    void WhatIsOutsideIsErrorNine()
    {
        QFETCH(int, what);
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(int, error);
        Grid grid;
        Fill(grid, 2);
        const QStringList before = RowsOf(grid);
        const int raised = ErrorOf([&] {
            switch (what) {
            case 0: grid.SetText(row, column, "x"); break;
            case 1: grid.AddItem(QString(column, QLatin1Char('\t')), row); break;
            case 2: grid.Text(row, column); break;
            case 3: grid.SetColour(row, column, GridColour::LightRed); break;
            case 4: grid.SetBold(row, column, true); break;
            case 5: grid.SetColumnWidth(column, 100); break;
            default: grid.SetRightAligned(column, true);
            }
        });
        QCOMPARE(raised, error);
        if (error != 0)
            QCOMPARE(RowsOf(grid), before); // and nothing has changed
    }

    void WritingBelowTheLastRowMakesTheRows()
    {
        Grid grid;
        Fill(grid, 1);
        grid.SetText(4, 1, "far");
        QCOMPARE(RowsOf(grid), (QStringList{"Item | Amount", "item 1 | 10", " | ", " | ", " | far"}));
    }

    void WritingInPlaceKeepsTheRowCount()
    {
        Grid grid;
        Fill(grid, 2);
        grid.SetText(1, 1, "99");
        QCOMPARE(RowsOf(grid), (QStringList{"Item | Amount", "item 1 | 99", "item 2 | 20"}));
    }

    void ClearingKeepsHeadingAndRows()
    {
        Grid grid;
        Fill(grid, 2);
        grid.ClearBelowHeading();
        QCOMPARE(RowsOf(grid), (QStringList{"Item | Amount", " | ", " | "}));
        grid.AddItem("again\t1", 1);
        QCOMPARE(grid.Rows(), 4);
    }

    // What the user sees

    void TheViewShowsWhatTheGridHolds()
    {
        Grid grid;
        Fill(grid, 2);
        Present(grid);
        QCOMPARE(ShownRows(grid), RowsOf(grid));
        grid.SetText(1, 0, "changed");
        grid.SetText(0, 1, "Price");
        QCoreApplication::processEvents();
        QCOMPARE(ShownRows(grid), (QStringList{"Item | Price", "changed | 10", "item 2 | 20"}));
        grid.AddItem("new\t5", 1);
        grid.SetText(5, 0, "far");
        QCoreApplication::processEvents();
        QCOMPARE(ShownRows(grid), RowsOf(grid));
        grid.SetShape(1, 3);
        grid.SetText(0, 2, "third");
        QCoreApplication::processEvents();
        QCOMPARE(ShownRows(grid), QStringList{" |  | third"});
    }

    void TheHeadingStaysWhileTheRestScrolls()
    {
        Grid grid;
        Fill(grid, 500);
        Present(grid);
        const QImage heading = grid.horizontalHeader()->grab().toImage();
        const QImage rows = grid.viewport()->grab().toImage();
        grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->maximum());
        QCoreApplication::processEvents();
        QVERIFY(grid.horizontalHeader()->isVisible());
        QCOMPARE(grid.horizontalHeader()->grab().toImage(), heading);
        QVERIFY(grid.viewport()->grab().toImage() != rows);
        QCOMPARE(grid.model()->headerData(0, Qt::Horizontal).toString(), "Item");
    }

    void HeadingAndCellsAreBoldAndAlignedAsTold()
    {
        Grid grid;
        Fill(grid, 1);
        grid.SetRightAligned(1, true);
        grid.SetBold(0, 0, true);
        grid.SetBold(1, 1, true);
        Present(grid);
        const QAbstractItemModel *model = grid.model();
        const auto headingFont = [&](int column) {
            return model->headerData(column, Qt::Horizontal, Qt::FontRole).value<QFont>();
        };
        QVERIFY(headingFont(0).bold());
        QVERIFY(!headingFont(1).bold());
        QVERIFY(!model->index(0, 0).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(model->index(0, 1).data(Qt::FontRole).value<QFont>().bold());
        const auto alignment = [](const QVariant &value) { return Qt::Alignment(value.toInt()); };
        QCOMPARE(alignment(model->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole)),
                 Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(alignment(model->index(0, 1).data(Qt::TextAlignmentRole)), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(alignment(model->index(0, 0).data(Qt::TextAlignmentRole)), Qt::AlignLeft | Qt::AlignVCenter);
        QVERIFY(grid.RightAligned(1));
        QVERIFY(!grid.RightAligned(0));
    }

    void ColoursCanBeRead_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<int>("row");
        QTest::newRow("row, light desktop") << false << 1;
        QTest::newRow("row, dark desktop") << true << 1;
        QTest::newRow("heading, light desktop") << false << 0;
        QTest::newRow("heading, dark desktop") << true << 0;
    }
    void ColoursCanBeRead()
    {
        QFETCH(bool, dark);
        QFETCH(int, row);
        Grid grid;
        Fill(grid, 1);
        grid.setPalette(dark ? DarkPalette() : LightPalette());
        grid.SetColour(row, 0, GridColour::LightBlue);
        grid.SetColour(row, 1, GridColour::LightRed);
        Present(grid);
        const auto colour = [&](int column) {
            return row == 0 ? grid.model()->headerData(column, Qt::Horizontal, Qt::ForegroundRole).value<QColor>()
                            : grid.model()->index(row - 1, column).data(Qt::ForegroundRole).value<QColor>();
        };
        const QColor background = grid.palette().color(QPalette::Base);
        const QImage picture = row == 0 ? grid.horizontalHeader()->viewport()->grab().toImage()
                                        : grid.viewport()->grab(grid.visualRect(grid.model()->index(0, 1))).toImage();
        QVERIFY(Shows(picture, colour(1)));
        QVERIFY(Contrast(colour(0), background) >= 4.5);
        QVERIFY(Contrast(colour(1), background) >= 4.5);
        QVERIFY(colour(0).blue() > colour(0).red());
        QVERIFY(colour(1).red() > colour(1).blue());
        QCOMPARE(grid.Colour(row, 0), GridColour::LightBlue);
        grid.SetColour(row, 0, GridColour::Text); // the text colour again
        QVERIFY(!colour(0).isValid());
    }

    void ColumnsAreLaidOutOnce()
    {
        Grid grid;
        grid.SetColumns({{"Pay Period", 1750}, {"Amount", 1447, Qt::AlignRight}}, 3);
        QCOMPARE(RowsOf(grid), (QStringList{"Pay Period | Amount", " | ", " | "}));
        for (const int column : {0, 1}) {
            QVERIFY(grid.Bold(0, column));
            QVERIFY(!grid.Bold(1, column));
        }
        QCOMPARE(grid.ColumnWidth(0), 1750);
        QCOMPARE(grid.ColumnWidth(1), 1447);
        QVERIFY(!grid.RightAligned(0));
        QVERIFY(grid.RightAligned(1));
        grid.SetColumns({{"Only"}}); // another lay-out replaces it
        QCOMPARE(RowsOf(grid), (QStringList{"Only"}));
        QCOMPARE(grid.ColumnWidth(0), 960);
        QVERIFY(!grid.RightAligned(0));
    }

    void AFigureEndsWhereItsHeadingEnds()
    {
        Grid grid;
        grid.SetColumns({{"Left", 1500}, {"Right", 1500, Qt::AlignRight}}, 1);
        grid.AddItem("Left\tRight", 1);
        grid.SetBold(1, 0, true); // the same letters as in the heading
        grid.SetBold(1, 1, true);
        grid.setFocusPolicy(Qt::NoFocus); // no mark over the texts
        Present(grid);
        // The first and the last column of pixels with ink between two borders of columns.
        const auto ink = [](const QImage &picture, int from, int to) {
            int first = to, last = from;
            for (int x = from; x < to; ++x)
                for (int y = 2; y < picture.height() - 2; ++y)
                    if (Contrast(picture.pixelColor(x, y), picture.pixelColor(from + 1, 2)) > 2) {
                        first = qMin(first, x);
                        last = x;
                    }
            return std::pair(first, last);
        };
        const QImage heading = grid.horizontalHeader()->viewport()->grab().toImage();
        const QImage row = grid.viewport()->grab(QRect(0, 0, grid.viewport()->width(), grid.rowHeight(0))).toImage();
        const int border = grid.horizontalHeader()->sectionSize(0);
        QCOMPARE(ink(heading, 0, border).first, ink(row, 0, border).first);
        QCOMPARE(ink(heading, border, heading.width()).second, ink(row, border, row.width()).second);
        QVERIFY(ink(row, border, row.width()).first > border + 40); // and it stands on the right
    }

    void WidthsAreSharedInProportion()
    {
        Grid grid;
        Fill(grid, 1);
        grid.SetColumnWidth(0, 2480);
        grid.SetColumnWidth(1, 1400);
        Present(grid);
        const int first = grid.horizontalHeader()->sectionSize(0), second = grid.horizontalHeader()->sectionSize(1);
        QCOMPARE(first + second, grid.viewport()->width());
        // The letters' room is shared; the margins of a cell are 8 pixels on both sides in every column.
        QVERIFY(qAbs((first - 16) * 1400 - (second - 16) * 2480) <= 2 * 3880); // to the pixel
        QCOMPARE(grid.ColumnWidth(0), 2480);
    }

    void ColumnsWithoutAWidthAreVisible()
    {
        Grid grid;
        Fill(grid, 1);
        grid.SetColumnWidth(0, 3100);
        Present(grid);
        QVERIFY(grid.horizontalHeader()->sectionSize(1) >= 960 / 15);
    }

    void ANarrowGridScrollsInsteadOfSqueezing()
    {
        Grid grid;
        Fill(grid, 1);
        grid.SetColumnWidth(0, 15 * 600);
        grid.SetColumnWidth(1, 15 * 300);
        Present(grid);                                           // 400 wide
        QVERIFY(grid.horizontalHeader()->sectionSize(0) >= 600); // more where letters are wide
        const auto lettersOf = [&](int column) { return grid.horizontalHeader()->sectionSize(column) - 16; };
        QVERIFY(qAbs(lettersOf(0) - 2 * lettersOf(1)) <= 2);
        QVERIFY(grid.horizontalScrollBar()->maximum() > 0);
    }

    void AWideGridSharesWhatASmallScreenHas()
    {
        Grid grid;
        Fill(grid, 1);
        const int letter = grid.fontMetrics().averageCharWidth();
        QVERIFY(letter > 5);
        grid.SetColumnWidth(0, 15 * 320);
        grid.SetColumnWidth(1, 15 * 320); // 128 letters as they were measured
        Present(grid);
        grid.resize(128 * letter + 24, grid.height()); // and a scroll bar
        QCoreApplication::processEvents();
        QCOMPARE(grid.horizontalScrollBar()->maximum(), 0);
        QVERIFY(grid.viewport()->width() >= 128 * letter);
        QVERIFY(static_cast<QWidget &>(grid).sizeHint().width() > grid.width()); // it opens wider
        grid.resize(grid.width() - 50, grid.height());
        QCoreApplication::processEvents();
        QVERIFY(grid.horizontalScrollBar()->maximum() > 0);
    }

    // The rows that the mark leaves and comes to are drawn anew from the first cell to the last one.
    void TheMarkMovesAsAWhole()
    {
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        grid.setFocus();
        QTest::keyClick(&grid, Qt::Key_Down);
        QCoreApplication::processEvents();
        PaintedRegion painted(*grid.viewport());
        QTest::keyClick(&grid, Qt::Key_Down);
        QTRY_VERIFY(!painted.Region.isEmpty());
        for (const int row : {1, 2})
            for (int column = 0; column < grid.Columns(); ++column) {
                const QRect cell = grid.visualRect(grid.model()->index(row, column));
                QVERIFY2(painted.Region.contains(cell.center()), qPrintable(QString::number(row)));
            }
    }

    void AHeadingIsSeenWhole()
    {
        Grid grid;
        grid.SetColumns({{QStringLiteral("Item"), 4000},
                         {QStringLiteral("Quantity in the household"), 500},
                         {QStringLiteral("Tax"), 400}});
        Present(grid);
        const QHeaderView &heading = *grid.horizontalHeader();
        const int whole = heading.sectionSizeHint(1);
        grid.resize(whole + heading.sectionSizeHint(0) + 200, grid.height());
        QCoreApplication::processEvents();
        QCOMPARE(heading.sectionSize(1), whole);
        QCOMPARE(heading.length(), grid.viewport()->width()); // the widest column gives it
        // Not at the price of its own heading.
        grid.SetColumns(
            {{QStringLiteral("An item of the household"), 700}, {QStringLiteral("Quantity in the household"), 500}});
        grid.resize(whole + heading.sectionSizeHint(0) - 10, grid.height());
        QCoreApplication::processEvents();
        QVERIFY(heading.sectionSize(1) < whole);
    }

    void TheWidestColumnGivesWhatAScrollBarTakes()
    {
        Grid grid;
        Fill(grid, 1);
        const int letter = grid.fontMetrics().averageCharWidth();
        grid.SetColumnWidth(0, 15 * 400);
        grid.SetColumnWidth(1, 15 * 240); // 128 letters as they were measured
        Present(grid);
        const QHeaderView &heading = *grid.horizontalHeader();
        grid.resize(128 * letter + 2 * grid.frameWidth(), grid.height());
        QCoreApplication::processEvents();
        QCOMPARE(grid.viewport()->width(), 128 * letter);
        const int first = heading.sectionSize(0), second = heading.sectionSize(1);
        QCOMPARE(first + second, 128 * letter);
        for (int row = 1; row <= 40; ++row)
            grid.AddItem(QStringLiteral("item\t1"), row);
        QCoreApplication::processEvents();
        QTRY_VERIFY(grid.verticalScrollBar()->isVisible());
        QVERIFY(grid.viewport()->width() < 128 * letter);
        QCOMPARE(grid.horizontalScrollBar()->maximum(), 0);
        QCOMPARE(heading.sectionSize(1), second);
        QCOMPARE(heading.sectionSize(0), grid.viewport()->width() - second);
        // Where more than that is missing, the columns are scrolled.
        grid.resize(grid.width() - 24, grid.height());
        QCoreApplication::processEvents();
        QCOMPARE(heading.sectionSize(0), first);
        QVERIFY(grid.horizontalScrollBar()->maximum() > 0);
    }

    void NoGridIsWiderThanItsScreen()
    {
        Grid grid;
        Fill(grid, 1);
        const int screen = grid.screen()->availableSize().width();
        QFont font = grid.font();
        font.setPixelSize(screen / 20); // far fewer than 128 letters have room
        grid.setFont(font);
        grid.SetColumnWidth(0, 15 * screen / 4);
        grid.SetColumnWidth(1, 15 * screen / 4);
        Present(grid);
        const int least = static_cast<QWidget &>(grid).minimumSizeHint().width();
        QVERIFY2(least + 2 * 16 <= screen, qPrintable(QString::number(least))); // with the margins of its window
        QVERIFY(least > screen / 2);                                            // no less than it has to
        grid.resize(least, grid.height());
        QCoreApplication::processEvents();
        QVERIFY(grid.horizontalScrollBar()->maximum() > 0); // its columns keep their widths
    }

    void SoManyRowsFillTheHeight()
    {
        Grid grid;
        Fill(grid, 40);
        grid.SetRowsInView(6);
        grid.resize(400, 420);
        grid.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grid));
        QCoreApplication::processEvents();
        const int height = grid.viewport()->height() + grid.horizontalHeader()->height();
        QCOMPARE(grid.rowHeight(0), height / 6);
    }

    // The user

    void AClickTellsTheRow()
    {
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        QSignalSpy clicks(&grid, &Grid::Click);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 1)).center());
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(grid.CurrentRow(), 3);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 1)).center());
        QCOMPARE(clicks.count(), 2);
    }

    void AClickOnTheHeadingIsRowZero()
    {
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 0)).center());
        QSignalSpy clicks(&grid, &Grid::Click);
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(grid.CurrentRow(), 0);
        QVERIFY(!grid.selectionModel()->hasSelection());
        QTest::keyClick(&grid, Qt::Key_Shift); // a key that moves nothing keeps the row
        QCOMPARE(grid.CurrentRow(), 0);
    }

    void KeysMoveAndClick()
    {
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        grid.setFocus();
        grid.SetCurrentRow(2);
        QSignalSpy clicks(&grid, &Grid::Click);
        QTest::keyClick(&grid, Qt::Key_Down);
        QCOMPARE(grid.CurrentRow(), 3);
        QCOMPARE(clicks.count(), 0);
        QTest::keyClick(&grid, Qt::Key_Return);
        QTest::keyClick(&grid, Qt::Key_Space);
        QCOMPARE(clicks.count(), 2);
        QCOMPARE(grid.CurrentRow(), 3);
    }

    void ArrowsMoveTheMarkAndLettersNothing()
    {
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        grid.setFocus();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(1, 0)).center());
        QTest::keyClick(&grid, Qt::Key_Down);
        QCOMPARE(grid.currentIndex().row(), 2);
        QCOMPARE(grid.selectionModel()->selectedRows().first().row(), 1);
        QTest::keyClicks(&grid, "item 5"); // a text that was meant for the window before
        QCOMPARE(grid.currentIndex().row(), 2);
        QCOMPARE(grid.CurrentRow(), 3);
    }

    void HomeAndEndGoToTheFirstAndTheLastRowWithAText()
    {
        Grid grid;
        Fill(grid, 5);
        grid.SetText(8, 0, {}); // rows without a text below them
        Present(grid);
        grid.setFocus();
        QSignalSpy clicks(&grid, &Grid::Click);
        QTest::keyClick(&grid, Qt::Key_End);
        QCOMPARE(grid.currentIndex().row(), 4);
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(grid.CurrentRow(), 5);
        QTest::keyClick(&grid, Qt::Key_Home);
        QCOMPARE(grid.currentIndex().row(), 0);
        QTest::keyClick(&grid, Qt::Key_Return);
        QCOMPARE(grid.CurrentRow(), 1);
        QCOMPARE(clicks.count(), 2);
        QTest::keyClick(&grid, Qt::Key_Right); // along the row is no way
        QCOMPARE(grid.currentIndex().row(), 0);
    }

    void AMarkThatNobodyHasMovedIsAnEdgeAlone()
    {
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        grid.setFocus();
        QTest::qWait(50);
        const auto ground = [&](int row) {
            const QRect cell = grid.visualRect(grid.model()->index(row, 1));
            return grid.viewport()->grab(cell).toImage().pixelColor(3, cell.height() / 2);
        };
        const auto edge = [&](int row, int column) {
            const QRect cell = grid.visualRect(grid.model()->index(row, column));
            const QImage picture = grid.viewport()->grab(cell).toImage();
            int points = 0; // of the upper line, which is drawn without a gap
            for (int x = 1; x < cell.width() - 1; ++x)
                points += picture.pixelColor(x, 0) != grid.palette().color(QPalette::Base) ? 1 : 0;
            return points == cell.width() - 2;
        };
        const QColor plain = ground(3);
        QCOMPARE(ground(0), plain);
        QVERIFY(edge(0, 0) && edge(0, 1) && !edge(3, 0));
        QTest::keyClick(&grid, Qt::Key_Down);
        QCOMPARE(ground(0), plain);
        QVERIFY(ground(1) != plain);
        QVERIFY(edge(1, 0) && edge(1, 1));
    }

    void ADisabledGridIsRead()
    {
        Grid grid;
        Fill(grid, 3);
        QPalette palette = LightPalette();
        palette.setColor(QPalette::Disabled, QPalette::Text, Qt::lightGray);
        const QColor bar = Qt::magenta; // whether enabled or not
        palette.setColor(QPalette::Highlight, bar);
        grid.setPalette(palette);
        Present(grid);
        grid.SetCurrentRow(2);
        QCoreApplication::processEvents();
        const auto rows = [&] { return grid.viewport()->grab().toImage(); };
        QVERIFY(Shows(rows(), bar));
        const QColor ink = grid.palette().color(QPalette::Active, QPalette::Text);
        grid.setEnabled(false);
        QCoreApplication::processEvents();
        QVERIFY(!Shows(rows(), bar));
        QVERIFY(Shows(rows(), ink));
        QVERIFY(Shows(grid.horizontalHeader()->viewport()->grab().toImage(), ink));
        grid.setEnabled(true);
        QCoreApplication::processEvents();
        QVERIFY(Shows(rows(), bar));
    }

    void NoKeyClicksBeforeTheUserHasChosen_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void NoKeyClicksBeforeTheUserHasChosen()
    {
        QFETCH(int, key);
        Grid grid;
        Fill(grid, 5);
        Present(grid);
        grid.setFocus();
        QSignalSpy clicks(&grid, &Grid::Click);
        QTest::keyClick(&grid, Qt::Key(key));
        QCOMPARE(clicks.count(), 0);
        QCOMPARE(grid.CurrentRow(), 0);
        QTest::keyClick(&grid, Qt::Key_Down); // the mark began on the first row
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&grid, &held);
        QCOMPARE(clicks.count(), 0);
        QTest::keyClick(&grid, Qt::Key(key));
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(grid.CurrentRow(), 2);
        grid.SetCurrentRow(0); // the window has filled it anew
        QTest::keyClick(&grid, Qt::Key(key));
        QCOMPARE(clicks.count(), 1);
    }

    void APressBelowTheRowsThatWandersOntoOneSelectsNothing()
    {
        Grid grid;
        Fill(grid, 3);
        Present(grid);
        QSignalSpy clicks(&grid, &Grid::Click);
        const QPoint row = grid.visualRect(grid.model()->index(1, 0)).center();
        QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, grid.viewport()->rect().bottomLeft() + QPoint(5, -3));
        QTest::mouseMove(grid.viewport(), row);
        QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, row);
        QVERIFY(!grid.selectionModel()->hasSelection());
        QCOMPARE(grid.CurrentRow(), 0);
        QCOMPARE(clicks.count(), 0);
    }

    void SettingTheRowIsNoClick()
    {
        Grid grid;
        Fill(grid, 5);
        QSignalSpy clicks(&grid, &Grid::Click);
        grid.SetCurrentRow(4); // before the view has seen the rows
        Present(grid);
        QCOMPARE(grid.CurrentRow(), 4);
        QCOMPARE(grid.currentIndex().row(), 3);
        QCOMPARE(clicks.count(), 0);
    }

    // Many rows

    void ManyRowsReachTheViewAtOnce()
    {
        constexpr int many = 32767;
        Grid grid;
        Present(grid);
        QSignalSpy resets(grid.model(), &QAbstractItemModel::modelReset);
        QSignalSpy inserts(grid.model(), &QAbstractItemModel::rowsInserted);
        QSignalSpy changes(grid.model(), &QAbstractItemModel::dataChanged);
        Fill(grid, many);
        for (int row = 1; row <= many; ++row) {
            grid.SetColour(row, 1, GridColour::LightRed);
            grid.SetBold(row, 0, true);
        }
        QCOMPARE(resets.count() + inserts.count() + changes.count(), 0); // no notice row by row
        QCoreApplication::processEvents();
        QCOMPARE(resets.count(), 1);
        QCOMPARE(inserts.count() + changes.count(), 0);
        QCOMPARE(grid.model()->rowCount(), many);
        // No widget per cell, and painting asks for what is in view only.
        QVERIFY(grid.viewport()->findChildren<QWidget *>().isEmpty());
        grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->maximum());
        const QImage end = grid.viewport()->grab().toImage();
        QVERIFY(!end.isNull());
        QCOMPARE(grid.rowAt(grid.viewport()->height() - 2), many - 1);
    }

    void WritingInPlaceLeavesTheViewWhereItIs()
    {
        Grid grid;
        Fill(grid, 500);
        Present(grid);
        grid.SetCurrentRow(2);
        grid.verticalScrollBar()->setValue(1000);
        QSignalSpy resets(grid.model(), &QAbstractItemModel::modelReset);
        grid.ClearBelowHeading();
        for (int row = 1; row <= 500; ++row)
            grid.SetText(row, 0, QString::number(row));
        QCoreApplication::processEvents();
        QCOMPARE(resets.count(), 0);
        QCOMPARE(grid.verticalScrollBar()->value(), 1000);
        QCOMPARE(grid.CurrentRow(), 2);
        QCOMPARE(ShownRows(grid)[500], "500 | ");
    }

    void AGridThatEndsWithItsTextHidesTheRowsBelow()
    {
        Grid grid;
        Fill(grid, 3);
        grid.AddItem({}, 2); // an empty row above a text belongs to it
        grid.AddItem({}, 5);
        grid.SetEndsWithText(true);
        QCoreApplication::processEvents();
        QCOMPARE(grid.model()->rowCount(), 4);
        QCOMPARE(grid.Rows(), 6);
        grid.SetText(5, 1, "last");
        QCoreApplication::processEvents();
        QCOMPARE(grid.model()->rowCount(), 5);
        grid.ClearBelowHeading();
        QCoreApplication::processEvents();
        QCOMPARE(grid.model()->rowCount(), 0);
        grid.SetEndsWithText(false);
        QCoreApplication::processEvents();
        QCOMPARE(grid.model()->rowCount(), 5);
    }

    void RowsAreMadeWhenSomebodyLooksAtThem()
    {
        Grid grid;
        Fill(grid, 2);
        grid.SetEndsWithText(true);
        QList<int> made;
        grid.AddRows(30000, 2, [&](int index) {
            made += index;
            return QStringList{"made", QString::number(index), "beyond the columns"};
        });
        QCOMPARE(grid.Rows(), 30003);
        Present(grid);
        const auto seen = made.size();
        QVERIFY2(seen > 0 && seen < 100, qPrintable(QString::number(seen)));
        QVERIFY(!made.contains(1000));
        QCOMPARE(grid.Text(1002, 1), QString("1000"));
        QCOMPARE(grid.Text(1002, 0), QString("made"));
        QCOMPARE(made.count(1000), 1); // once
        QCOMPARE(grid.Text(1, 0), QString("item 1"));
        QCOMPARE(grid.Text(30002, 0), QString("item 2")); // pushed down
        QVERIFY(!made.contains(2000));
        grid.SetText(2002, 0, "changed"); // the other cells of the row are there, too
        QCOMPARE(grid.Text(2002, 1), QString("2000"));
        grid.AddItem("between\t5", 3002);
        QCOMPARE(grid.Text(3001, 1), QString("2999"));
        QCOMPARE(grid.Text(3003, 1), QString("3000"));
        QCOMPARE(ErrorOf([&] { grid.AddRows(1, 40000, [](int) { return QStringList(); }); }), 9);
        const auto before = made.size();
        grid.ClearBelowHeading();
        QCOMPARE(made.size(), before);
        QCOMPARE(grid.Rows(), 30004);
        QCOMPARE(grid.Text(4000, 0), QString());
        QCoreApplication::processEvents();
        QCOMPARE(grid.model()->rowCount(), 0);
    }

    void EmptiedRowsAtTheEndStayRows()
    {
        Grid grid;
        Fill(grid, 2);
        grid.SetBold(1, 0, true);
        grid.ClearBelowHeading();
        grid.AddItem("first\t1", 1);
        grid.ClearBelowHeading();
        grid.AddRows(3, 1, [](int index) { return QStringList{QString::number(index)}; });
        QCOMPARE(RowsOf(grid), (QStringList{"Item | Amount", "0 | ", "1 | ", "2 | ", " | ", " | ", " | "}));
        QVERIFY(grid.Bold(5, 0)); // pushed down twice
        grid.AddItem("last\t9", 7);
        QCOMPARE(grid.Rows(), 8);
        grid.SetText(9, 0, "far");
        QCOMPARE(RowsOf(grid).mid(6), (QStringList{" | ", "last | 9", " | ", "far | "}));
        grid.ClearBelowHeading();
        grid.SetText(8, 0, "inside");
        QCOMPARE(grid.Rows(), 10);
        QCOMPARE(RowsOf(grid).mid(7), (QStringList{" | ", "inside | ", " | "}));
        grid.AddItem("behind a blank\t1", 9);
        QCOMPARE(RowsOf(grid).mid(7), (QStringList{" | ", "inside | ", "behind a blank | 1", " | "}));
        QCOMPARE(ErrorOf([&] { grid.AddItem("too far\t1", 12); }), 9);
        QCOMPARE(grid.Rows(), 11);
    }

    void TheResultIsBoldBelowARule()
    {
        Grid grid;
        Fill(grid, 3);
        grid.SetResultRow(2);
        Present(grid);
        grid.clearFocus(); // whose mark has edges of its own
        QCoreApplication::processEvents();
        for (int row = 1; row <= 3; ++row) {
            const QModelIndex cell = grid.model()->index(row - 1, 1);
            QCOMPARE(cell.data(Qt::FontRole).value<QFont>().bold(), row == 2);
            const QRect rect = grid.visualRect(cell);
            const QImage top = grid.viewport()->grab(QRect(rect.left(), rect.top(), 1, 1)).toImage();
            QCOMPARE(top.pixelColor(0, 0) != grid.palette().color(QPalette::Base), row == 2);
        }
        QVERIFY(!grid.Bold(2, 1)); // it is no property of the cell
        grid.ClearBelowHeading();
        QCOMPARE(grid.ResultRow(), 0);
    }

    void ItsTipStandsInForTheTextsOfTheCells()
    {
        Grid grid;
        Fill(grid, 1);
        QCoreApplication::processEvents();
        const QModelIndex cell = grid.model()->index(0, 0);
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "item 1");
        grid.setToolTip("Click a row");
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Click a row");
    }

    void ItOpensWithRoomForItsRows()
    {
        Grid grid;
        Fill(grid, 29);
        grid.SetRowsAtFirst(30); // the heading is one of them
        Present(grid);
        grid.resize(static_cast<QWidget &>(grid).sizeHint());
        QCoreApplication::processEvents();
        QVERIFY(!grid.verticalScrollBar()->isVisible());
        grid.resize(grid.width(), grid.height() - grid.rowHeight(0));
        QCoreApplication::processEvents();
        QVERIFY(grid.verticalScrollBar()->isVisible());
    }
};

REGISTER_TEST(gui_grid)
#include "gui_grid.moc"
