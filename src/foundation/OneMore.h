// The count of a list that grows.
#pragma once

#include "platform/values/Numbers.h"
#include "platform/values/RuntimeError.h"

/// The count of a list that takes one more element. Error 6 beyond 32,767. Error 9 for a count below 0, as only a
/// damaged file has it, before anything is changed: the next save would write a list of one over all that the file
/// holds.
inline qint16 OneMore(qint16 count)
{
    if (count < 0)
        RaiseError(RuntimeError::SubscriptOutOfRange);
    return ToInteger(count + 1);
}
