#pragma once

#include "foundation/Error.h"

#include <gtest/gtest.h>

namespace k7deval
{

/// The number of the error that an action raises; 0 when it raises none.
template <class Action> int errorOf(Action action)
{
    try {
        static_cast<void>(action());
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

} // namespace k7deval
