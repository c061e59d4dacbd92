// Deleting from an array: the record's key is emptied as the mark, and every record with a key moves up.
#pragma once

#include "platform/values/OneBased.h"

/// Removes element `index` (1 to count) of `array` by that rule and lowers the count by one. An element whose key was
/// empty before disappears with it, and blank elements fill the end. Error 9 outside, with nothing changed.
template <class Record>
void DeleteByMark(OneBased<Record> &array, qint16 &count, int index, QString Record::*key)
{
    OneBased<Record> scratch = array;
    (scratch(index).*key).clear();
    array.Redim(count - 1);
    int next = 0;
    for (int i = 1; i <= count; ++i)
        if (!(scratch(i).*key).isEmpty())
            array(++next) = scratch(i);
    --count;
}
