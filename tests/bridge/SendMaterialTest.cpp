#include "bridge/ConsoleSend.h"
#include "bridge/UncalledSends.h"
#include "tests/bridge/SentTexts.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

#include <new>

namespace mirelle::test {
namespace {

class SendMaterialTest : public ::testing::Test {
protected:
    SendMaterialTest() {
        files.AddFile("C:\\Mat\\brick.old.jpg");
        form.CurrentImagePath = "C:\\Mat\\brick.old.jpg";
        form.textProfileName.Text = "  Art_12 ";
    }
    void ListFiles() { form.File5.SetPath("C:\\Mat"); }
    std::vector<std::string> Sent() { return TakeSent(program.desktop.console); }
    std::vector<std::string> Messages() {
        std::vector<std::string> texts;
        for (const ShownMessage& message : program.desktop.dialogs.messages)
            texts.push_back(message.text);
        program.desktop.dialogs.messages.clear();
        return texts;
    }
    using Texts = std::vector<std::string>;

    TestProgram program;
    MemoryFileSystem& files = program.files;
    FrmPicX& form = program.form;
    const std::string activate = "AppActivate Ruby Console";
    const std::string shell = "CreateObject WScript.Shell";
    const std::string preamble = "SendKeys " + kPreambleText;
    const std::string textureLine = "material.texture = \"C:\\\\Mat\\\\brick.old.jpg\"\r";
};

TEST_F(SendMaterialTest, ANewMaterialGoesInTwoCalls) {
    ListFiles();
    form.Command6.UserClick();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble,
                             "SendKeys material = materials.add \"Art_12\"\r" + textureLine}));
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(form.textProfileName.Text(), "  Art_12 ");
}

TEST_F(SendMaterialTest, TheSizeGoesInACallOfItsOwn) {
    ListFiles();
    form.ckSize.Value = kChecked;
    form.TextMatSize.Text = "2ft";
    const struct {
        int unit;
        const char* line;
    } rows[] = {{0, "material.texture.size=2\r"},
                {1, "material.texture.size=24\r"},
                {2, "material.texture.size=78.74\r"}};
    for (const auto& row : rows) {
        form.optUnits(row.unit).UserClick();
        form.Command6.UserClick();
        const Texts sent = Sent();
        ASSERT_EQ(sent.size(), 5U);
        EXPECT_EQ(sent[4], std::string("SendKeys ") + row.line);
    }
    form.TextMatSize.Text = "wide";
    form.Command7.Click();
    const Texts sent = Sent();
    ASSERT_EQ(sent.size(), 6U);
    EXPECT_EQ(sent[5], "SendKeys material.texture.size=0\r");
}

TEST_F(SendMaterialTest, AChangeOfTextureGoesInThreeCallsWithTheNameAsTyped) {
    ListFiles();
    form.textProfileName.Text = " \"Old wall\" ";
    form.Command7.UserClick();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble,
                             "SendKeys material = Sketchup.active_model.materials[\"Old wall\"]\r",
                             "SendKeys " + textureLine}));
}

TEST_F(SendMaterialTest, NothingToSendIsToldInOrder) {
    form.textProfileName.Text = "";
    form.Command6.UserClick();
    EXPECT_EQ(Messages(),
              Texts{"Select image directory, and name material before sending materials to SketchUp"});
    EXPECT_EQ(form.textProfileName.Text(), "Enter Image Name");
    form.Command6.UserClick();
    EXPECT_EQ(Messages(), Texts{"Select directory with images before sending materials to SketchUp"});
    ListFiles();
    form.textProfileName.Text = "";
    form.Command6.UserClick();
    EXPECT_EQ(Messages(), Texts{"Enter image name before sending material to SketchUp"});
    EXPECT_EQ(form.textProfileName.Text(), "Enter Image Name");
    EXPECT_TRUE(Sent().empty());
    form.Command6.UserClick(); // the placeholder is a name like any other
    EXPECT_EQ(Sent().at(3), "SendKeys material = materials.add \"Enter Image Name\"\r" + textureLine);
}

TEST_F(SendMaterialTest, NothingToRetextureIsToldInOrder) {
    form.Command7.UserClick();
    EXPECT_EQ(Messages(), Texts{"Select directory with images before applying texture to SketchUp"});
    form.textProfileName.Text = "";
    form.Command7.UserClick();
    EXPECT_EQ(Messages(),
              Texts{"Select directory and image before applying texture and enter exact material name (in "
                    "quotes) before changing its texture in SketchUp"});
    EXPECT_EQ(form.textProfileName.Text(), "\"EnterMaterialName\"");
    EXPECT_TRUE(Sent().empty());
}

TEST_F(SendMaterialTest, WithNoFileEverClickedThePathIsEmpty) {
    ListFiles();
    form.CurrentImagePath = Variant();
    form.Command6.UserClick();
    EXPECT_EQ(Sent().at(3), "SendKeys material = materials.add \"Art_12\"\rmaterial.texture = \"\"\r");
}

TEST_F(SendMaterialTest, WithoutAConsoleTheMessageComesAndNothingIsTyped) {
    ListFiles();
    program.desktop.console.present = false;
    for (CommandButton* button : {&form.Command6, &form.Command7}) {
        button->Click();
        EXPECT_EQ(Sent(), Texts{"AppActivate Ruby Console failed"});
        EXPECT_EQ(Messages(), Texts{"Make sure the Ruby Console is visible"});
    }
}

TEST_F(SendMaterialTest, ALineThatCannotBeTypedIsToldAsAMissingConsoleAndWhatWasTypedStays) {
    ListFiles();
    program.desktop.console.refusedKeys = "materials.add";
    form.Command6.UserClick();
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble}));
    EXPECT_EQ(Messages(), (Texts{"Make sure the Ruby Console is visible"}));
}

TEST_F(SendMaterialTest, ASendThatRunsOutOfMemoryEndsSilently) {
    bool ran = false;
    EXPECT_NO_THROW(RunSend(form, [&] {
        ran = true;
        throw std::bad_alloc();
    }));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(SendMaterialTest, NamesGoOutAsTheyStand) {
    ListFiles();
    form.textProfileName.Text = "wall + brick (50%) {a} ~^";
    form.Command6.UserClick();
    EXPECT_EQ(Sent().at(3),
              "SendKeys material = materials.add \"wall + brick (50%) {a} ~^\"\r" + textureLine);
}

TEST_F(SendMaterialTest, TheToggleChangesButtonsNameAndTip) {
    ListFiles();
    form.File5.SetListIndex(0);
    form.cmdReMat.UserClick();
    EXPECT_TRUE(form.Command7.Visible);
    EXPECT_FALSE(form.Command6.Visible);
    EXPECT_EQ(form.textProfileName.Text(), "\"\"");
    EXPECT_EQ(form.textProfileName.BackColor, 0x800080);
    EXPECT_EQ(form.textProfileName.ToolTipText(),
              "Enter \" Material Name \" to attach new texture to as currently selected image");
    form.Command7.UserClick();
    EXPECT_EQ(Sent().at(3), "SendKeys material = Sketchup.active_model.materials[\"\"]\r");
    form.cmdReMat.UserClick();
    EXPECT_FALSE(form.Command7.Visible);
    EXPECT_TRUE(form.Command6.Visible);
    EXPECT_EQ(form.textProfileName.Text(), "brick");
    EXPECT_EQ(form.textProfileName.BackColor, 0);
    EXPECT_EQ(
        form.textProfileName.ToolTipText(),
        "Fast Save: Select/Enter file and material name for save; select Increment Checkbox to increment");
}

TEST_F(SendMaterialTest, TheLayerBlockIsTypedWithItsBraceEscapes) {
    ApplyMaterialToLayerFaces(form);
    EXPECT_EQ(Sent(),
              (Texts{shell, activate,
                     "SendKeys Sketchup.active_model.selection.each{{}|e|\rif e.layer.name ==\"Tarquell\"\r"
                     "if e.is_a?(Sketchup::Face)\rend\rend\rmn =\"Art_12\"\re.material = mn\r"
                     "e.back_material = mn{}}\r"}));
}

TEST_F(SendMaterialTest, TheLayerBlockIsTypedWithoutAConsoleToo) {
    program.desktop.console.present = false;
    ApplyMaterialToLayerFaces(form);
    EXPECT_EQ(Sent().size(), 3U);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(SendMaterialTest, TheSendAfterSavePausesAndLeavesTheNameBare) {
    SendMaterialAfterSave(form, "Ruby Console", "brick.jpg");
    EXPECT_EQ(Sent(), (Texts{activate, shell, preamble, "Pause 1",
                             "SendKeys material = materials.add brick\r" + textureLine}));
    SendMaterialAfterSave(form);
    EXPECT_EQ(Sent(), Texts{"AppActivate  failed"});
    EXPECT_EQ(Messages(), Texts{"Make sure the Ruby Console is visible"});
}

} // namespace
} // namespace mirelle::test
