#include "tools/road/Await.h"

#include <chrono>
#include <stdexcept>
#include <thread>

namespace mirelle::road {
namespace {

using std::chrono::milliseconds;

// Far longer than anything takes, as the machine may be busy with other work.
constexpr milliseconds kLongestWait{30000};
constexpr milliseconds kBetweenLooks{5};

} // namespace

void Await(const std::string& what, const std::function<bool()>& holds) {
    const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
    while (!holds()) {
        if (std::chrono::steady_clock::now() >= deadline) throw std::runtime_error(what + " never came");
        std::this_thread::sleep_for(kBetweenLooks);
    }
}

} // namespace mirelle::road
