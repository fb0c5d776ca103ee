// Documents go to the program that Windows has for them.
#include "desktop/windows/WindowsViewer.h"

#include "desktop/windows/Wide.h"
#include "tests/desktop/windows/ConsoleProcess.h"

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

TEST(WindowsViewer, OpensATargetInItsWorkingFolder) {
    const TemporaryFolder folder;
    folder.MakeFile("note.bat", "cd > where.txt\r\n");
    WindowsViewer viewer;
    viewer.Open(folder / "note.bat", folder.Path(), 0);
    EXPECT_TRUE(Await([&] {
        return folder.ContentOf("where.txt").find("mirelle-test-") != std::string::npos;
    })) << folder.ContentOf("where.txt");
}

TEST(WindowsViewer, ShowsWhatItOpensAsItIsTold) {
    for (const int showMode : {SW_HIDE, SW_SHOWMAXIMIZED}) {
        const TemporaryFolder folder;
        WindowsViewer viewer;
        viewer.Open(windows::Utf8(ProgramPath(L"show_teller.exe")), folder.Path(), showMode);
        EXPECT_TRUE(Await([&] { return folder.ContentOf("shown.txt") == std::to_string(showMode) + "\n"; }))
            << folder.ContentOf("shown.txt");
    }
}

// How Windows was asked.
struct Asked {
    HWND window;
    bool hasOperation;
    std::string target;
    bool hasParameters;
    std::string workingFolder;
    int showMode;
};
std::vector<Asked> asked;

HINSTANCE WINAPI Note(HWND window, LPCWSTR operation, LPCWSTR target, LPCWSTR parameters,
                      LPCWSTR workingFolder, INT showMode) {
    asked.push_back({window, operation != nullptr, windows::Utf8(target), parameters != nullptr,
                     windows::Utf8(workingFolder), showMode});
    return nullptr;
}

TEST(WindowsViewer, AsksInTheNameOfTheWindowThatTheUserWorksWith) {
    const HWND window = CreateWindowW(L"STATIC", L"Manual", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 200,
                                      100, nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(window);
    asked.clear();
    WindowsViewer(Note).Open("C:\\Häuser\\字.pdf", "C:\\", 0);
    DestroyWindow(window);
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0].window, window);
    EXPECT_FALSE(asked[0].hasOperation);
    EXPECT_EQ(asked[0].target, "C:\\Häuser\\字.pdf");
    EXPECT_FALSE(asked[0].hasParameters);
    EXPECT_EQ(asked[0].workingFolder, "C:\\");
    EXPECT_EQ(asked[0].showMode, 0);
}

TEST(WindowsViewer, KeepsSilentAboutWhatIsMissing) {
    const TemporaryFolder folder;
    WindowsViewer viewer;
    viewer.Open(folder / "none.pdf", folder.Path(), 0);
    viewer.Open("", "", 0);
}

} // namespace
} // namespace mirelle::test
