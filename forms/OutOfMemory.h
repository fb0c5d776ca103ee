// Memory that can't be had, as the run-time error that it is here.
#pragma once

#include "forms/RunTimeError.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace mirelle {

// Runs work that takes memory and gives its result. Raises error 7 where the memory can't be had, and where
// more is asked for than there can be.
template <class Work>
decltype(auto) WithinMemory(Work&& work) {
    try {
        return std::forward<Work>(work)();
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
}

} // namespace mirelle
