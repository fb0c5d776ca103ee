// Whether a sanitizer watches the program's memory. It is to see every block come and go, and needs most of
// the address space for itself.
#pragma once

namespace mirelle {

// GCC tells by a macro of its own, Clang by features.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kMemoryIsWatched = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(memory_sanitizer)
inline constexpr bool kMemoryIsWatched = true;
#else
inline constexpr bool kMemoryIsWatched = false;
#endif
#else
inline constexpr bool kMemoryIsWatched = false;
#endif

} // namespace mirelle
