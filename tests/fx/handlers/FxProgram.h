// The program with a pasted picture, as the FX tests begin.
#pragma once

#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {

class FxProgramTest : public ::testing::Test {
protected:
    void Paste(const Picture& picture) {
        program.desktop.clipboard.bitmap = picture;
        form.Command5.Click();
    }
    const Bitmap& Canvas() const { return form.PicImage.Picture().Pixels(); }
    static Picture Flat(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
        return Picture(Bitmap(6, 5, Pixel{blue, green, red, 0}));
    }

    TestProgram program;
    FrmPicX& form = program.form;
};

} // namespace mirelle::test
