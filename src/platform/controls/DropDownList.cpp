#include "platform/controls/DropDownList.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <utility>

DropDownList::DropDownList(QWidget *parent) : QComboBox(parent)
{
    setInsertPolicy(NoInsert); // what is typed into an editable list is no item of it
    setSizeAdjustPolicy(AdjustToContents);
    connect(this, &QComboBox::activated, this, [this](int row) {
        const bool changed = std::exchange(m_clicked, row) != row;
        Q_EMIT Click(changed);
    });
}

void DropDownList::SetListIndex(int row)
{
    if (row == currentIndex())
        return;
    setCurrentIndex(row);
    m_clicked = currentIndex();
    if (m_clicked >= 0)
        Q_EMIT Click(true);
}

void DropDownList::Clear()
{
    clear();
    m_clicked = -1;
}

void DropDownList::AddItem(const QString &text)
{
    int place = count();
    while (m_sorted && place > 0 && itemText(place - 1).compare(text, Qt::CaseInsensitive) > 0)
        --place;
    const bool none = currentIndex() < 0;
    const QString typed = isEditable() ? currentText() : QString();
    {
        const QSignalBlocker quiet(this); // the toolkit selects the first item of an empty list for a moment
        insertItem(place, text);
        if (none)
            setCurrentIndex(-1);
    }
    if (isEditable() && currentText() != typed)
        setEditText(typed);
    m_clicked = currentIndex();
}

QStringList DropDownList::Items() const
{
    QStringList items;
    for (int row = 0; row < count(); ++row)
        items += itemText(row);
    return items;
}

void DropDownList::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
