// The whole road in the program for Windows, as its user has unpacked it, under Wine: what the window titled
// "Ruby Console" received there is what it receives here, but for the paths.
#include "tests/desktop/road/Grab.h"
#include "tests/desktop/road/SavedFiles.h"
#include "tests/desktop/road/Walk.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/road/Await.h"

#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

using road::Console;
using road::ConsoleOf;
using road::Road;
using road::TakeFromClipboard;
using road::WindowsProgram;

// MIRELLE_WINDOWS_TREE names the unpacked folder, MIRELLE_WINDOWS_PICTURES the one for pictures of the
// screen, MIRELLE_WINDOWS_TOOLS the one with the programs that stand around, MIRELLE_WINE what runs programs
// for Windows.
std::string Told(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr) throw std::runtime_error(std::string(name) + " is not set");
    return value;
}

class WindowsRoad : public testing::Test {
protected:
    WindowsRoad() {
        std::filesystem::copy(Told("MIRELLE_WINDOWS_TREE"), home_, std::filesystem::copy_options::recursive);
    }

    std::string Tool(const std::string& name) const {
        return Told("MIRELLE_WINDOWS_TOOLS") + "/" + name + ".exe";
    }
    auto EditConsole() const {
        return ConsoleOf({wine_, Tool("edit_console"), "Ruby Console", "1130", "40", "500", "780"});
    }
    std::string Grab() const {
        const std::string file = folder_ / "grab.bmp";
        MakeGrab(file);
        return file;
    }
    void Shoot(Road& road, const std::string& name) const {
        road.TheDesk().TakePicture(Told("MIRELLE_WINDOWS_PICTURES") + "/" + name + ".png");
    }

    TemporaryFolder folder_;
    std::string home_ = folder_.MakeFolder("Häuser, à côté [2]");
    std::string wine_ = Told("MIRELLE_WINE");
};

TEST_F(WindowsRoad, LeavesWhatWasSentInTheModelLineByLine) {
    const Console console(folder_.Path(), EditConsole());
    Road road(WindowsProgram(wine_, Tool("widget_teller"), home_));
    road.TheDesk().PlaceWindow("Mirelle", {8, 32, 1100, 780});
    Walk walk(road, console);
    WalkOrTell(road, [&] {
        Shoot(road, "1-started");
        walk.Crop(Grab());
        Shoot(road, "2-cropped");
        walk.SaveInEveryForm(Grab());
        Shoot(road, "3-saved");
        walk.SaveAndSend();
        Shoot(road, "4-sent");
        walk.SendFolderAndList();
        Shoot(road, "5-list-sent");
        walk.SendColour();
        Shoot(road, "6-colour-sent");
    });
    EXPECT_EQ(console.Ask("Typed.lines"), walk.Lines());
    EXPECT_EQ(console.Ask("Typed.errors"), "[]");
}

TEST_F(WindowsRoad, WhatWasCopiedOutlivesTheProgram) {
    // Under Wine the desktop, which has the clipboard, goes with the last window.
    const Console console(folder_.Path(), EditConsole());
    Road road(WindowsProgram(wine_, Tool("widget_teller"), home_));
    const road::LibraryFile file{"Art", "Art_2.jpg"};
    const std::string wanted = PixelsOf(road.FileOf(file));
    const std::string copied = folder_ / "copied.bmp";
    const auto isThere = [&] {
        TakeFromClipboard(copied);
        return MeanDifference(PixelsOf(copied), wanted) <= 1; // two decoders
    };
    WalkOrTell(road, [&] {
        road.Select(file);
        road.Press("Copy current Material Image to left to clipboard; pastes as full screen");
        // The two clipboards, Wine's and the display's, take a moment to agree.
        road::Await("the copied picture", isThere);
        road.Close();
    });
    EXPECT_NO_THROW(EXPECT_TRUE(isThere()));
}

} // namespace
} // namespace mirelle::test
