// Runs the encoder while memory runs out, at each place where it asks for some, and what makes the other
// files.
#include "codecs/BmpWriter.h"
#include "codecs/cJPEG.h"
#include "codecs/tiff/ByteArray.h"
#include "codecs/TiffWriter.h"
#include "tests/codecs/ScarceMemory.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/MemoryFileSystem.h"
#include "tests/support/Patterns.h"

#include <optional>

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Holds what is written; the room for it is there before memory runs out.
class KeepingFileSystem : public MemoryFileSystem {
public:
    KeepingFileSystem() { written.reserve(1 << 22); }
    bool FileExists(const std::string&) const override { return false; }
    void WriteFile(const std::string&, std::span<const std::uint8_t> bytes) override {
        written.assign(bytes.begin(), bytes.end());
    }
    Bytes written;
};

struct Way {
    const char* name;
    int width, height;
    bool surface; // or an array
    Scarcity scarcity;
};

class JpegMemoryTest : public ::testing::TestWithParam<Way> {
protected:
    // The number of the error; nothing where the file was written. A surface that can't be made counts as 7.
    std::optional<ErrorNumber> Encode() {
        files_.written.clear();
        try {
            cJPEG jpeg;
            const Way& way = GetParam();
            const int sampled =
                way.surface ? jpeg.SampleHDC(picture_.Pixels(), way.width, way.height)
                            : jpeg.SampleDATA(data_, way.width, way.height, way.width, way.height, 0, 0);
            if (sampled != cJPEG::kDone) return ErrorNumber::OutOfMemory;
            jpeg.SaveFileJPG("C:\\a.jpg", files_);
            return std::nullopt;
        } catch (const RunTimeError& error) {
            return error.Number();
        }
    }

    Picture picture_ = ChartPicture(GetParam().width, GetParam().height, 3);
    Bytes data_ = Bytes(
        static_cast<std::size_t>(GetParam().width) * static_cast<std::size_t>(GetParam().height) * 3, 0x5A);
    KeepingFileSystem files_;
};

TEST_P(JpegMemoryTest, EveryAllocationThatFailsIsToldOrDoneWithout) {
    ASSERT_EQ(Encode(), std::nullopt);
    const Bytes whole = files_.written;
    long told = 0;
    for (long allocations = 0;; ++allocations) {
        std::optional<ErrorNumber> error;
        {
            const MemoryFor memory(allocations, GetParam().scarcity);
            error = Encode();
        }
        if (error) {
            ASSERT_EQ(error, ErrorNumber::OutOfMemory) << "after " << allocations;
            ++told;
        } else {
            ASSERT_EQ(files_.written, whole) << "after " << allocations;
        }
        if (!MemoryFor::RanOut()) break;
    }
    EXPECT_GT(told, 10);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, JpegMemoryTest,
    ::testing::Values(Way{"SmallSurface", 20, 20, true, Scarcity::FromThereOn},
                      Way{"SmallArray", 20, 20, false, Scarcity::FromThereOn},
                      Way{"SurfaceForThreads", 640, 400, true, Scarcity::FromThereOn},
                      Way{"SurfaceForThreadsOneFailure", 640, 400, true, Scarcity::OneAlone},
                      Way{"ArrayForThreadsOneFailure", 640, 400, false, Scarcity::OneAlone}),
    [](const auto& way) { return way.param.name; });

TEST(FilesMemoryTest, FilesAndArraysWithoutRoomAreTold) {
    const Bitmap bitmap(8, 8);
    tiff::ByteArray array;
    const auto errorOf = [](const auto& make) {
        const MemoryFor memory(0);
        return ErrorOf(make);
    };
    EXPECT_EQ(errorOf([&] { (void)BmpFile(bitmap); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(errorOf([&] { (void)TiffFile(bitmap); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(errorOf([&] { tiff::Resize(array, 100); }), ErrorNumber::OutOfMemory);
    EXPECT_TRUE(array.empty());
}

} // namespace
} // namespace mirelle::test
