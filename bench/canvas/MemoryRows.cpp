// Memory with the picture in all holders. The bench starts the program that measures it.
#include "bench/Rows.h"

#include <cstdio>
#include <memory>
#include <stdexcept>

namespace mirelle::bench {
namespace {

constexpr double kPictures = 3;

double PicturesInUse() {
    const std::unique_ptr<std::FILE, decltype(&::pclose)> told(::popen(MIRELLE_PASTE_MEMORY, "r"), &::pclose);
    double pictures = 0;
    if (!told || std::fscanf(told.get(), "%lf", &pictures) != 1)
        throw std::runtime_error("the program that measures memory did not tell any");
    return pictures;
}

} // namespace

Group MemoryRows() {
    return {"Memory",
            {{.name = "with the picture in all holders",
              .prepare =
                  [] {
                      return Contest{.ours = PicturesInUse,
                                     .peers = {{"the picture's bytes", kPictures, [] { return 1.0; }}}};
                  },
              .cores = Cores::All,
              .unit = Unit::Pictures}}};
}

} // namespace mirelle::bench
