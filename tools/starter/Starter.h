// The starter library: which materials there are, and the bytes of their files.
#pragma once

#include "tools/starter/Tile.h"

#include <cstdint>
#include <span>
#include <vector>

namespace mirelle::starter {

struct StarterMaterial {
    const char* folder; // below Support/Materials
    const char* name;   // by the rules of the counter: stem, "_", number
    Tile (*draw)();
};

std::span<const StarterMaterial> StarterMaterials();

// The material's JPEG file, drawn and written by the program's own encoder.
std::vector<std::uint8_t> FileOf(const StarterMaterial& material);

} // namespace mirelle::starter
