#pragma once

#include "basics/RuntimeError.h"

namespace zy::test {

/// The run-time error that the action raises; number 0 when it raises none.
template <typename Action>
RuntimeError RaisedBy(const Action& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error;
    }
    return {0, ""};
}

/// Its number alone.
template <typename Action>
int ErrorNumber(const Action& action) {
    return RaisedBy(action).Number();
}

} // namespace zy::test
