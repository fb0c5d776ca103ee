// A user who does anything that a user can do, in any order: commands for the driver from a seed. The same
// seed and the same state of the form give the same command.
#pragma once

#include "app/FrmPicX.h"

#include <random>
#include <string>
#include <vector>

namespace mirelle::driver {

class RandomUser {
public:
    // `pictures` are the names that a clipboard can be loaded from, `folders` those that can be gone to.
    RandomUser(unsigned seed, std::vector<std::string> pictures, std::vector<std::string> folders)
        : random_(seed), pictures_(std::move(pictures)), folders_(std::move(folders)) {}

    // The next command for a program in this state. Every one is well formed and possible: its answer has to
    // begin with "ok".
    std::string Next(FrmPicX& form);

private:
    std::string OnAnyControl(FrmPicX& form);
    std::string OnControl(Control& control);
    std::string OnTheForm();
    std::string OnTheDesktop();
    std::string LinedUp(FrmPicX& form);
    std::string Text();
    std::string Place(const std::string& target);
    std::string Row(const std::string& list, int count);

    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    template <class List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

    std::mt19937 random_;
    std::vector<std::string> pictures_;
    std::vector<std::string> folders_;
};

} // namespace mirelle::driver
