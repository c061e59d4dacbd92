// The list for the next trip to the store: its lines with what they come to, and the edits of one of them.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmCurrentShoppingList.h"

class frmCurrentShoppingList : public Window<Ui::frmCurrentShoppingList>
{
public:
    frmCurrentShoppingList();
    void Load() override;
    void Activate() override;
    void Deactivate() override;
    void Unload() override;

private:
    void FillCurrentShoppingGrid();
    void Disable();
    void grdCurrentShoppingList_Click();
    void LeaveLine();
    void OfferLine(bool selected);
    void cmdChange_Click();
    void cmdDelete_Click();
    void cmdNew_Click();
    /// Returns whether the list lies in its file.
    bool cmdSave_Click();
    /// The name that the user gives the list. It becomes the open one's.
    void AskForName();
    bool MayReplace(const QString &name) const;
};
