// The number of the run-time error that a statement raises; 0 if it raises none.
#pragma once

#include "platform/values/RuntimeError.h"

template <class Statement>
int ErrorOf(Statement statement)
{
    try {
        statement();
    } catch (const RuntimeError &error) {
        return error.Number;
    }
    return 0;
}
