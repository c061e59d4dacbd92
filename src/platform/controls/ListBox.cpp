#include "platform/controls/ListBox.h"

#include "platform/controls/RowLook.h"

namespace {

class Item : public QListWidgetItem
{
public:
    using QListWidgetItem::QListWidgetItem;
    bool operator<(const QListWidgetItem &other) const override
    {
        return text().compare(other.text(), Qt::CaseInsensitive) < 0;
    }
};

// What a list opens with room for.
constexpr int LettersAtFirst = 40;
constexpr int RowsAtFirst = 12;

} // namespace

ListBox::ListBox(QWidget *parent) : RowView(parent)
{
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    setItemDelegate(new RowLook(this, [this] { return HasChosen(); }));
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this] { ShowMark(); });
}

int ListBox::ListIndex() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ListBox::Select(int row)
{
    selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::ClearAndSelect);
}

void ListBox::SetListIndex(int row)
{
    if (row == ListIndex())
        return;
    if (row < 0 || row >= count()) {
        clearSelection();
        return;
    }
    Select(row);
    Q_EMIT Click();
}

void ListBox::Clear()
{
    clear();
    ForgetChoice();
}

void ListBox::AddItem(const QString &text)
{
    addItem(new Item(text));
}

QStringList ListBox::Items() const
{
    QStringList items;
    for (int row = 0; row < count(); ++row)
        items += item(row)->text();
    return items;
}

QSize ListBox::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return QListWidget::sizeHint().expandedTo(
        {LettersAtFirst * metrics.averageCharWidth(), RowsAtFirst * metrics.height()});
}

void ListBox::ClickRow(int row)
{
    Select(row);
    Q_EMIT Click();
}

void ListBox::DoubleClickRow()
{
    Q_EMIT DoubleClick();
}
