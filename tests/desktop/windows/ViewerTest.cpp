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

TEST(WindowsViewer, KeepsSilentAboutWhatIsMissing) {
    const TemporaryFolder folder;
    WindowsViewer viewer;
    viewer.Open(folder / "none.pdf", folder.Path(), 0);
    viewer.Open("", "", 0);
}

} // namespace
} // namespace mirelle::test
