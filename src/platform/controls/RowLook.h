// How rows of lists and grids look: a margin on both sides, so that texts do not touch, and the focus on the whole row
// instead of one of its cells.
#pragma once

#include <QAbstractItemView>
#include <QPainter>
#include <QStyledItemDelegate>

class RowLook : public QStyledItemDelegate
{
public:
    static constexpr int Margin = 8;
    static constexpr int RuleAbove = Qt::UserRole + 1; ///< of a model's data: whether a rule stands above the row

    explicit RowLook(QAbstractItemView *view) : QStyledItemDelegate(view), m_view(view) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        cell.state.setFlag(QStyle::State_HasFocus, false);
        m_view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, m_view);
        if (m_view->hasFocus() && index.row() == m_view->currentIndex().row() &&
            !(cell.state & QStyle::State_Selected) && !IsEmptyRow(index)) {
            QColor mark = cell.palette.color(QPalette::Highlight);
            mark.setAlpha(FocusAlpha);
            painter->fillRect(cell.rect, mark);
        }
        if (index.data(RuleAbove).toBool()) {
            QColor ink = cell.palette.color(QPalette::Text);
            ink.setAlpha(RuleAlpha);
            painter->fillRect(QRect(cell.rect.left(), cell.rect.top(), cell.rect.width(), 1), ink);
        }
        cell.rect.adjust(MoreMargin(), 0, -MoreMargin(), 0);
        QStyledItemDelegate::paint(painter, cell, index);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * MoreMargin(), Margin);
    }

private:
    /// A gap between lines is no place to stand on.
    static bool IsEmptyRow(const QModelIndex &index)
    {
        for (int column = 0; column < index.model()->columnCount(); ++column)
            if (!index.siblingAtColumn(column).data().toString().isEmpty())
                return false;
        return true;
    }
    static constexpr int FocusAlpha = 50; // of 255
    static constexpr int RuleAlpha = 160;

    /// What the toolkit's own margin lacks to ours.
    int MoreMargin() const { return Margin - m_view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) - 1; }

    QAbstractItemView *m_view;
};
