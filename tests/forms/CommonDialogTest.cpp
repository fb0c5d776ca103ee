#include "forms/CommonDialog.h"

#include "tests/support/ErrorOf.h"
#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::ErrorOf;

struct CommonDialogTest : testing::Test {
    test::ScriptedDialogs dialogs;
    CommonDialog dialog{dialogs};
};

TEST_F(CommonDialogTest, AsksForAFileWithItsFilterTitleAndFlags) {
    dialog.Filter = "JPG Files|*.jpg";
    dialog.DialogTitle = "Open to Canvas";
    dialog.Flags = 2050;
    dialogs.openAnswers.emplace_back("C:\\a.jpg");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "C:\\a.jpg");
    ASSERT_EQ(dialogs.dialogs.size(), 1U);
    EXPECT_EQ(dialogs.dialogs[0].open.filter, "JPG Files|*.jpg");
    EXPECT_EQ(dialogs.dialogs[0].open.title, "Open to Canvas");
    EXPECT_EQ(dialogs.dialogs[0].open.flags, 2050);
}

TEST_F(CommonDialogTest, CancellingKeepsWhatWasChosenLast) {
    dialogs.openAnswers.emplace_back("C:\\a.jpg");
    dialog.ShowOpen();
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "C:\\a.jpg");
    dialogs.colorAnswers.emplace_back(0xFF00);
    dialog.ShowColor();
    dialog.ShowColor();
    EXPECT_EQ(dialog.Color, 0xFF00);
}

TEST_F(CommonDialogTest, CancellingIsAnErrorWhereThatIsAskedFor) {
    EXPECT_FALSE(ErrorOf([&] { dialog.ShowOpen(); }).has_value());
    dialog.CancelError = true;
    EXPECT_EQ(ErrorOf([&] { dialog.ShowOpen(); }), ErrorNumber::DialogCancelled);
    EXPECT_EQ(ErrorOf([&] { dialog.ShowColor(); }), ErrorNumber::DialogCancelled);
    dialogs.colorAnswers.emplace_back(0);
    EXPECT_FALSE(ErrorOf([&] { dialog.ShowColor(); }).has_value());
}

} // namespace
} // namespace mirelle
