// What the command line asks for.
#pragma once

#include "bench/Table.h"

#include <optional>
#include <string>

namespace mirelle::bench {

struct Wishes {
    bool list = false;
    std::string filter;      // in small letters
    std::string pictureFile; // empty: a picture that the bench makes
    unsigned seed = 1;       // of that picture
    Manner manner;
};

// Nothing where it can't be understood.
std::optional<Wishes> WishesOf(int count, char** arguments);

// As far as the bench's names go: ASCII.
std::string Lower(std::string text);

} // namespace mirelle::bench
