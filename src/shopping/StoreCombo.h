// The drop-down list of stores, which two windows have.
#pragma once

#include "platform/controls/DropDownList.h"

/// Fills it anew with every store of the catalogue. Nothing is selected then.
void FillStoreCombo(DropDownList &combo);

/// One whose pick moves the focus away. A key that moves in the closed list would pick the first store that it comes
/// to; here it opens the list and moves the mark there, and Enter is the pick.
class StoreCombo : public DropDownList
{
    Q_OBJECT
public:
    using DropDownList::DropDownList;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
