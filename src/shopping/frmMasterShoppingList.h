// The catalogue of everything that the household buys, one store's shelf at a time, and the cart that puts an item on
// the current shopping list.
#pragma once

#include "platform/windows/Window.h"
#include "shopping/MasterList.h"
#include "ui_frmMasterShoppingList.h"

#include <QMenu>

class frmMasterShoppingList : public Window<Ui::frmMasterShoppingList>
{
public:
    frmMasterShoppingList();
    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    void ChooseStore();
    void ClickItem();
    void ShowItem(const MasterItemRecord &item);
    void ShowFields(const MasterItemRecord &item);
    void Edited();
    void Clear();
    void AddItem();
    void SaveChanges();
    void DeleteItem();
    void PutInCart();
    void FillAgain();

    void FillMasterItemList();
    void FillShelf(const QString &store);
    void FollowStore(const QString &store);
    void StandOn(const QString &item);
    void StandOnNoItem();
    void TellWhetherOnList();
    void NameStore(const QString &store);
    void EnableCart(bool enabled);
    ItemEntry Entry() const;

    QMenu m_shelfMenu{this};
    QAction *m_putInCart = nullptr;
    bool m_asksForItem = false; ///< the dialog for a new item is open
};
