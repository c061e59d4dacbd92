// The lines of the current shopping list in State.CurrentShoppingList: what they cost, their order and their edits.
#pragma once

#include "foundation/State.h"

#include <QStringList>

/// What a line comes to, as money: the price times the quantity, plus tax, less the coupon. Price times quantity and
/// tax are taken in double and rounded once, to the ten-thousandth, ties to even; the coupon is taken off exactly, and
/// once, however large the quantity. A coupon above the price gives less than nothing.
/// The tax is that of one unit, whatever the quantity: three taxable items at $1.00 come to $3.06 at six per cent.
/// Error 6 beyond the range of money.
Currency ComputeFullPrice(const CurrentItemRecord &line);

/// Error 6 where the bill would go beyond the range of money with `line` in place `index`, which may be the one after
/// the last: such a list could be shown and printed no more.
void CheckBillWith(const CurrentItemRecord &line, int index);

/// What a price is taxed with, times the quantity, in double and not rounded: the tax that the printed list tells.
double TaxOfWholeQuantity(const CurrentItemRecord &line);

/// Computes FullPrice of every line anew, and Shopping.TotalGroceryBill, which is their exact sum. Error 6 beyond the
/// range of money.
void PriceCurrentList();

/// The cells of a line's row: item, unit, unit price, store, quantity, "Y" or "N" for the tax, coupon and full price.
QStringList CurrentListRow(const CurrentItemRecord &line);

/// By the items in lower case, plain character code by plain character code. Lines of equal names keep their order.
void SortCurrentShoppingList();

/// Makes line `row` the one at hand, and the last record of the catalogue with its item and store the one that belongs
/// to it; without such a record the one before stays. Returns whether there is such a line: a row past the last one
/// is at hand from then on, too, although it is none. Error 9 for row 0, with nothing changed.
bool SelectCurrentItem(int row);

/// Appends a line of one unit without a coupon. Its full price is its price until the list is priced.
/// Error 6, with nothing changed, where the count or the whole bill would go beyond its range, error 9 for a count
/// below 0.
void AddCurrentItem(const MasterItemRecord &item);

/// The texts of a line's fields.
struct CurrentItemEntry {
    QString Item;
    QString Unit;
    QString UnitPrice; ///< money
    QString Store;
    QString Quantity;    ///< a number, kept in single precision
    QString TaxCode;     ///< "N": not taxable; anything else is
    QString CouponValue; ///< money
};

/// Writes the texts into the line at hand; a price, quantity or coupon that is the line's own text keeps the exact
/// value that the text was made of. Its full price is told without tax until the list is priced.
/// Error 13 for a text that is no number, error 6 for one beyond its type or a whole bill beyond the range of money,
/// error 9 without such a line; nothing is changed then.
void ChangeCurrentItem(const CurrentItemEntry &entry);

/// Whether the record of the catalogue at hand is one of the line's item and store. It may be an earlier line's.
bool HasItsRecordAtHand(const CurrentItemRecord &line);

/// Writes item, unit, price, store and tax of the line at hand into the record of the catalogue that is at hand. Error
/// 9 where there is none.
void CopyLineToCatalogue();

/// Removes the line at hand, by the empty item as its mark, so that a line with an empty item disappears with it. Fewer
/// than two lines leave none, whatever is at hand. Error 9, with nothing changed, where that is no line.
void DeleteCurrentItem();

/// Leaves no line.
void ClearCurrentList();

// The edits with their files. A list that cannot be saved, which is told, is as it was before the edit.

/// The button for changes: writes the texts into the line at hand and from there into the catalogue, sorts, saves both
/// lists and reads them back. A line without a record of its own leaves the catalogue alone, where it would replace
/// another item. Returns whether the current list has the change; without it the catalogue is left alone, too. Errors
/// as of ChangeCurrentItem, with nothing changed.
bool ChangeLineAndSave(const CurrentItemEntry &entry);
/// The delete button: neither sorts nor reads back. Returns whether the line is gone.
bool DeleteLineAndSave();
