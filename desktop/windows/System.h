// The system's own header: that of Windows 10, without those of its macros that would rename functions of the
// program and of the standard library.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0A00
#endif
#include <windows.h>

#undef DeleteFile
#undef ReplaceFile
#undef RGB
