#pragma once

#include "platform/base/Err.h"

/// Number of the error that an operation raises; 0 for none.
template <typename Operation>
int errorOf(Operation operation)
{
    Err::Clear();
    OnErrorGoToEnd(operation);
    return Err::Number();
}
