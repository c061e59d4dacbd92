#include "shopping/StoreCombo.h"

#include "shopping/MasterList.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

/// An arrow key and its like, or a letter of the name that is looked for.
bool MovesInTheList(const QKeyEvent &event)
{
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End: return true;
    case Qt::Key_Space: // opens the list as it always does
        return false;
    default: return !event.text().isEmpty() && event.text().front().isPrint();
    }
}

} // namespace

void FillStoreCombo(DropDownList &combo)
{
    combo.Clear();
    for (const QString &store : DistinctStores())
        combo.AddItem(store);
}

void StoreCombo::keyPressEvent(QKeyEvent *event)
{
    if (!MovesInTheList(*event))
        return DropDownList::keyPressEvent(event);
    showPopup();
    if (!view()->isVisible()) // it stays closed without stores
        return;
    if (ListIndex() < 0)
        view()->setCurrentIndex({}); // or the mark would move on from the first store, which nobody has chosen
    QCoreApplication::sendEvent(view(), event);
}
