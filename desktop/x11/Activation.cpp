#include "desktop/x11/Activation.h"

#include "desktop/x11/Receiver.h"
#include "desktop/x11/WindowFinder.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace mirelle::x11 {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLongestWait{5000};
constexpr milliseconds kLook{2};

// The source of a request in _NET_ACTIVE_WINDOW: one that the user made in another program. A window manager
// obeys these, where it may only flash a window that puts itself forward.
constexpr long kByTheUser = 2;

void AskFor(const Connection& connection, Window window) {
    if (ManagerSupports(connection, "_NET_ACTIVE_WINDOW")) {
        TellRoot(connection, window, "_NET_ACTIVE_WINDOW", {kByTheUser, CurrentTime, None, 0, 0});
        return;
    }
    XRaiseWindow(connection.Server(), window);
    XSetInputFocus(connection.Server(), window, RevertToParent, CurrentTime);
}

bool HasFocus(const Connection& connection, Window window) {
    const std::vector<Window> chain = WithParents(connection, FocusedWindow(connection));
    return std::ranges::find(chain, window) != chain.end();
}

} // namespace

bool Activate(const Connection& connection, Window window) {
    const ErrorTrap trap(connection);
    AskFor(connection, window);
    const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
    while (!HasFocus(connection, window)) {
        if (std::chrono::steady_clock::now() >= deadline) return false;
        std::this_thread::sleep_for(kLook);
    }
    return true;
}

} // namespace mirelle::x11
