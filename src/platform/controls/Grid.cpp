#include "platform/controls/Grid.h"

#include "platform/controls/RowLook.h"
#include "platform/controls/Theme.h"
#include "platform/values/RuntimeError.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <numeric>
#include <utility>

namespace {
constexpr int TwipsPerPixel = 15;
constexpr int RowPadding = 8;
constexpr int MeasuredLetter = 5; // pixels
constexpr int RowsAtLeast = 6;
constexpr int MostLetters = 128; // that a grid claims the width of
constexpr int ScrollBarWidth = 24;
constexpr int AroundAGrid = 56;   // pixels of a window's frame and margins
constexpr int HairlineAlpha = 60; // of 255
} // namespace

/// The rows of a grid. The view hears of any number of changes at once, when the program is idle again.
class GridModel : public QAbstractTableModel
{
public:
    struct Cell {
        QString Text;
        GridColour Colour = GridColour::Text;
        bool Bold = false;
    };

    explicit GridModel(Grid *grid) : QAbstractTableModel(grid), m_grid(grid) {}

    void SetShape(int rows, int columns)
    {
        m_columns = columns;
        m_right.assign(std::size_t(columns), false);
        m_rows.clear();
        m_blankRows = rows;
        SetResultRow(0);
    }
    int Rows() const { return KeptRows() + m_blankRows; }
    int Columns() const { return m_columns; }

    Cell &At(int row, int column)
    {
        Check(column);
        if (row < 0)
            RaiseError(RuntimeError::SubscriptOutOfRange);
        KeepRows(row + 1);
        Cells &cells = CellsOf(row);
        if (cells.empty())
            cells.resize(std::size_t(m_columns));
        Touch();
        return cells[std::size_t(column)];
    }
    const Cell &Read(int row, int column) const
    {
        if (row < 0 || row >= Rows() || column < 0 || column >= m_columns)
            RaiseError(RuntimeError::SubscriptOutOfRange);
        static const Cell untouched;
        if (row >= KeptRows())
            return untouched;
        const Cells &cells = CellsOf(row);
        return cells.empty() ? untouched : cells[std::size_t(column)];
    }
    void Insert(int row, const QList<QStringList> &lines)
    {
        CheckInsertion(row);
        std::vector<Row> rows;
        rows.reserve(std::size_t(lines.size()));
        for (const QStringList &texts : lines) {
            if (texts.size() > m_columns)
                RaiseError(RuntimeError::SubscriptOutOfRange);
            rows.emplace_back().TheCells = CellsWith(texts);
        }
        Insert(row, rows);
    }
    void Insert(int row, int count, const Grid::RowTexts &texts)
    {
        CheckInsertion(row);
        const auto maker = std::make_shared<const Grid::RowTexts>(texts);
        auto rows = std::vector<Row>(std::size_t(qMax(0, count)));
        for (int i = 0; i < count; ++i) {
            rows[std::size_t(i)].Maker = maker;
            rows[std::size_t(i)].Index = i;
        }
        Insert(row, rows);
    }
    void ClearBelowHeading()
    {
        for (std::size_t row = 1; row < m_rows.size(); ++row) {
            Cells &cells = m_rows[row].TheCells;
            for (Cell &cell : cells)
                cell.Text.clear();
            // A row that looks like a new one costs like a new one: they pile up while a budget is stepped through.
            const auto plain = [](const Cell &cell) { return cell.Colour == GridColour::Text && !cell.Bold; };
            if (std::all_of(cells.begin(), cells.end(), plain))
                m_rows[row] = {};
        }
        // At the end they are only counted.
        while (KeptRows() > 1 && m_rows.back().TheCells.empty()) {
            m_rows.pop_back();
            ++m_blankRows;
        }
        SetResultRow(0);
    }
    void SetEndsWithText(bool ends)
    {
        m_endsWithText = ends;
        Touch();
    }
    void SetResultRow(int row)
    {
        m_resultRow = row;
        Touch();
    }
    int ResultRow() const { return m_resultRow; }
    void SetRight(int column, bool right)
    {
        Check(column);
        m_right[std::size_t(column)] = right;
        Touch();
    }
    bool Right(int column) const
    {
        Check(column);
        return m_right[std::size_t(column)];
    }
    void Check(int column) const
    {
        if (column < 0 || column >= m_columns)
            RaiseError(RuntimeError::SubscriptOutOfRange);
    }

    /// 0 where nothing stands below the heading.
    int LastRowWithText() const
    {
        const auto hasText = [](const Cells &cells) {
            return std::any_of(cells.begin(), cells.end(), [](const Cell &cell) { return !cell.Text.isEmpty(); });
        };
        int last = qMax(0, KeptRows() - 1);
        while (last > 0 && !hasText(CellsOf(last)))
            --last;
        return last;
    }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_shownRows; }
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_shownColumns; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return Value(index.row() + 1, index.column(), role);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return orientation == Qt::Horizontal ? Value(0, section, role) : QVariant();
    }

private:
    using Cells = std::vector<Cell>;
    struct Row {
        mutable Cells TheCells; // empty: nothing was ever written there, or nobody has looked at it yet
        mutable std::shared_ptr<const Grid::RowTexts> Maker; // null once the cells are made
        int Index = 0;                                       // among the rows that Maker makes
    };

    Cells CellsWith(const QStringList &texts) const
    {
        auto cells = Cells(std::size_t(m_columns));
        for (qsizetype i = 0; i < qMin<qsizetype>(texts.size(), m_columns); ++i)
            cells[std::size_t(i)].Text = texts[i];
        return cells;
    }
    const Cells &CellsOf(int number) const
    {
        const Row &row = m_rows[std::size_t(number)];
        if (const auto maker = std::exchange(row.Maker, {}))
            row.TheCells = CellsWith((*maker)(row.Index));
        return row.TheCells;
    }
    Cells &CellsOf(int row)
    {
        std::as_const(*this).CellsOf(row);
        return m_rows[std::size_t(row)].TheCells;
    }
    int KeptRows() const { return int(m_rows.size()); }
    /// Makes at least so many of the rows, or rows that are missing, more than a count.
    void KeepRows(int rows)
    {
        const int more = rows - KeptRows();
        if (more <= 0)
            return;
        m_rows.resize(std::size_t(rows));
        m_blankRows = qMax(0, m_blankRows - more);
    }
    void CheckInsertion(int row) const
    {
        if (row < 0 || row > Rows())
            RaiseError(RuntimeError::SubscriptOutOfRange);
    }
    void Insert(int row, std::vector<Row> &rows)
    {
        KeepRows(row);
        m_rows.insert(m_rows.begin() + row, std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
        Touch();
    }

    QVariant Value(int row, int column, int role) const
    {
        if (row >= Rows() || column < 0 || column >= m_columns)
            return {};
        const Cell &cell = Read(row, column);
        switch (role) {
        case Qt::DisplayRole: return cell.Text;
        case Qt::ToolTipRole: {
            // A grid that waits for a click says what that does; any other shows a text that its cell may cut.
            const QString tip = m_grid->toolTip().isEmpty() ? cell.Text : m_grid->toolTip();
            return tip.isEmpty() ? QVariant() : tip;
        }
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter |
                                       (m_right[std::size_t(column)] ? Qt::AlignRight : Qt::AlignLeft));
        case Qt::FontRole: {
            QFont font = m_grid->font();
            font.setBold(cell.Bold || (row > 0 && row == m_resultRow));
            return font;
        }
        case RowLook::RuleAbove: return row > 0 && row == m_resultRow;
        case Qt::ForegroundRole:
            if (cell.Colour == GridColour::Text)
                return {};
            return QBColor(int(cell.Colour), m_grid->palette().color(QPalette::Base),
                           m_grid->palette().color(QPalette::Text));
        default: return {};
        }
    }

    int RowsToShow() const { return m_endsWithText ? LastRowWithText() : qMax(0, Rows() - 1); }

    void Touch()
    {
        if (m_dirty)
            return;
        m_dirty = true;
        QTimer::singleShot(0, this, [this] {
            m_dirty = false;
            const int rows = RowsToShow();
            if (rows == m_shownRows && m_columns == m_shownColumns) {
                // Where only texts have changed, the view stays where the user has scrolled it.
                if (rows > 0 && m_columns > 0)
                    Q_EMIT dataChanged(index(0, 0), index(rows - 1, m_columns - 1));
                if (m_columns > 0)
                    Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
                return;
            }
            beginResetModel();
            m_shownRows = rows;
            m_shownColumns = m_columns;
            endResetModel();
        });
    }

    Grid *m_grid;
    std::vector<Row> m_rows; // the rows at the end that were never written to are only counted
    int m_blankRows = 0;
    std::vector<bool> m_right;
    int m_columns = 0;
    int m_shownRows = 0;
    int m_shownColumns = 0;
    int m_resultRow = 0;
    bool m_endsWithText = false;
    bool m_dirty = false;
};

/// A plain heading: texts with the rows' own margins over a hairline.
class GridHeading : public QHeaderView
{
public:
    explicit GridHeading(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void paintSection(QPainter *painter, const QRect &rect, int column) const override
    {
        const QColor ink = palette().color(QPalette::Active, QPalette::Text); // also while the grid is disabled
        painter->fillRect(rect, palette().color(QPalette::Base));
        painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1,
                          QColor(ink.red(), ink.green(), ink.blue(), HairlineAlpha));
        const auto value = [&](int role) { return model()->headerData(column, Qt::Horizontal, role); };
        const QFont font = qvariant_cast<QFont>(value(Qt::FontRole));
        const QRect room = rect.adjusted(RowLook::Margin, 0, -RowLook::Margin, 0);
        painter->setFont(font);
        const QVariant colour = value(Qt::ForegroundRole);
        painter->setPen(colour.isValid() ? colour.value<QColor>() : ink);
        painter->drawText(
            room, qvariant_cast<Qt::Alignment>(value(Qt::TextAlignmentRole)),
            QFontMetrics(font).elidedText(value(Qt::DisplayRole).toString(), Qt::ElideRight, room.width()));
    }
    QSize sectionSizeFromContents(int column) const override
    {
        const QFontMetrics metrics(qvariant_cast<QFont>(model()->headerData(column, Qt::Horizontal, Qt::FontRole)));
        const QString text = model()->headerData(column, Qt::Horizontal).toString();
        return {metrics.horizontalAdvance(text) + 2 * RowLook::Margin, metrics.height() + 2 * RowPadding};
    }
};

/// Rows that can be read while their grid is disabled, as it is beside the window that the user works in. None of them
/// is the selected one then.
class GridRowLook : public RowLook
{
public:
    using RowLook::RowLook;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem row = option;
        if (!(row.state & QStyle::State_Enabled)) {
            painter->fillRect(row.rect, row.palette.brush(QPalette::Disabled, QPalette::Base)); // over the view's bar
            row.state.setFlag(QStyle::State_Enabled);
            row.state.setFlag(QStyle::State_Selected, false);
        }
        RowLook::paint(painter, row, index);
    }
};

Grid::Grid(QWidget *parent) : RowView(parent), m_model(new GridModel(this))
{
    setHorizontalHeader(new GridHeading(this));
    setItemDelegate(new GridRowLook(this, [this] { return HasChosen(); }));
    setModel(m_model);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
    ShareHeight();

    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this] {
        SetCurrentRow(0);
        Q_EMIT Click();
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        const int marked = m_markedRow;
        SetCurrentRow(m_currentRow);
        MarkRow(marked);
        ShareWidth();
    });
}

void Grid::SetShape(int rows, int columns)
{
    m_model->SetShape(rows, columns);
    m_twips.assign(std::size_t(columns), GridColumn().Twips);
    SetCurrentRow(0);
    ShareWidth();
}

void Grid::SetColumns(const QList<GridColumn> &columns, int rows)
{
    SetShape(rows, int(columns.size()));
    for (int column = 0; column < int(columns.size()); ++column) {
        SetText(0, column, columns[column].Heading);
        SetBold(0, column, true);
        SetColumnWidth(column, columns[column].Twips);
        SetRightAligned(column, columns[column].Alignment == Qt::AlignRight);
    }
}

int Grid::Rows() const
{
    return m_model->Rows();
}

int Grid::Columns() const
{
    return m_model->Columns();
}

void Grid::AddItem(const QString &text, int row)
{
    AddRows({text.split(QLatin1Char('\t'))}, row);
}

void Grid::AddRows(const QList<QStringList> &rows, int row)
{
    m_model->Insert(row, rows);
}

void Grid::AddRows(int count, int row, const RowTexts &texts)
{
    m_model->Insert(row, count, texts);
}

void Grid::SetText(int row, int column, const QString &text)
{
    m_model->At(row, column).Text = text;
}

QString Grid::Text(int row, int column) const
{
    return m_model->Read(row, column).Text;
}

void Grid::SetColour(int row, int column, GridColour colour)
{
    m_model->At(row, column).Colour = colour;
}

GridColour Grid::Colour(int row, int column) const
{
    return m_model->Read(row, column).Colour;
}

void Grid::SetBold(int row, int column, bool bold)
{
    m_model->At(row, column).Bold = bold;
}

bool Grid::Bold(int row, int column) const
{
    return m_model->Read(row, column).Bold;
}

void Grid::ClearBelowHeading()
{
    m_model->ClearBelowHeading();
}

void Grid::SetColumnWidth(int column, int twips)
{
    m_model->Check(column);
    m_twips[std::size_t(column)] = twips;
    updateGeometry();
    ShareWidth();
}

int Grid::ColumnWidth(int column) const
{
    m_model->Check(column);
    return m_twips[std::size_t(column)];
}

void Grid::SetRightAligned(int column, bool right)
{
    m_model->SetRight(column, right);
}

bool Grid::RightAligned(int column) const
{
    return m_model->Right(column);
}

void Grid::SetRowsInView(int rows)
{
    m_rowsInView = rows;
    ShareHeight();
}

void Grid::SetRowsAtFirst(int rows)
{
    m_rowsAtFirst = rows;
    updateGeometry();
}

void Grid::SetEndsWithText(bool ends)
{
    m_model->SetEndsWithText(ends);
}

void Grid::SetResultRow(int row)
{
    m_model->SetResultRow(row);
}

int Grid::ResultRow() const
{
    return m_model->ResultRow();
}

void Grid::SetCurrentRow(int row)
{
    m_currentRow = row;
    m_markedRow = 0;
    if (row > 0 && row <= m_model->rowCount()) {
        selectionModel()->setCurrentIndex(m_model->index(row - 1, 0),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    } else {
        selectionModel()->clear();
        ForgetChoice();
    }
}

void Grid::MarkRow(int row)
{
    m_markedRow = row; // rows that have just been put in are shown a little later
    if (row > 0 && row <= m_model->rowCount())
        MoveMark(m_model->index(row - 1, 0));
}

void Grid::ClickRow(int row)
{
    SetCurrentRow(row + 1);
    Q_EMIT Click();
}

QModelIndex Grid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveHome && action != MoveEnd)
        return RowView::moveCursor(action, modifiers);
    const int last = qMin(m_model->LastRowWithText(), m_model->rowCount()) - 1;
    return m_model->index(action == MoveHome ? 0 : qMax(0, last), qMax(0, currentIndex().column()));
}

/// The widths of the columns were measured with letters five pixels wide.
int Grid::WidthWith(int letter) const
{
    const int total = std::accumulate(m_twips.begin(), m_twips.end(), 0);
    return total * letter / MeasuredLetter / TwipsPerPixel + 2 * RowLook::Margin * Columns();
}

/// Today's letters are wider.
int Grid::NaturalWidth() const
{
    return WidthWith(qMax(MeasuredLetter, fontMetrics().averageCharWidth()));
}

/// What the columns of a grid claim: a wide one leaves something of a small screen.
int Grid::ClaimedWidth() const
{
    return qMin(NaturalWidth(), MostLetters * fontMetrics().averageCharWidth());
}

void Grid::ShareWidth()
{
    const int total = std::accumulate(m_twips.begin(), m_twips.end(), 0);
    if (total == 0 || m_model->columnCount() != Columns())
        return;
    const int room = viewport()->width();
    const int claim = qMax(ClaimedWidth(), WidthWith(MeasuredLetter));
    const int width = qMax(room, claim);
    // Where only the bar for scrolling down is in the way, the widest column gives what it takes, or the last one would
    // lose a digit.
    const int given = claim - room <= ScrollBarWidth ? qMax(0, claim - room) : 0;
    const auto widest = std::max_element(m_twips.begin(), m_twips.end()) - m_twips.begin();
    std::vector<int> shares;
    for (int column = 0; column < Columns(); ++column) {
        const bool last = column == Columns() - 1;
        // The margins of a row's cells are the same in a narrow column and a wide one.
        const int letters = width - 2 * RowLook::Margin * Columns();
        shares.push_back(last ? width - std::accumulate(shares.begin(), shares.end(), 0)
                              : 2 * RowLook::Margin + letters * m_twips[std::size_t(column)] / total);
    }
    shares[std::size_t(widest)] -= given;
    // And what the others lack to show their headings whole, as far as its own stays whole.
    for (int column = 0; column < Columns(); ++column) {
        int &share = shares[std::size_t(column)];
        int &spare = shares[std::size_t(widest)];
        const int lacks = horizontalHeader()->sectionSizeHint(column) - share;
        if (column != widest && lacks > 0 && spare - lacks >= horizontalHeader()->sectionSizeHint(int(widest))) {
            share += lacks;
            spare -= lacks;
        }
    }
    for (int column = 0; column < Columns(); ++column)
        horizontalHeader()->resizeSection(column, shares[std::size_t(column)]);
}

void Grid::ShareHeight()
{
    const int least = fontMetrics().height() + RowPadding;
    const int whole = contentsRect().height(); // the heading, whose height is not settled yet at a resize, and the rows
    const int row = m_rowsInView > 0 ? qMax(least, whole / m_rowsInView) : least;
    verticalHeader()->setDefaultSectionSize(row);
}

void Grid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    ShareWidth();
    ShareHeight();
}

void Grid::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        ShareWidth();
        ShareHeight();
    }
}

QSize Grid::sizeHint() const
{
    const int headingMore = RowPadding + 2 * frameWidth(); // than a row
    return {qMax(NaturalWidth(), 240) + ScrollBarWidth,
            m_rowsAtFirst * (fontMetrics().height() + RowPadding) + headingMore};
}

QSize Grid::minimumSizeHint() const
{
    // A grid of usual width needs no scrolling sideways, also when its columns get their widths late. No window is
    // wider than the screen for it, where its columns are scrolled instead.
    const int room = screen()->availableSize().width() - AroundAGrid;
    return {qMin(ClaimedWidth() + ScrollBarWidth, room), RowsAtLeast * (fontMetrics().height() + RowPadding)};
}
