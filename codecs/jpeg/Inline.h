// For what has to become part of its caller: a function that is compiled for other processors than the rest
// keeps that only where it has everything inside.
#pragma once

#if defined(__GNUC__)
#define MIRELLE_INLINE inline __attribute__((always_inline))
#else
#define MIRELLE_INLINE inline
#endif
