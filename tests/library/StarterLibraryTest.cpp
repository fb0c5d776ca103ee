// The library that the program comes with: its files are what the drawing tool makes, they are named by the
// rules of the counter, and laid side by side they show no seam.
#include "codecs/cJPEG.h"
#include "library/CategoryTable.h"
#include "library/FileNumber.h"
#include "library/LineInput.h"
#include "library/PrefixTable.h"
#include "tests/codecs/LibJpeg.h"
#include "tests/support/TestProgram.h"
#include "tools/starter/Starter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <regex>
#include <set>

namespace mirelle::starter {

void PrintTo(const StarterMaterial& material, std::ostream* out) {
    *out << material.name;
}

} // namespace mirelle::starter

namespace mirelle::test {
namespace {

using starter::StarterMaterial;
using starter::StarterMaterials;

const std::filesystem::path kSupport = std::filesystem::path(MIRELLE_SOURCE_FOLDER) / "Support";

std::vector<std::uint8_t> BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::filesystem::path PathOf(const StarterMaterial& material) {
    return kSupport / "Materials" / material.folder / (std::string(material.name) + ".jpg");
}

class StarterMaterialTest : public ::testing::TestWithParam<StarterMaterial> {};

TEST_P(StarterMaterialTest, IsDrawnByteForByteByTheTool) {
    const std::vector<std::uint8_t> shipped = BytesOf(PathOf(GetParam()));
    ASSERT_FALSE(shipped.empty());
    const std::vector<std::uint8_t> drawn = starter::FileOf(GetParam());
    EXPECT_EQ(shipped.size(), drawn.size());
    EXPECT_TRUE(shipped == drawn) << "draw the library anew: mirelle_starter FOLDER";
}

// How much two columns, or two rows, differ on the average of their pixels.
double Difference(const Bitmap& picture, int from, int to, bool columns) {
    const int length = columns ? picture.Height() : picture.Width();
    double sum = 0;
    for (int place = 0; place < length; ++place) {
        const Pixel a = columns ? picture.At(from, place) : picture.At(place, from);
        const Pixel b = columns ? picture.At(to, place) : picture.At(place, to);
        sum += std::abs(a.red - b.red) + std::abs(a.green - b.green) + std::abs(a.blue - b.blue);
    }
    return sum / length;
}

double GreatestDifferenceInside(const Bitmap& picture, bool columns) {
    double greatest = 0;
    for (int line = 0; line + 1 < (columns ? picture.Width() : picture.Height()); ++line)
        greatest = std::max(greatest, Difference(picture, line, line + 1, columns));
    return greatest;
}

// The encoder looks at no neighbours across the picture's edge, which adds a little to a seam.
constexpr double kOfTheEncoder = 1.25;

TEST_P(StarterMaterialTest, ShowsNoSeamBesideItselfThatIsStrongerThanItsOwnLines) {
    const Bitmap picture = DecodeJpeg(BytesOf(PathOf(GetParam()))).picture;
    ASSERT_EQ(picture.Width(), starter::kSide);
    ASSERT_EQ(picture.Height(), starter::kSide);
    for (const bool columns : {true, false}) {
        EXPECT_LE(Difference(picture, starter::kSide - 1, 0, columns),
                  GreatestDifferenceInside(picture, columns) * kOfTheEncoder)
            << (columns ? "left and right" : "top and bottom");
    }
}

INSTANTIATE_TEST_SUITE_P(Materials, StarterMaterialTest,
                         ::testing::ValuesIn(StarterMaterials().begin(), StarterMaterials().end()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(StarterLibrary, HoldsTheTenFoldersAndNothingBesideThem) {
    std::set<std::string> folders;
    for (const auto& entry : std::filesystem::directory_iterator(kSupport / "Materials")) {
        EXPECT_TRUE(entry.is_directory()) << entry.path();
        folders.insert("Support/Materials/" + entry.path().filename().string() + "/");
    }
    EXPECT_EQ(folders, std::set<std::string>(kCategoryFolders.begin(), kCategoryFolders.end()));
}

TEST(StarterLibrary, HoldsTheMaterialsOfTheToolAndNoOthers) {
    std::set<std::filesystem::path> expected;
    for (const StarterMaterial& material : StarterMaterials())
        expected.insert(PathOf(material));
    std::set<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kSupport / "Materials")) {
        if (!entry.is_directory()) found.insert(entry.path());
    }
    EXPECT_EQ(found, expected);
    EXPECT_GE(expected.size(), 12U);
}

TEST(StarterLibrary, IsSmall) {
    std::uintmax_t bytes = 0;
    for (const StarterMaterial& material : StarterMaterials())
        bytes += std::filesystem::file_size(PathOf(material));
    EXPECT_LT(bytes, 3'000'000U);
}

TEST(StarterLibrary, NamesItsMaterialsByPrefixAndCountsFromOne) {
    std::map<std::string, double> last;
    for (const StarterMaterial& material : StarterMaterials()) {
        const std::string name = material.name;
        const std::string prefix = name.substr(0, name.find('_') + 1);
        const auto row = std::ranges::find_if(kPrefixes, [&](const PrefixRow& candidate) {
            return std::string("Support/Materials/") + material.folder ==
                   std::string(candidate.folder)
                       .substr(0, std::string(candidate.folder).find_last_not_of('/') + 1);
        });
        ASSERT_NE(row, kPrefixes.end()) << name;
        EXPECT_EQ(prefix, row->prefix) << name;
        EXPECT_EQ(NumberOfFileName(name + ".jpg"), ++last[material.folder]) << name;
    }
    EXPECT_EQ(last.size(), kCategoryFolders.size());
}

TEST(StarterLibrary, PrefixFileBeginsWithTheBuiltInPrefixesAndAddsSome) {
    LineInput input(BytesOf(kSupport / "Settings" / "MaterialsSamplerPrefix.txt"));
    std::vector<std::string> lines;
    while (!input.AtEnd())
        lines.push_back(input.ReadLine());
    ASSERT_GT(lines.size(), kPrefixes.size());
    for (std::size_t row = 0; row < kPrefixes.size(); ++row)
        EXPECT_EQ(lines[row], kPrefixes[row].prefix);
    EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()).size(), lines.size());
    for (const std::string& line : lines)
        EXPECT_TRUE(std::regex_match(line, std::regex("[A-Z][A-Za-z]+_"))) << line;
}

TEST(StarterLibrary, IsWhatTheProgramStartsWith) {
    TestProgram program;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kSupport)) {
        std::string path = "C:\\Mirelle\\" + entry.path().lexically_relative(MIRELLE_SOURCE_FOLDER).string();
        std::ranges::replace(path, '/', '\\');
        if (entry.is_directory()) program.files.AddFolder(path);
        if (entry.is_regular_file()) program.files.AddFile(path, BytesOf(entry.path()));
    }
    program.Start();
    FrmPicX& form = program.form;
    EXPECT_EQ(form.Dir5.ListCount(), 10);
    EXPECT_EQ(form.File5.ListCount(), 0);
    EXPECT_GT(form.textProfileName.ListCount(), static_cast<int>(kPrefixes.size()));
    form.ckGetCount.Value = kChecked;
    for (int index = 0; index < 10; ++index) {
        form.cmdMatDirs(index).UserClick();
        EXPECT_GE(form.File5.ListCount(), 2) << index;
        EXPECT_EQ(form.TextLoops.Text(), CStr(form.File5.ListCount())) << index;
    }
}

} // namespace
} // namespace mirelle::test
