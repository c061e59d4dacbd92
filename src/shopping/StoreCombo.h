// The drop-down list of stores, which two windows have.
#pragma once

#include "platform/controls/DropDownList.h"
#include "shopping/MasterList.h"

/// Fills it anew with every store of the catalogue. Nothing is selected then.
inline void FillStoreCombo(DropDownList &combo)
{
    combo.Clear();
    for (const QString &store : DistinctStores())
        combo.AddItem(store);
}
