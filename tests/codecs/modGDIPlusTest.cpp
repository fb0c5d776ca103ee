#include "codecs/modGDIPlus.h"

#include "forms/RunTimeError.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace mirelle {
namespace {

// Keeps what it is asked for, in order.
class RecordingEncoders : public ImageEncoders {
public:
    void Start() override {
        if (startsFail) throw RunTimeError(ErrorNumber::OutOfMemory);
        calls.emplace_back("start");
    }
    void Stop() override { calls.emplace_back("stop"); }
    bool Save(const Picture&, ImageFormat asked, const std::string& path) override {
        calls.push_back("save " + path);
        format = asked;
        if (error) throw RunTimeError(*error);
        return succeeds;
    }

    std::vector<std::string> calls;
    std::optional<ImageFormat> format;
    std::optional<ErrorNumber> error;
    bool startsFail = false;
    bool succeeds = true;
};

class GdiPlusTest : public testing::Test {
protected:
    bool Save(const std::string& name) { return SaveImageGDIPlus(encoders_, picture_, name); }

    RecordingEncoders encoders_;
    Picture picture_{Bitmap(2, 2)};
};

struct NameAndFormat {
    const char* name;
    std::optional<ImageFormat> format;
};

class GdiPlusNameTest : public GdiPlusTest, public testing::WithParamInterface<NameAndFormat> {};

TEST_P(GdiPlusNameTest, DecidesTheFormat) {
    EXPECT_EQ(Save(GetParam().name), GetParam().format.has_value());
    EXPECT_EQ(encoders_.format, GetParam().format);
    EXPECT_EQ(encoders_.calls.size(), GetParam().format ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(
    ModGdiPlus, GdiPlusNameTest,
    testing::Values(
        NameAndFormat{"C:\\Art\\wall_1.png", ImageFormat::Png}, NameAndFormat{"wall.gif", ImageFormat::Gif},
        NameAndFormat{"wall.jpg", ImageFormat::Jpeg}, NameAndFormat{"wall.jpeg", ImageFormat::Jpeg},
        NameAndFormat{"wall.tif", ImageFormat::Tiff}, NameAndFormat{"wall.tiff", ImageFormat::Tiff},
        NameAndFormat{"wall.bmp", ImageFormat::Bmp}, NameAndFormat{"WALL.TIFF", ImageFormat::Tiff},
        NameAndFormat{"WALL.Png", ImageFormat::Png}, NameAndFormat{".png", ImageFormat::Png},
        // two of the table's rows have no point
        NameAndFormat{"walljpeg", ImageFormat::Jpeg}, NameAndFormat{"jpeg", ImageFormat::Jpeg},
        NameAndFormat{"walltiff", ImageFormat::Tiff}, NameAndFormat{"wallpng", std::nullopt},
        NameAndFormat{"", std::nullopt}, NameAndFormat{"png", std::nullopt},
        NameAndFormat{"wall", std::nullopt}, NameAndFormat{"wall.tga", std::nullopt},
        NameAndFormat{"wall.psd", std::nullopt}, NameAndFormat{"wall.png ", std::nullopt},
        NameAndFormat{"wall.png.tga", std::nullopt}));

TEST_F(GdiPlusTest, HandsTheNameOnAsItIs) {
    EXPECT_TRUE(Save("C:\\Art\\WALL 1.Png"));
    EXPECT_EQ(encoders_.calls, (std::vector<std::string>{"save C:\\Art\\WALL 1.Png"}));
}

TEST_F(GdiPlusTest, SavesNoEmptyPicture) {
    EXPECT_FALSE(SaveImageGDIPlus(encoders_, Picture(), "wall.png"));
    EXPECT_TRUE(encoders_.calls.empty());
}

TEST_F(GdiPlusTest, TellsAFailureByItsResultAlone) {
    encoders_.succeeds = false;
    EXPECT_FALSE(Save("wall.png"));
    encoders_.succeeds = true;
    encoders_.error = ErrorNumber::DiskFull;
    EXPECT_FALSE(Save("wall.png"));
}

TEST_F(GdiPlusTest, StartsAndStopsTheEncodersAroundASave) {
    const std::int32_t token = StartGDIPlus(encoders_);
    EXPECT_NE(token, 0);
    EXPECT_TRUE(Save("wall.gif"));
    StopGDIPlus(encoders_, token);
    EXPECT_EQ(encoders_.calls, (std::vector<std::string>{"start", "save wall.gif", "stop"}));
}

TEST_F(GdiPlusTest, StopsNothingThatDidNotStart) {
    encoders_.startsFail = true;
    const std::int32_t token = StartGDIPlus(encoders_);
    EXPECT_EQ(token, 0);
    StopGDIPlus(encoders_, token);
    EXPECT_TRUE(encoders_.calls.empty());
}

TEST(EncoderClsid, IsFoundByItsMimeTypeInAnyCase) {
    EXPECT_EQ(GetEncoderClsid("image/png"), ImageFormat::Png);
    EXPECT_EQ(GetEncoderClsid("image/gif"), ImageFormat::Gif);
    EXPECT_EQ(GetEncoderClsid("IMAGE/Jpeg"), ImageFormat::Jpeg);
    EXPECT_EQ(GetEncoderClsid("image/TIFF"), ImageFormat::Tiff);
    EXPECT_EQ(GetEncoderClsid("image/bmp"), ImageFormat::Bmp);
    EXPECT_EQ(GetEncoderClsid("image/webp"), std::nullopt);
    EXPECT_EQ(GetEncoderClsid("image/pn"), std::nullopt);
    EXPECT_EQ(GetEncoderClsid(""), std::nullopt);
}

} // namespace
} // namespace mirelle
