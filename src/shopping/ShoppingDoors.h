// How the windows of shopping have each other's lists, and the main window's line of the open list, filled anew.
#pragma once

#include <QObject>

class ShoppingDoors : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    /// The lines of the current list have changed.
    void CurrentListChanged();
    /// The items of the catalogue have changed.
    void ShelfChanged();
    /// The open list has got a name.
    void StoreFileNamed();
};
inline ShoppingDoors TheShoppingDoors;
