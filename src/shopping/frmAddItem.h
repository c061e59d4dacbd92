// The dialog for a new item of the catalogue. What it accepts is left in the fields of the master shopping list, which
// adds it.
#pragma once

#include "platform/windows/Window.h"
#include "shopping/MasterList.h"
#include "ui_frmAddItem.h"

class frmAddItem : public Window<Ui::frmAddItem>
{
public:
    frmAddItem();
    void Load() override;
    bool ClosesOnEscape() const override { return true; } // as its Cancel button does

private:
    ItemEntry Entry() const;
    void EnableOk();
    void Accept();
};
