// The shopping lists: mastshop.txt in State.ApplicationPath and the open store list in State.StoresDirectory.
#pragma once

#include <QString>

void InputMasterShoppingList();
void InputCurrentShoppingList();
// Both return whether the list lies in its file; if not, the user was told why.
bool SaveMasterShoppingList();
bool SaveCurrentShoppingList();

/// Whether a list may have this name; if not, the user is told so in a box of that title. A quote would end the name in
/// the settings file, and all settings behind it would be read as something else.
bool AcceptsListName(const QString &name, const QString &title);
