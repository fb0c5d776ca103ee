#include "desktop/x11/WindowFinder.h"

#include "bridge/WindowTitle.h"

#include <X11/Xatom.h>

#include <algorithm>

namespace mirelle::x11 {
namespace {

// How far below the root a window manager's frames may put the windows of programs.
constexpr int kDeepestClient = 4;

bool ManagerRuns(const Connection& connection) {
    const char* const hint = "_NET_SUPPORTING_WM_CHECK";
    const std::vector<unsigned long> check = NumbersOf(connection, connection.Root(), hint, XA_WINDOW);
    // The window that is named must name itself, or the manager is gone and left its hint behind.
    return check.size() == 1 && NumbersOf(connection, check.front(), hint, XA_WINDOW) == check;
}

bool IsSeen(const Connection& connection, Window window) {
    XWindowAttributes attributes;
    return XGetWindowAttributes(connection.Server(), window, &attributes) != 0 &&
           attributes.map_state == IsViewable;
}

// The windows that are seen below one, the uppermost first.
void AddFromTree(const Connection& connection, Window window, int depth, std::vector<Window>& windows) {
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned count = 0;
    if (XQueryTree(connection.Server(), window, &root, &parent, &children, &count) == 0) return;
    const std::vector<Window> below(children, children + count);
    if (children != nullptr) XFree(children);
    for (auto child = below.rbegin(); child != below.rend(); ++child) {
        if (!IsSeen(connection, *child)) continue;
        windows.push_back(*child);
        if (depth < kDeepestClient) AddFromTree(connection, *child, depth + 1, windows);
    }
}

// The windows of programs, the uppermost first.
std::vector<Window> AllWindows(const Connection& connection) {
    if (ManagerRuns(connection)) {
        for (const char* list : {"_NET_CLIENT_LIST_STACKING", "_NET_CLIENT_LIST"}) {
            std::vector<unsigned long> windows = NumbersOf(connection, connection.Root(), list, XA_WINDOW);
            std::ranges::reverse(windows);
            if (!windows.empty()) return windows;
        }
    }
    std::vector<Window> windows;
    AddFromTree(connection, connection.Root(), 1, windows);
    // An old window manager marks the windows of programs, so that its frames are not taken for them.
    const Atom mark = connection.Named("WM_STATE");
    std::vector<Window> marked;
    std::ranges::copy_if(windows, std::back_inserter(marked), [&](Window window) {
        return !NumbersOf(connection, window, "WM_STATE", mark).empty();
    });
    return marked.empty() ? windows : marked;
}

} // namespace

Window FindWindow(const Connection& connection, std::string_view title) {
    const ErrorTrap trap(connection);
    const std::vector<Window> windows = AllWindows(connection);
    std::vector<std::string> titles;
    titles.reserve(windows.size());
    for (const Window window : windows)
        titles.push_back(TitleOf(connection, window));
    const std::optional<std::size_t> found = FindTitle(titles, title);
    return found ? windows[*found] : Window(None);
}

bool ManagerSupports(const Connection& connection, const char* hint) {
    const ErrorTrap trap(connection);
    if (!ManagerRuns(connection)) return false;
    const std::vector<unsigned long> hints =
        NumbersOf(connection, connection.Root(), "_NET_SUPPORTED", XA_ATOM);
    return std::ranges::find(hints, connection.Named(hint)) != hints.end();
}

} // namespace mirelle::x11
