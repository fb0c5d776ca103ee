#include "desktop/windows/WindowsClipboard.h"

#include "codecs/BmpReader.h"
#include "codecs/BmpWriter.h"
#include "desktop/windows/System.h"
#include "desktop/windows/Waiting.h"
#include "desktop/windows/Wide.h"
#include "forms/RunTimeError.h"

#include <chrono>
#include <cstring>
#include <vector>

namespace mirelle {
namespace {

constexpr std::chrono::milliseconds kLongestWait{1000};
constexpr std::chrono::milliseconds kLook{5};
constexpr std::size_t kFileHeader = 14; // of a bitmap's file: the clipboard has what follows

constexpr UINT kSettle = WM_APP; // a message to the clipboard's own window

// The clipboard, open. Other programs have it open for a moment now and then, above all behind a change.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) {
        const auto deadline = std::chrono::steady_clock::now() + kLongestWait;
        while (!(isOpen_ = OpenClipboard(owner) != 0) && std::chrono::steady_clock::now() < deadline)
            windows::WaitAnswering(kLook);
    }
    ~OpenedClipboard() {
        if (isOpen_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    bool IsOpen() const { return isOpen_; }

private:
    bool isOpen_ = false;
};

std::vector<std::uint8_t> BytesOf(HANDLE handle) {
    std::vector<std::uint8_t> bytes;
    if (const void* memory = GlobalLock(handle)) {
        const auto* begin = static_cast<const std::uint8_t*>(memory);
        ResumeNext([&] { bytes.assign(begin, begin + GlobalSize(handle)); });
        GlobalUnlock(handle);
    }
    return bytes;
}

HANDLE MemoryWith(std::span<const std::uint8_t> bytes) {
    const HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (handle == nullptr) throw RunTimeError(ErrorNumber::OutOfMemory);
    void* const memory = GlobalLock(handle);
    if (memory == nullptr) {
        GlobalFree(handle);
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
    std::memcpy(memory, bytes.data(), bytes.size());
    GlobalUnlock(handle);
    return handle;
}

LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message != kSettle) return DefWindowProcW(window, message, first, second);
    reinterpret_cast<const WindowsClipboard*>(GetWindowLongPtrW(window, GWLP_USERDATA))->Settle();
    return 0;
}

HWND MakeOwner(const WindowsClipboard* clipboard) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = HandleMessage;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"MirelleClipboard";
    RegisterClassW(&kind); // once for all; the second time it fails
    const HWND owner =
        CreateWindowW(kind.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, kind.hInstance, nullptr);
    if (owner != nullptr) SetWindowLongPtrW(owner, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(clipboard));
    return owner;
}

} // namespace

WindowsClipboard::WindowsClipboard() : owner_(MakeOwner(this)) {}

WindowsClipboard::~WindowsClipboard() {
    Settle();
    DestroyWindow(static_cast<HWND>(owner_));
}

// Windows makes this format of every other form of a bitmap.
bool WindowsClipboard::HasBitmap() const {
    Settle();
    if (fetched_ && fetched_->state == GetClipboardSequenceNumber()) return !fetched_->picture.IsEmpty();
    return IsClipboardFormatAvailable(CF_DIB) != 0;
}

Picture WindowsClipboard::GetData() {
    Settle();
    const unsigned state = GetClipboardSequenceNumber();
    if (fetched_ && fetched_->state == state) return fetched_->picture;
    fetched_ = {state, Picture()};
    std::vector<std::uint8_t> bytes;
    {
        const OpenedClipboard clipboard(static_cast<HWND>(owner_));
        if (!clipboard.IsOpen()) {
            fetched_.reset();
            return Picture();
        }
        if (const HANDLE handle = GetClipboardData(CF_DIB)) bytes = BytesOf(handle);
    }
    ResumeNext([&] { fetched_->picture = Picture(ReadDib(bytes)); });
    return fetched_->picture;
}

void WindowsClipboard::Clear() {
    fetched_.reset();
    cleared_ = GetClipboardSequenceNumber();
    const auto owner = static_cast<HWND>(owner_);
    if (owner == nullptr || PostMessageW(owner, kSettle, 0, 0) == 0) Settle();
}

void WindowsClipboard::Settle() const {
    if (!cleared_) return;
    const unsigned state = *cleared_;
    cleared_.reset();
    const OpenedClipboard clipboard(static_cast<HWND>(owner_));
    // What another program put there since then, until it let go of the clipboard, came after the clearing,
    // and stays.
    if (clipboard.IsOpen() && GetClipboardSequenceNumber() == state) EmptyClipboard();
}

void WindowsClipboard::SetData(const Picture& bitmap) {
    if (bitmap.IsEmpty()) return Clear();
    const std::vector<std::uint8_t> file = BmpFile(bitmap.Pixels());
    if (Put(CF_DIB, std::span(file).subspan(kFileHeader))) fetched_ = {GetClipboardSequenceNumber(), bitmap};
}

void WindowsClipboard::SetText(const std::string& text) {
    const std::wstring wide = windows::Wide(text);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(wide.c_str());
    Put(CF_UNICODETEXT, {bytes, (wide.size() + 1) * sizeof(wchar_t)}); // with its end
}

bool WindowsClipboard::Put(unsigned format, std::span<const std::uint8_t> bytes) {
    fetched_.reset();
    const HANDLE memory = MemoryWith(bytes);
    const OpenedClipboard clipboard(static_cast<HWND>(owner_));
    const bool isEmpty = clipboard.IsOpen() && EmptyClipboard() != 0;
    if (isEmpty) cleared_.reset();
    const bool isTaken = isEmpty && SetClipboardData(format, memory) != nullptr;
    if (!isTaken) GlobalFree(memory);
    return isTaken;
}

} // namespace mirelle
