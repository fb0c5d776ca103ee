#include "desktop/windows/WindowFinder.h"

#include "bridge/WindowTitle.h"
#include "desktop/windows/Waiting.h"
#include "desktop/windows/Wide.h"

#include <chrono>
#include <string>
#include <vector>

namespace mirelle::windows {
namespace {

constexpr std::chrono::milliseconds kLongestWait{5000};
constexpr std::chrono::milliseconds kLook{2};

struct OpenWindows {
    std::vector<HWND> windows;
    std::vector<std::string> titles;
};

std::string TitleOf(HWND window) {
    // Of a window of another program Windows tells the title that it keeps itself: a program that hangs can't
    // make this one wait.
    std::wstring title(512, L'\0');
    const int length = GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    title.resize(static_cast<std::size_t>(length > 0 ? length : 0));
    return Utf8(title);
}

BOOL CALLBACK AddIfSeen(HWND window, LPARAM list) {
    auto& open = *reinterpret_cast<OpenWindows*>(list);
    if (IsWindowVisible(window) == 0) return TRUE;
    open.windows.push_back(window);
    open.titles.push_back(TitleOf(window));
    return TRUE;
}

bool IsInFront(HWND window) {
    const HWND front = GetForegroundWindow();
    return front == window || (front != nullptr && GetAncestor(front, GA_ROOTOWNER) == window);
}

// Windows lets only the program that the user works with bring another to the front. Sharing the input state
// of the thread that is in front makes this one count as it.
void AskFor(HWND window) {
    const HWND front = GetForegroundWindow();
    const DWORD frontThread = front ? GetWindowThreadProcessId(front, nullptr) : 0;
    const DWORD ownThread = GetCurrentThreadId();
    const bool isForeign = frontThread != 0 && frontThread != ownThread;
    const bool isShared = isForeign && AttachThreadInput(ownThread, frontThread, TRUE) != 0;
    SetForegroundWindow(window);
    if (isShared) AttachThreadInput(ownThread, frontThread, FALSE);
}

} // namespace

HWND FindWindowTitled(std::string_view title) {
    OpenWindows open;
    EnumWindows(AddIfSeen, reinterpret_cast<LPARAM>(&open));
    const std::optional<std::size_t> found = FindTitle(open.titles, title);
    return found ? open.windows[*found] : nullptr;
}

bool BringToFront(HWND window) {
    const bool isMinimised = IsIconic(window) != 0;
    if (isMinimised) ShowWindowAsync(window, SW_RESTORE);
    // One that is there needs nobody's leave. A dialog of its own in front of it still goes behind it.
    if (isMinimised || GetForegroundWindow() != window) AskFor(window);
    const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
    while (!IsInFront(window)) {
        if (std::chrono::steady_clock::now() >= deadline) return false;
        WaitAnswering(kLook);
    }
    return true;
}

} // namespace mirelle::windows
