// The shopping lists: mastshop.txt in State.ApplicationPath and the open store list in State.StoresDirectory.
#pragma once

void InputMasterShoppingList();
void InputCurrentShoppingList();
// Both return whether the list lies in its file; if not, the user was told why.
bool SaveMasterShoppingList();
bool SaveCurrentShoppingList();
