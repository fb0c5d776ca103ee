// Who waits for another program still answers it, and runs nothing else meanwhile.
#include "desktop/windows/Waiting.h"

#include "tests/desktop/windows/ConsoleProcess.h"

#include <atomic>
#include <thread>

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

constexpr UINT kPosted = WM_APP + 1;

int handled = 0;

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == kPosted) ++handled;
    return DefWindowProcW(window, message, first, second);
}

TEST(WaitAnswering, AnswersWhatIsSentAndLeavesWhatIsPosted) {
    const HWND window = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Handle));
    handled = 0;
    PostMessageW(window, kPosted, 0, 0);
    std::atomic<bool> isAnswered = false;
    std::thread asking([&] {
        SendMessageW(window, WM_NULL, 0, 0);
        isAnswered = true;
    });
    const bool wasAnswered = Await([&] {
        windows::WaitAnswering(std::chrono::milliseconds(5));
        return isAnswered.load();
    });
    EXPECT_TRUE(wasAnswered);
    EXPECT_EQ(handled, 0);
    TakeMessages();
    EXPECT_EQ(handled, 1);
    asking.join();
    DestroyWindow(window);
}

} // namespace
} // namespace mirelle::test
