// The clipboard of Windows. What is put there Windows has at once, and keeps when the program ends.
#pragma once

#include "forms/ports/Clipboard.h"

#include <cstdint>
#include <optional>
#include <span>

namespace mirelle {

class WindowsClipboard : public Clipboard {
public:
    WindowsClipboard();
    ~WindowsClipboard() override;
    WindowsClipboard(const WindowsClipboard&) = delete;
    WindowsClipboard& operator=(const WindowsClipboard&) = delete;

    bool HasBitmap() const override;
    Picture GetData() override;
    void Clear() override;
    void SetData(const Picture& bitmap) override;
    void SetText(const std::string& text) override;

private:
    // Replaces whatever is there; nothing stays where the bytes are none. Whether it has: a clipboard that
    // another program does not let go of keeps what it holds.
    bool Put(unsigned format, std::span<const std::uint8_t> bytes);

    struct Fetched {
        unsigned state; // of the clipboard, a number that every change counts up
        Picture picture;
    };

    void* owner_ = nullptr; // a window that is never seen
    std::optional<Fetched> fetched_;
};

} // namespace mirelle
