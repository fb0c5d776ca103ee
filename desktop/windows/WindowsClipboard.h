// The clipboard of Windows. What is put there Windows has at once, and keeps when the program ends.
//
// A change of the clipboard is something that other programs run after: a second one at its heels can meet
// them half-way, and be lost. So a clearing waits until it is known whether something is put in its place,
// which is then a single change: whoever clears and puts in one handler changes the clipboard once.
#pragma once

#include "forms/ports/Clipboard.h"

#include <cstdint>
#include <optional>
#include <span>

namespace mirelle {

class WindowsClipboard : public Clipboard {
public:
    WindowsClipboard();
    // Carries out a clearing that still waits.
    ~WindowsClipboard() override;
    WindowsClipboard(const WindowsClipboard&) = delete;
    WindowsClipboard& operator=(const WindowsClipboard&) = delete;

    bool HasBitmap() const override;
    Picture GetData() override;
    // Takes place at the next turn of the event loop, and before anything here is read; not at all where
    // something has been put there until then.
    void Clear() override;
    void SetData(const Picture& bitmap) override;
    void SetText(const std::string& text) override;

    // Carries out a clearing that waits.
    void Settle() const;

private:
    // Replaces whatever is there. Whether it has: a clipboard that another program does not let go of keeps
    // what it holds.
    bool Put(unsigned format, std::span<const std::uint8_t> bytes);

    struct Fetched {
        unsigned state; // of the clipboard, a number that every change counts up
        Picture picture;
    };

    void* owner_ = nullptr; // a window that is never seen
    std::optional<Fetched> fetched_;
    // The state in which the clipboard was to be cleared; nothing where no clearing waits. Who looks from
    // here sees no difference between one that waits and one that is done.
    mutable std::optional<unsigned> cleared_;
};

} // namespace mirelle
