#include "platform/controls/ListBox.h"

#include "platform/controls/RowLook.h"

#include <QKeyEvent>
#include <QMouseEvent>

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

} // namespace

namespace {
// What a list opens with room for.
constexpr int LettersAtFirst = 40;
constexpr int RowsAtFirst = 12;
} // namespace

ListBox::ListBox(QWidget *parent) : QListWidget(parent)
{
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    setItemDelegate(new RowLook(this));
    connect(this, &QListWidget::doubleClicked, this, [this] { Q_EMIT DoubleClick(); });
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
}

void ListBox::AddItem(const QString &text)
{
    addItem(new Item(text));
}

void ListBox::Mark(int row)
{
    selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
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

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    // Only the left button clicks; any other would leave a row selected that nobody was told of.
    const auto isLeft = [event] {
        const auto *mouse = static_cast<const QMouseEvent *>(event);
        return event->type() == QEvent::MouseMove ? bool(mouse->buttons() & Qt::LeftButton)
                                                  : mouse->button() == Qt::LeftButton;
    };
    const bool ofMouse = event && (event->type() == QEvent::MouseButtonPress ||
                                   event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseMove);
    return ofMouse && index.isValid() && isLeft() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ListBox::keyPressEvent(QKeyEvent *event)
{
    const bool clicks = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier);
    if (!clicks) {
        QListWidget::keyPressEvent(event);
        return;
    }
    if (currentItem() && (currentItem()->flags() & Qt::ItemIsEnabled)) {
        Select(currentRow());
        Q_EMIT Click();
    }
}

void ListBox::mousePressEvent(QMouseEvent *event)
{
    QListWidget::mousePressEvent(event);
    m_pressed = event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mouseDoubleClickEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !m_pressed)
        return;
    // The selection has followed the mouse, so the row that it was let go on counts, not the one that it was pressed
    // on.
    m_pressed = false;
    if (ListIndex() >= 0)
        Q_EMIT Click();
}
