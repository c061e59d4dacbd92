// How rows of lists and grids look: a margin on both sides, so that texts do not touch, and the focus on the whole row
// instead of one of its cells.
#pragma once

#include "platform/controls/Theme.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <functional>

class RowLook : public QStyledItemDelegate
{
public:
    static constexpr int Margin = 8;
    static constexpr int RuleAbove = Qt::UserRole + 1; ///< of a model's data: whether a rule stands above the row

    /// isChosen: whether the row with the mark counts as chosen; else only its edge is drawn.
    RowLook(QAbstractItemView *view, const std::function<bool()> &isChosen)
        : QStyledItemDelegate(view), m_view(view), m_isChosen(isChosen)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        cell.state.setFlag(QStyle::State_HasFocus, false);
        m_view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, m_view);
        if (m_view->hasFocus() && index.row() == m_view->currentIndex().row() &&
            !(cell.state & QStyle::State_Selected) && !IsEmptyRow(index)) {
            QColor mark = cell.palette.color(QPalette::Highlight);
            mark.setAlpha(FocusAlpha);
            if (m_isChosen())
                painter->fillRect(cell.rect, mark);
            DrawMarkEdge(painter, cell, index);
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
    /// A line around the whole row, of which each cell draws its part.
    void DrawMarkEdge(QPainter *painter, const QStyleOptionViewItem &cell, const QModelIndex &index) const
    {
        const QRect &room = cell.rect;
        const QColor ink =
            ReadableOn(cell.palette.color(QPalette::Highlight), cell.palette.color(QPalette::Base), EdgeContrast);
        painter->fillRect(room.left(), room.top(), room.width(), 1, ink);
        painter->fillRect(room.left(), room.bottom(), room.width(), 1, ink);
        if (index.column() == 0)
            painter->fillRect(room.left(), room.top(), 1, room.height(), ink);
        if (index.column() == index.model()->columnCount() - 1)
            painter->fillRect(room.right(), room.top(), 1, room.height(), ink);
    }
    static constexpr int FocusAlpha = 50; // of 255
    static constexpr int RuleAlpha = 160;
    static constexpr double EdgeContrast = 3;

    /// What the toolkit's own margin lacks to ours.
    int MoreMargin() const { return Margin - m_view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) - 1; }

    QAbstractItemView *m_view;
    std::function<bool()> m_isChosen;
};
