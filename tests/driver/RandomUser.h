// A user who does anything that a user can do, in any order: commands for the driver from a seed. The same
// seed and the same state of the form give the same command.
#pragma once

#include "app/FrmPicX.h"

#include <deque>
#include <random>
#include <string>
#include <vector>

namespace mirelle::driver {

class RandomUser {
public:
    // What a user can reach: the machine's names of pictures that a clipboard can be loaded from, folders
    // that can be gone to, files that can be chosen in the open dialog.
    struct Reach {
        std::vector<std::string> pictures;
        std::vector<std::string> folders;
        std::vector<std::string> documents = {"C:\\none.jpg"};
    };
    RandomUser(unsigned seed, Reach reach) : random_(seed), reach_(std::move(reach)) {}

    // The next command for a program in this state. Every one is well formed and possible: its answer has to
    // begin with "ok".
    std::string Next(FrmPicX& form);

private:
    std::string OnAnyControl(FrmPicX& form);
    std::string OnControl(Control& control);
    std::string OnTheForm();
    std::string OnTheDesktop();
    std::string LinedUp(FrmPicX& form);
    void PlanARoad();
    void PlanACrop();
    std::string Text();
    std::string Place(const std::string& target);
    std::string Row(const std::string& list, int count);

    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    template <class List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

    std::mt19937 random_;
    Reach reach_;
    std::deque<std::string> planned_; // what comes next, whatever the state of the form
};

} // namespace mirelle::driver
