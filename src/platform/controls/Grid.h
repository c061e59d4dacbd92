// A grid of texts. Row 0 is the heading and stays in view. Rows are kept here and only looked at by the view, so that
// many thousands of them cost no widget and no waiting.
#pragma once

#include "platform/controls/RowView.h"

#include <QTableView>
#include <functional>
#include <vector>

class GridModel;

/// The colours of amounts by their customary numbers: 0 the text colour, 9 light blue, 12 light red.
enum class GridColour { Text = 0, LightBlue = 9, LightRed = 12 };

/// A column as its window lays it out.
struct GridColumn {
    QString Heading;
    int Twips = 960;
    Qt::AlignmentFlag Alignment = Qt::AlignLeft;
};

class Grid : public RowView<QTableView>
{
    Q_OBJECT
public:
    explicit Grid(QWidget *parent = nullptr);

    /// An empty grid of these columns under bold headings, with that many rows, the heading included.
    void SetColumns(const QList<GridColumn> &columns, int rows = 1);
    /// An empty grid of that size, heading included.
    void SetShape(int rows, int columns);
    int Rows() const;
    int Columns() const;

    /// Inserts a row before `row`, cells parted by tabs, and pushes the rest down. At the row count it appends;
    /// beyond it, or with more cells than columns, error 9.
    void AddItem(const QString &text, int row);
    /// Inserts several rows at once, each a list of cells; a tab in a cell parts nothing here.
    void AddRows(const QList<QStringList> &rows, int row);
    /// The cells of the row that has this place, from 0, among those that were inserted together.
    using RowTexts = std::function<QStringList(int index)>;
    /// Inserts so many rows at once whose cells are made when they are looked at for the first time, so that rows in
    /// their tens of thousands cost next to nothing. Cells beyond the columns are left out.
    void AddRows(int count, int row, const RowTexts &texts);
    /// Writes in place; below the last row the missing rows are made. A column outside is error 9.
    void SetText(int row, int column, const QString &text);
    QString Text(int row, int column) const;
    void SetColour(int row, int column, GridColour colour);
    GridColour Colour(int row, int column) const;
    void SetBold(int row, int column, bool bold);
    bool Bold(int row, int column) const;

    /// Empties every cell below the heading. The rows stay.
    void ClearBelowHeading();

    /// In twips, 15 to the pixel at 96 dots per inch; 960 where none is given. A grid wider than its columns widens
    /// them in proportion.
    void SetColumnWidth(int column, int twips);
    int ColumnWidth(int column) const;
    /// Right-aligned and centred from top to bottom.
    void SetRightAligned(int column, bool right);
    bool RightAligned(int column) const;
    /// So many rows fill the grid's height.
    void SetRowsInView(int rows);
    /// A grid opens with room for so many rows, the heading included.
    void SetRowsAtFirst(int rows);
    int RowsAtFirst() const { return m_rowsAtFirst; }
    /// Whether the rows below the last one with a text are left out of the view. They stay rows of the grid.
    void SetEndsWithText(bool ends);
    /// The row of what the rows above it come to: it is bold, below a rule. 0 for none, as after
    /// ClearBelowHeading.
    void SetResultRow(int row);
    int ResultRow() const;

    /// Whether coming back to the window fills the grid anew: the press that brings the user back is no click then.
    void SetFillsOnArrival(bool fills) { m_fillsOnArrival = fills; }

    /// The row that was clicked or moved to last, 0 the heading.
    int CurrentRow() const { return m_currentRow; }
    void SetCurrentRow(int row);
    /// Where the keys go on from; it selects nothing. A row that is not there is left alone.
    void MarkRow(int row);

Q_SIGNALS:
    /// A click on a row or on the heading; CurrentRow() is the row. Enter or Space on a row is a click, too
    /// (RowView.h).
    void Click();

protected:
    void ClickRow(int row) override;
    void MarkMoved(int row) override
    {
        m_currentRow = row + 1;
        m_markedRow = 0;
    }
    void Arrived() override { SetCurrentRow(0); }
    bool FillsOnArrival() const override { return m_fillsOnArrival; }
    /// Home and End go to the first and the last row with a text, and not along a row.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    /// Letters that were meant for the window before move nothing.
    void keyboardSearch(const QString &) override {}
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    int WidthWith(int letter) const;
    int NaturalWidth() const;
    int ClaimedWidth() const;
    void ShareWidth();
    void ShareHeight();
    GridModel *m_model;
    std::vector<int> m_twips;
    int m_currentRow = 0;
    int m_markedRow = 0; // by MarkRow, until the user moves on
    int m_rowsInView = 0;
    int m_rowsAtFirst = 21;
    bool m_fillsOnArrival = false;
};
