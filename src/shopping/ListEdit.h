// An edit of one of the two shopping lists together with its file: what cannot be saved has not happened.
#pragma once

#include "foundation/ShoppingFiles.h"
#include "foundation/State.h"

/// An edit of a list, from before the list is changed on.
template <class Record>
class ListEdit
{
public:
    ListEdit(OneBased<Record> &list, qint16 &count, bool (*save)(), void (*readBack)())
        : m_list(list), m_count(count), m_before(list), m_countBefore(count), m_save(save), m_readBack(readBack)
    {
    }

    /// Saves the list. One that cannot be saved, which is told, is as it was before the edit. Returns whether it is
    /// saved.
    bool Save()
    {
        if (m_save())
            return true;
        Undo();
        return false;
    }

    /// Saves the list likewise, and reads a saved one back. One that could not be saved is not read: where its file is
    /// missing that would leave blank records, and the next save would write them over the file that has come back
    /// meanwhile.
    bool SaveAndReadBack()
    {
        const bool saved = Save();
        if (saved)
            m_readBack();
        return saved;
    }

    /// The list is as it was before the edit.
    void Undo()
    {
        m_list = m_before;
        m_count = m_countBefore;
    }

private:
    OneBased<Record> &m_list;
    qint16 &m_count;
    const OneBased<Record> m_before;
    const qint16 m_countBefore;
    bool (*m_save)();
    void (*m_readBack)();
};

inline ListEdit<MasterItemRecord> CatalogueEdit()
{
    return {State.MasterShoppingList, State.NumberOfMasterItems, SaveMasterShoppingList, InputMasterShoppingList};
}

inline ListEdit<CurrentItemRecord> CurrentListEdit()
{
    return {State.CurrentShoppingList, State.NumberOfCurrentItems, SaveCurrentShoppingList, InputCurrentShoppingList};
}
