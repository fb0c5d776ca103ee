// How much of the heap this process has in use, whoever hands it out.
#pragma once

#include <cstddef>

#include <malloc.h>

extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace mirelle::test {

// In bytes. Under a sanitizer the C library's own heap stays empty, so that one is asked.
inline std::size_t HeapInUse() {
    if (__sanitizer_get_current_allocated_bytes) return __sanitizer_get_current_allocated_bytes();
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace mirelle::test
