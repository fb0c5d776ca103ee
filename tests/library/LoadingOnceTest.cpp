#include "library/LoadingOnce.h"

#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class LoadingOnceTest : public ::testing::Test {
protected:
    TestProgram program;
    FrmPicX& form = program.form;
    Picture picture = ChartPicture(8, 6);
};

TEST_F(LoadingOnceTest, DecodesTheFileForTheFirstHolderAlone) {
    program.loader.pictures["a.jpg"] = picture;
    LoadingOnce file(program.loader, "a.jpg");
    EXPECT_EQ(program.loader.loads, 0);
    file.Into(form.PicImage);
    file.Into(form.Imagex);
    file.Into(form.Pic1);
    EXPECT_EQ(program.loader.loads, 1);
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Imagex.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Pic1.Picture().SharesPixelsWith(picture));
}

TEST_F(LoadingOnceTest, FileThatCannotBeLoadedIsTriedOnceAndChangesNoHolder) {
    const Picture former = ChartPicture(3, 3);
    form.PicImage.Picture = former;
    form.Pic1.Picture = former;
    for (const char* path : {"missing.jpg", "no picture.jpg"}) {
        program.loader.loads = 0;
        program.loader.pictures["no picture.jpg"] = Picture();
        LoadingOnce file(program.loader, path);
        file.Into(form.PicImage);
        file.Into(form.Pic1);
        EXPECT_EQ(program.loader.loads, 1) << path;
        EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former)) << path;
        EXPECT_TRUE(form.Pic1.Picture().SharesPixelsWith(former)) << path;
    }
}

} // namespace
} // namespace mirelle::test
