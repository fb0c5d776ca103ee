// What run-time error a piece of code ends in.
#pragma once

#include "forms/RunTimeError.h"

#include <optional>
#include <utility>

namespace mirelle::test {

// The number of the run-time error that `action` raises, or nothing if it runs to its end.
template <class Action>
std::optional<ErrorNumber> ErrorOf(Action&& action) {
    try {
        std::forward<Action>(action)();
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return error.Number();
    }
}

} // namespace mirelle::test
