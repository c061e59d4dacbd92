// The catalogue of everything that the household buys. An item is known by its name and its store alone: records are
// found by comparing these texts exactly, and where several match, the last one counts.
#pragma once

#include "foundation/Refusal.h"
#include "foundation/State.h"

#include <QStringList>

/// Every store of the catalogue once; names that differ in their letters' case are different stores. In alphabetical
/// order, upper and lower case alike.
QStringList DistinctStores();
/// The names of a store's items in the catalogue's order; two records of the same name are two items.
QStringList ItemsAt(const QString &store);
bool HasItemsAt(const QString &store);

/// Looks for an item of a store: the last record that matches becomes Shopping.MasterItemIndex. Returns whether that
/// record is on the current list, where a line counts that is equal in item, unit, price, store and tax; nothing where
/// no record matches. Shopping.CurrentItemIndex becomes the last line of the last of the matching records that has one;
/// without such a line it stays.
std::optional<bool> FindItem(const QString &item, const QString &store);

/// Returns whether a line of the current list is equal to this record in item, unit, price, store and tax; the last
/// such line becomes Shopping.CurrentItemIndex.
bool FindLineOf(const MasterItemRecord &item);

/// What the fields of a window hold.
struct ItemEntry {
    QString Item;
    QString Unit;
    QString UnitPrice;
    QString Store;
    bool Taxable = false;
};
/// Error 13 for a price that is no number, 6 for one beyond the range of Currency.
MasterItemRecord RecordOf(const ItemEntry &entry);
/// The record at hand with these fields. A price shows fewer decimals than its value may have: one that reads as the
/// record's stands for the record's value. Errors as of RecordOf.
MasterItemRecord AtHandWith(const ItemEntry &entry);

/// The price must be a number; item and unit may not be empty. The store is not looked at.
std::optional<Refusal> ValidateItem(const ItemEntry &entry);
/// As ValidateItem, and the store may not be empty either.
std::optional<Refusal> ValidateNewItem(const ItemEntry &entry);

/// Appends a record. Error 6 beyond 32,767 records and error 9 behind a negative count, with nothing changed.
void AddMasterItem(const MasterItemRecord &item);
/// Overwrites record Shopping.MasterItemIndex; error 9, with nothing changed, where there is none.
void ChangeMasterItem(const MasterItemRecord &item);
/// Removes record Shopping.MasterItemIndex; records without a name disappear with it. Error 9, with nothing changed,
/// where two records or more are there and it is none of them.
void DeleteMasterItem();

// The edits with their files. A list that is saved is read back; one that cannot be saved, which is told, is as it was
// before the edit.

/// The button for a new item. Returns whether the catalogue has it.
bool AddItemAndSave(const MasterItemRecord &item);
/// The button for changes: overwrites the record and, for an item on the current list, the like fields of line
/// Shopping.CurrentItemIndex, whose quantity, coupon and full price stay. Error 9 without such a record or line, and 6
/// where the bill would go beyond the range of money, with nothing changed. Returns whether the catalogue has the
/// change; without it the current list is left alone.
bool ChangeItemAndSave(const MasterItemRecord &item, bool onCurrentList);
/// The delete button. Returns whether the record is gone.
bool DeleteItemAndSave();
/// The cart: saves the catalogue, adds a line to the current list, sorts, saves and reads it back. The line becomes
/// Shopping.CurrentItemIndex. Returns whether the list has it.
bool PutOnCurrentList(const MasterItemRecord &item);
