// Library folders that are filled with small pictures: one of 100,000, and one of ten.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mirelle::bench {

constexpr int kFiles = 100000;
constexpr int kFewFiles = 10;

// What each of their files holds.
std::vector<std::uint8_t> SmallPictureFile();

// Fill "Art" and "Metal" below the library's folder. The names stand in no order on the disk.
void FillArt(const test::TemporaryFolder& home);
void FillMetal(const test::TemporaryFolder& home);

} // namespace mirelle::bench
