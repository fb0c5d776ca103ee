#include "tests/driver/TestConversation.h"

#include "tests/support/Patterns.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace mirelle::driver {
namespace {

using testing::StartsWith;

struct DesktopCommands : testing::Test {
    TestConversation say;
    test::TemporaryFolder folder;

    void SetUp() override {
        say.pictures["/tmp/grab.png"] = test::ChartPicture(5, 3, 9);
        ASSERT_EQ(say("start"), "ok");
    }
    Ports& Desktop() { return say.Form().ports; }
};

std::string BytesOf(const Picture& picture) {
    std::string bytes;
    for (const Pixel& pixel : picture.Pixels().Pixels()) {
        for (const std::uint8_t byte : {pixel.blue, pixel.green, pixel.red, pixel.fourth})
            bytes += static_cast<char>(byte);
    }
    return bytes;
}

TEST_F(DesktopCommands, TheClipboardHoldsAPictureATextOrNothing) {
    EXPECT_EQ(say("clipboard kind"), R"(ok ["none"])");
    EXPECT_EQ(say("clipboard load /tmp/grab.png"), "ok");
    EXPECT_EQ(say("clipboard kind"), R"(ok ["bitmap"])");
    EXPECT_EQ(Desktop().clipboard.GetData().Width(), 5);
    EXPECT_EQ(say("clipboard text \"C:\\\\a b.jpg\""), "ok");
    EXPECT_EQ(say("clipboard kind"), R"(ok ["text","C:\\a b.jpg"])");
    EXPECT_FALSE(Desktop().clipboard.HasBitmap());
    EXPECT_EQ(say("clipboard clear"), "ok");
    EXPECT_EQ(say("clipboard kind"), R"(ok ["none"])");
}

TEST_F(DesktopCommands, APictureThatCannotBeReadIsNoUsageFault) {
    EXPECT_EQ(say("clipboard load /tmp/none.png"), "error can't read /tmp/none.png");
    EXPECT_EQ(say("load PicImage /tmp/none.png"), "error can't read /tmp/none.png");
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

TEST_F(DesktopCommands, TheClipboardsPictureIsSavedByteForByte) {
    const std::string path = folder / "clip.bgrx";
    EXPECT_EQ(say("clipboard save " + path), "ok null");
    EXPECT_FALSE(std::filesystem::exists(path));
    say("clipboard load /tmp/grab.png");
    EXPECT_EQ(say("clipboard save " + path), "ok [5,3]");
    EXPECT_EQ(folder.ContentOf("clip.bgrx"), BytesOf(test::ChartPicture(5, 3, 9)));
}

TEST_F(DesktopCommands, HoldersTakePicturesAndShowTheirLayers) {
    EXPECT_EQ(say("load picSmall /tmp/grab.png"), "ok");
    EXPECT_EQ(say("get picSmall.Width"), "ok 5");
    EXPECT_EQ(say("dump picSmall.Picture " + (folder / "a")), "ok [5,3]");
    EXPECT_EQ(folder.ContentOf("a"), BytesOf(test::ChartPicture(5, 3, 9)));
    EXPECT_EQ(say("point picSmall 4 2"), "ok " + std::to_string(RGB(9, 2, 4)));
    EXPECT_EQ(say("point picSmall 5 2"), "ok -1");
    EXPECT_EQ(say("load Imagex /tmp/grab.png"), "ok");
    EXPECT_EQ(say("dump Imagex.Picture " + (folder / "b")), "ok [5,3]");
    EXPECT_EQ(say("window normal 20 10"), "ok");
    EXPECT_EQ(say("load Form /tmp/grab.png"), "ok");
    EXPECT_EQ(say("dump Form.Picture " + (folder / "c")), "ok [5,3]");
    EXPECT_EQ(say("dump Form.Image " + (folder / "d")), "ok [20,10]");
    EXPECT_EQ(folder.ContentOf("d").size(), 800U);
    EXPECT_EQ(say("point Form 19 9"), "ok " + std::to_string(say.Form().BackColor()));
}

TEST_F(DesktopCommands, AnEmptyPictureLeavesNoFile) {
    const std::string path = folder.MakeFile("old", "what an earlier dump left");
    EXPECT_EQ(say("dump PicImage.Picture " + path), "ok null");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(say("set picSmall.Width 0"), "ok");
    EXPECT_EQ(say("dump picSmall.Image " + path), "ok null");
}

TEST_F(DesktopCommands, AFileThatCannotBeWrittenIsTold) {
    EXPECT_THAT(say("dump Form.Image " + (folder / "no/such/folder")), StartsWith("error can't write "));
    EXPECT_THAT(say("dump Form.Image \"a\\u0000b\""), StartsWith("error "));
    EXPECT_EQ(say.conversation.ExitStatus(), 0);
}

TEST_F(DesktopCommands, PointReadsInTheHoldersOwnScale) {
    say("load Picture1 /tmp/grab.png"); // a box in twips
    EXPECT_EQ(say("point Picture1 60 30"), "ok " + std::to_string(RGB(9, 2, 4)));
}

TEST_F(DesktopCommands, DialogsTakeTheirAnswersInOrder) {
    say("answer open C:\\a.jpg");
    say("answer open cancel");
    say("answer input \"\"");
    say("answer input \"12 5\"");
    say("answer input cancel");
    say("answer color 16711680");
    say("answer color cancel");
    Dialogs& dialogs = Desktop().dialogs;
    EXPECT_EQ(dialogs.ShowOpen({}), "C:\\a.jpg");
    EXPECT_EQ(dialogs.ShowOpen({}), std::nullopt);
    EXPECT_EQ(dialogs.InputBox("", "", ""), "");
    EXPECT_EQ(dialogs.InputBox("", "", ""), "12 5");
    EXPECT_EQ(dialogs.InputBox("", "", "default"), "");
    EXPECT_EQ(dialogs.ShowColor(0), 0xFF0000);
    EXPECT_EQ(dialogs.ShowColor(0), std::nullopt);
}

TEST_F(DesktopCommands, WithoutAnAnswerDialogsAreCancelledAndQuestionsDenied) {
    Dialogs& dialogs = Desktop().dialogs;
    EXPECT_EQ(dialogs.ShowOpen({}), std::nullopt);
    EXPECT_EQ(dialogs.ShowColor(0), std::nullopt);
    EXPECT_EQ(dialogs.InputBox("", "", "default"), "");
    EXPECT_EQ(dialogs.MsgBox("", MessageButtons::Ok, ""), MessageAnswer::Ok);
    EXPECT_EQ(dialogs.MsgBox("", MessageButtons::YesNo, ""), MessageAnswer::No);
    say("answer msg yes");
    EXPECT_EQ(dialogs.MsgBox("", MessageButtons::YesNo, ""), MessageAnswer::Yes);
}

TEST_F(DesktopCommands, MessagesAreToldOnceOldestFirst) {
    Desktop().dialogs.MsgBox("Open \"cancelled\"", MessageButtons::Ok, "Mirelle");
    Desktop().dialogs.MsgBox("Overwrite?", MessageButtons::YesNo, "T");
    EXPECT_EQ(say("messages"), R"(ok [{"text":"Open \"cancelled\"","title":"Mirelle","buttons":"ok"},)"
                               R"({"text":"Overwrite?","title":"T","buttons":"yesno"}])");
    EXPECT_EQ(say("messages"), "ok []");
}

TEST_F(DesktopCommands, DialogsAreToldOnceWithWhatTheyAskedFor) {
    Desktop().dialogs.ShowOpen({"JPG Files|*.jpg", "Open to Canvas", 2050});
    Desktop().dialogs.ShowColor(0);
    Desktop().dialogs.InputBox("Percent", "Contrast", "15");
    EXPECT_EQ(say("dialogs"),
              R"(ok [{"kind":"open","title":"Open to Canvas","filter":"JPG Files|*.jpg","flags":2050},)"
              R"({"kind":"color"},{"kind":"input","prompt":"Percent","title":"Contrast","default":"15"}])");
    EXPECT_EQ(say("dialogs"), "ok []");
}

TEST_F(DesktopCommands, WhatWentOverTheConsoleChannelIsToldOnce) {
    ConsoleShell& console = Desktop().console;
    console.AppActivate("Ruby Console");
    console.CreateObject("WScript.Shell")->SendKeys("a = 1\rb\r");
    Desktop().pump.PauseBegins(1.25);
    Desktop().pump.PauseEnds();
    EXPECT_EQ(say("sent"), R"(ok [["AppActivate","Ruby Console"],["CreateObject","WScript.Shell"],)"
                           R"(["SendKeys","a = 1\rb\r"],["Pause",1.25]])");
    EXPECT_EQ(say("sent"), "ok []");
}

TEST_F(DesktopCommands, TheConsoleWindowMayBeAbsent) {
    EXPECT_EQ(say("console absent"), "ok");
    EXPECT_THROW(Desktop().console.AppActivate("Ruby Console"), RunTimeError);
    EXPECT_EQ(say("sent"), R"(ok [["AppActivate","Ruby Console","failed"]])");
    EXPECT_EQ(say("console present"), "ok");
    EXPECT_NO_THROW(Desktop().console.AppActivate("Ruby Console"));
}

TEST_F(DesktopCommands, DocumentsThatWereOpenedAreToldOnce) {
    Desktop().viewer.Open("C:\\Mirelle\\Support\\a.pdf", "C:\\", 0);
    EXPECT_EQ(say("opened"), R"(ok [["C:\\Mirelle\\Support\\a.pdf","C:\\",0]])");
    EXPECT_EQ(say("opened"), "ok []");
}

} // namespace
} // namespace mirelle::driver
