// List boxes and combo boxes.
#include "forms/Lists.h"

#include "tests/forms/TestForm.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::ErrorOf;
using testing::ElementsAre;

struct ListsTest : testing::Test, test::TestForm {
    ListBox list{form, "List1"};
    ComboBox combo{form, "Combo1"};
    int clicks = 0;
    int changes = 0;

    void SetUp() override {
        for (const char* row : {"a", "b", "c"}) {
            list.AddItem(row);
            combo.AddItem(row);
        }
        list.Click.Connect([this] { ++clicks; });
        combo.Click.Connect([this] { ++clicks; });
        combo.Change.Connect([this] { ++changes; });
    }
};

TEST_F(ListsTest, RowsBeyondTheEndReadAsNothing) {
    EXPECT_EQ(list.List(2), "c");
    EXPECT_EQ(list.List(3), "");
    EXPECT_EQ(list.List(-1), "");
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ListsTest, ARowBecomesCurrentWithAClickAlsoWhenItIsAlready) {
    list.SetListIndex(1);
    list.SetListIndex(1);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.Text(), "b");
    list.SetListIndex(kNoRow);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.ListIndex(), kNoRow);
}

TEST_F(ListsTest, ARowThatDoesNotExistIsRefused) {
    list.SetListIndex(1);
    EXPECT_EQ(ErrorOf([&] { list.SetListIndex(3); }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { list.SetListIndex(-2); }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { list.RemoveItem(3); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([&] { list.RemoveItem(-1); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([&] { list.SetList(3, "x"); }), ErrorNumber::InvalidPropertyArrayIndex);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(list.Rows(), ElementsAre("a", "b", "c"));
}

TEST_F(ListsTest, TheCurrentRowStaysWithItsTextWhenOthersAreRemoved) {
    list.SetListIndex(1);
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), 1);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.Text(), "b");
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), kNoRow);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ListsTest, AListTakesTheRowEqualToATextOrNone) {
    list.SetText("c");
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(clicks, 1);
    list.SetText("C");
    EXPECT_EQ(list.ListIndex(), kNoRow);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ListsTest, AClickOnAListNeedsACurrentRow) {
    list.UserClick();
    EXPECT_EQ(clicks, 0);
    list.SetListIndex(0);
    list.UserClick();
    EXPECT_EQ(clicks, 2);
}

TEST_F(ListsTest, AnEmptiedListHasNoCurrentRow) {
    list.SetListIndex(1);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), kNoRow);
}

TEST_F(ListsTest, ARowsTextIsReplacedWithoutAClick) {
    list.SetList(1, "new");
    EXPECT_EQ(list.List(1), "new");
    EXPECT_EQ(clicks, 0);
}

TEST_F(ListsTest, ChoosingInAComboBoxSetsTheTextAndRunsClickAlone) {
    std::string seen;
    combo.Click.Connect([&] { seen = combo.Text; });
    combo.SetListIndex(1);
    EXPECT_EQ(combo.Text(), "b");
    EXPECT_EQ(seen, "b");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 0);
}

TEST_F(ListsTest, ATypedTextRunsChangeAloneAndLeavesNoRowCurrent) {
    combo.SetListIndex(1);
    combo.Text = "a";
    EXPECT_EQ(combo.ListIndex(), kNoRow);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(clicks, 1);
    combo.Text = "a";
    EXPECT_EQ(changes, 1);
}

TEST_F(ListsTest, AComboBoxIsClickedAlsoWithoutACurrentRow) {
    combo.Text = "typed";
    combo.UserClick();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(combo.Text(), "typed");
}

TEST_F(ListsTest, AnEmptiedComboBoxHasNoText) {
    combo.SetListIndex(1);
    combo.Clear();
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace mirelle
