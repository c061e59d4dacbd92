// The state of shopping beside the two lists, which lie in the shared state: what its windows share and leave for each
// other. Nothing of it is kept when the program ends.
#pragma once

#include "platform/values/Currency.h"

#include <QString>

struct ShoppingState {
    qint16 MasterItemIndex = 0;       ///< the catalogue's record at hand
    qint16 CurrentItemIndex = 0;      ///< the line of the list at hand
    bool ListClickInProgress = false; ///< while a click on the shelf fills the fields: it arms the save button
    bool AddItemAccepted = false;     ///< the dialog for a new item was left by OK
    QString SelectedStoreName;        ///< whose shelf is shown
    Currency TotalGroceryBill;        ///< of the list as it was shown or printed last
};
inline ShoppingState Shopping;
