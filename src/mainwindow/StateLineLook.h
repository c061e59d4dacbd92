// How a line of the State of the Budget looks: what it is on the left, its value on the right, a hairline below. The
// line stays one text, "Creditors: 15", for everybody who reads it.
#pragma once

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>

class StateLineLook : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem line = option;
        initStyleOption(&line, index);
        const QString text = line.text;
        line.text.clear();
        const QStyle &style = *(line.widget ? line.widget->style() : QApplication::style());
        style.drawControl(QStyle::CE_ItemViewItem, &line, painter, line.widget); // the ground, the mark and the focus

        const bool selected = line.state & QStyle::State_Selected;
        const bool enabled = line.state & QStyle::State_Enabled;
        const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
        const QColor ink = line.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
        const auto faint = [&](int alpha) { return QColor(ink.red(), ink.green(), ink.blue(), alpha); };
        painter->save();
        if (enabled && !selected && (line.state & QStyle::State_MouseOver))
            painter->fillRect(line.rect, faint(HoverAlpha));
        if (index.row() + 1 < index.model()->rowCount())
            painter->fillRect(line.rect.left() + Padding, line.rect.bottom(), line.rect.width() - 2 * Padding, 1,
                              faint(HairlineAlpha));

        const QRect room = line.rect.adjusted(Padding, 0, -Padding, 0);
        const qsizetype colon = text.indexOf(QLatin1Char(':')) + 1;
        const QString label = text.left(colon);
        QFont heavier = line.font;
        heavier.setBold(true);
        const QString value =
            QFontMetrics(heavier).elidedText(text.mid(colon).trimmed(), Qt::ElideMiddle,
                                             room.width() - line.fontMetrics.horizontalAdvance(label) - Padding);
        painter->setPen(ink);
        painter->setFont(line.font);
        painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter, label);
        painter->setFont(heavier);
        painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, value);
        painter->restore();
    }

private:
    static constexpr int Padding = 16;
    static constexpr int HoverAlpha = 20; // of 255
    static constexpr int HairlineAlpha = 36;
};
