#include "desktop/windows/Waiting.h"

#include "desktop/windows/System.h"

namespace mirelle::windows {

void WaitAnswering(std::chrono::milliseconds longest) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(longest.count()), QS_SENDMESSAGE);
    MSG untouched;
    PeekMessageW(&untouched, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

} // namespace mirelle::windows
