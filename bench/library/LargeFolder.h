// A library with a folder of 100,000 pictures and one of ten.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <string>

namespace mirelle::bench {

constexpr int kFiles = 100000;
constexpr int kFewFiles = 10;

// Fills "Art" and "Metal" below the library's folder. The names stand in no order on the disk.
void FillLibrary(const test::TemporaryFolder& home);

} // namespace mirelle::bench
