#include "platform/ListBox.h"

#include <QKeyEvent>

ListBox::ListBox(QWidget *parent) : QListWidget(parent)
{
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    connect(this, &QListWidget::clicked, this, [this](const QModelIndex &index) {
        Select(index.row());
        Q_EMIT Click();
    });
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
    addItem(text);
}

QStringList ListBox::Items() const
{
    QStringList items;
    for (int row = 0; row < count(); ++row)
        items += item(row)->text();
    return items;
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    if (event && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
                  event->type() == QEvent::MouseMove))
        return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::NoUpdate;
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
