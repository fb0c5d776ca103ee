// The clipboard as other programs see it.
#include "desktop/windows/WindowsClipboard.h"

#include "codecs/BmpWriter.h"
#include "desktop/windows/System.h"
#include "desktop/windows/Wide.h"
#include "tests/desktop/windows/ConsoleProcess.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestPictures.h"

#include <atomic>
#include <cstring>
#include <future>
#include <optional>
#include <thread>

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

// What another program finds.
std::optional<Bytes> Found(UINT format) {
    if (OpenClipboard(nullptr) == 0) return std::nullopt;
    std::optional<Bytes> found;
    if (const HANDLE handle = GetClipboardData(format)) {
        const auto* begin = static_cast<const std::uint8_t*>(GlobalLock(handle));
        found.emplace(begin, begin + GlobalSize(handle));
        GlobalUnlock(handle);
    }
    CloseClipboard();
    return found;
}

// What another program leaves.
void Leave(UINT format, const Bytes& bytes) {
    const HWND window = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_TRUE(OpenClipboard(window));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
    GlobalUnlock(memory);
    EXPECT_NE(SetClipboardData(format, memory), nullptr);
    CloseClipboard();
    DestroyWindow(window);
}

Bytes DibOf(const Bitmap& bitmap) {
    const Bytes file = BmpFile(bitmap);
    return {file.begin() + 14, file.end()};
}

struct WindowsClipboardTest : testing::Test {
    WindowsClipboardTest() { clipboard.Clear(); }
    WindowsClipboard clipboard;
};

TEST_F(WindowsClipboardTest, GivesTheBitmapThatAnotherProgramLeft) {
    EXPECT_FALSE(clipboard.HasBitmap());
    EXPECT_TRUE(clipboard.GetData().IsEmpty());
    const Bitmap bitmap = NoiseBitmap(31, 17, 1);
    Leave(CF_DIB, DibOf(bitmap));
    EXPECT_TRUE(clipboard.HasBitmap());
    const Picture picture = clipboard.GetData();
    ASSERT_EQ(picture.Width(), 31);
    ASSERT_EQ(picture.Height(), 17);
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 31; ++x) {
            const Pixel& pixel = bitmap.At(x, y);
            ASSERT_EQ(picture.Pixels().At(x, y), (Pixel{pixel.blue, pixel.green, pixel.red, 0}));
        }
    }
}

TEST_F(WindowsClipboardTest, GivesTheSamePixelsUntilTheClipboardChanges) {
    Leave(CF_DIB, DibOf(NoiseBitmap(8, 8, 1)));
    const Picture first = clipboard.GetData();
    EXPECT_TRUE(clipboard.GetData().SharesPixelsWith(first));
    Leave(CF_DIB, DibOf(NoiseBitmap(9, 8, 1)));
    EXPECT_EQ(clipboard.GetData().Width(), 9);
}

TEST_F(WindowsClipboardTest, WhatIsNoBitmapGivesTheEmptyPicture) {
    Leave(CF_DIB, Bytes(40, 0xAB));
    EXPECT_TRUE(clipboard.GetData().IsEmpty());
    EXPECT_FALSE(clipboard.HasBitmap());
    clipboard.SetText("words");
    EXPECT_FALSE(clipboard.HasBitmap());
    EXPECT_TRUE(clipboard.GetData().IsEmpty());
}

TEST_F(WindowsClipboardTest, PutsAPictureAndKeepsItBeyondItsOwnEnd) {
    const Picture picture = ChartPicture(13, 7);
    {
        WindowsClipboard passing;
        passing.SetData(picture);
        EXPECT_TRUE(passing.HasBitmap());
        EXPECT_TRUE(passing.GetData().SharesPixelsWith(picture));
    }
    const std::optional<Bytes> found = Found(CF_DIB);
    ASSERT_TRUE(found);
    EXPECT_EQ(*found, DibOf(picture.Pixels()));
    EXPECT_EQ(clipboard.GetData().Width(), 13);
}

TEST_F(WindowsClipboardTest, PutsTextAndNothingElseStays) {
    clipboard.SetData(ChartPicture(5, 5));
    clipboard.SetText("Z:\\Häuser\\字.jpg");
    EXPECT_FALSE(Found(CF_DIB));
    const std::optional<Bytes> found = Found(CF_UNICODETEXT);
    ASSERT_TRUE(found);
    EXPECT_EQ(windows::Utf8(reinterpret_cast<const wchar_t*>(found->data())), "Z:\\Häuser\\字.jpg");
}

TEST_F(WindowsClipboardTest, AnEmptyPictureLeavesNothing) {
    clipboard.SetData(ChartPicture(5, 5));
    clipboard.SetData(Picture());
    EXPECT_FALSE(clipboard.HasBitmap());
    EXPECT_FALSE(Found(CF_DIB));
}

TEST_F(WindowsClipboardTest, ClearingAndPuttingIsOneChange) {
    clipboard.SetText("first");
    DWORD state = GetClipboardSequenceNumber();
    clipboard.SetText("second");
    const DWORD oneChange = GetClipboardSequenceNumber() - state;
    state = GetClipboardSequenceNumber();
    clipboard.Clear();
    EXPECT_EQ(GetClipboardSequenceNumber(), state);
    clipboard.SetText("third");
    EXPECT_EQ(GetClipboardSequenceNumber() - state, oneChange);
    TakeMessages();
    EXPECT_EQ(GetClipboardSequenceNumber() - state, oneChange);
    EXPECT_TRUE(Found(CF_UNICODETEXT));
}

TEST_F(WindowsClipboardTest, AClearingAloneTakesPlaceAtTheNextTurnOfTheEventLoop) {
    clipboard.SetData(ChartPicture(5, 5));
    clipboard.Clear();
    TakeMessages();
    EXPECT_FALSE(Found(CF_DIB));
}

TEST_F(WindowsClipboardTest, WhoLooksFromHereFindsTheClipboardClearedAtOnce) {
    clipboard.SetData(ChartPicture(5, 5));
    clipboard.Clear();
    EXPECT_FALSE(clipboard.HasBitmap());
    EXPECT_FALSE(Found(CF_DIB));
    clipboard.SetData(ChartPicture(5, 5));
    clipboard.Clear();
    EXPECT_TRUE(clipboard.GetData().IsEmpty());
    EXPECT_FALSE(Found(CF_DIB));
}

TEST_F(WindowsClipboardTest, AClearingTakesPlaceAtItsEndAtTheLatest) {
    {
        WindowsClipboard passing;
        passing.SetData(ChartPicture(5, 5));
        passing.Clear();
    }
    EXPECT_FALSE(Found(CF_DIB));
}

TEST_F(WindowsClipboardTest, WhatAnotherProgramLeavesAfterAClearingStays) {
    clipboard.SetText("words");
    clipboard.Clear();
    Leave(CF_DIB, DibOf(NoiseBitmap(8, 8, 1)));
    TakeMessages();
    EXPECT_EQ(clipboard.GetData().Width(), 8);
}

// A program that has the clipboard open, asks a window of this one something, and lets the clipboard go when
// it has been answered.
class AskingProgram {
public:
    AskingProgram() {
        std::promise<void> open;
        thread_ = std::thread([this, &open] {
            const HWND own = MakeWindow();
            while (OpenClipboard(own) == 0)
                std::this_thread::yield();
            open.set_value();
            SendMessageW(asked_, WM_NULL, 0, 0);
            CloseClipboard();
            DestroyWindow(own);
            hasEnded_ = true;
        });
        open.get_future().wait();
    }
    ~AskingProgram() {
        Await([this] {
            TakeMessages();
            return hasEnded_.load();
        });
        thread_.join();
        DestroyWindow(asked_);
    }
    AskingProgram(const AskingProgram&) = delete;
    AskingProgram& operator=(const AskingProgram&) = delete;

private:
    static HWND MakeWindow() {
        return CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    }

    HWND asked_ = MakeWindow();
    std::atomic<bool> hasEnded_ = false;
    std::thread thread_;
};

TEST_F(WindowsClipboardTest, AProgramThatHasItOpenIsAnsweredMeanwhile) {
    {
        const AskingProgram program;
        clipboard.SetText("kept");
    }
    const std::optional<Bytes> found = Found(CF_UNICODETEXT);
    ASSERT_TRUE(found);
    EXPECT_EQ(windows::Utf8(reinterpret_cast<const wchar_t*>(found->data())), "kept");
    Leave(CF_DIB, DibOf(NoiseBitmap(8, 8, 1)));
    const AskingProgram program;
    EXPECT_EQ(clipboard.GetData().Width(), 8);
}

} // namespace
} // namespace mirelle::test
