// The captions of controls as the user reads them.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

/// A caption as it is read: without the mark of its access key and without the colon at its end.
inline QString Plain(QString caption)
{
    caption.replace(u"&&"_s, u"\x1"_s).remove(u'&').replace(u"\x1"_s, u"&"_s);
    caption = caption.section(u'\t', 0, 0).simplified(); // behind the tab stands a key
    return caption.endsWith(u':') ? caption.chopped(1).trimmed() : caption;
}

/// What stands on a control, above the columns of a list, or on a menu and its entries. A button without a word has its
/// hint.
inline QStringList CaptionsOf(const QWidget &control)
{
    QStringList captions;
    if (const auto *menu = qobject_cast<const QMenu *>(&control)) {
        captions += menu->title();
        for (const QAction *entry : menu->actions())
            captions += entry->text();
    } else if (const auto *label = qobject_cast<const QLabel *>(&control)) {
        captions += label->text();
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
        captions += button->text().isEmpty() ? button->toolTip() : button->text();
    } else if (const auto *group = qobject_cast<const QGroupBox *>(&control)) {
        captions += group->title();
    } else if (const auto *view = qobject_cast<const QAbstractItemView *>(&control)) {
        for (int column = 0; column < view->model()->columnCount(); ++column)
            captions += view->model()->headerData(column, Qt::Horizontal).toString();
    }
    for (QString &caption : captions)
        caption = Plain(caption);
    captions.removeAll(QString());
    return captions;
}
