#include "tests/desktop/windows/ConsoleProcess.h"

#include "desktop/windows/Wide.h"

#include <chrono>
#include <stdexcept>
#include <thread>

namespace mirelle::test {
namespace {

constexpr std::chrono::seconds kLongestWait{120};
constexpr std::chrono::milliseconds kLook{5};
constexpr DWORD kLongestEndMs = 10'000;
constexpr std::string_view kBeforeText = "text\n";

} // namespace

std::wstring ProgramPath(const std::wstring& name) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\') + 1) + name;
}

void TakeMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0)
        DispatchMessageW(&message);
}

bool Await(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline) return false;
        std::this_thread::sleep_for(kLook);
    }
    return true;
}

ConsoleProcess::ConsoleProcess(const std::string& title, Hearing hearing) : title_(title), hearing_(hearing) {
    std::wstring line = L'"' + ProgramPath(L"recording_console.exe") + L"\" \"" + windows::Wide(title) +
                        L"\" \"" + windows::Wide(folder_ / "console.txt") + L'"' +
                        (hearing == Hearing::Deaf ? L" deaf" : L"");
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &process_) == 0)
        throw std::runtime_error("the console can't be started");
    if (!Await([this] { return Window() != nullptr && IsWindowVisible(Window()) != 0; }))
        throw std::runtime_error("the console has no window");
}

ConsoleProcess::~ConsoleProcess() {
    if (const HWND window = Window()) PostMessageW(window, WM_CLOSE, 0, 0);
    if (hearing_ == Hearing::Deaf || WaitForSingleObject(process_.hProcess, kLongestEndMs) != WAIT_OBJECT_0)
        TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

HWND ConsoleProcess::Window() const {
    return FindWindowW(L"RecordingConsole", windows::Wide(title_).c_str());
}

std::string ConsoleProcess::Keys() const {
    const std::string record = folder_.ContentOf("console.txt");
    return record.substr(0, record.find(kBeforeText));
}

std::string ConsoleProcess::Text() const {
    const std::string record = folder_.ContentOf("console.txt");
    const std::size_t found = record.find(kBeforeText);
    return found == std::string::npos ? std::string() : record.substr(found + kBeforeText.size());
}

} // namespace mirelle::test
