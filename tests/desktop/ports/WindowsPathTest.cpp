#include "desktop/files/WindowsPath.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

const WindowsPath kCurrent = ParseWindowsPath("C:\\Mirelle", {});

struct Row {
    const char* name;
    const char* given;
    const char* text; // nullptr where the path is no local one
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.given;
}

class LocalPath : public testing::TestWithParam<Row> {};

TEST_P(LocalPath, HasOneText) {
    const WindowsPath path = ParseWindowsPath(GetParam().given, kCurrent);
    EXPECT_EQ(path.kind, WindowsPathKind::Local);
    EXPECT_EQ(TextOf(path), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(WindowsPath, LocalPath,
                         testing::Values(Row{"Plain", "C:\\Art\\wall.jpg", "C:\\Art\\wall.jpg"},
                                         Row{"DriveAlone", "D:", "D:\\"}, Row{"Root", "d:\\", "d:\\"},
                                         Row{"ForwardSlashes", "C:/Art/wall.jpg", "C:\\Art\\wall.jpg"},
                                         Row{"SeparatorAtTheEnd", "C:\\Art\\", "C:\\Art"},
                                         Row{"DoubledSeparators", "C:\\\\Art//x", "C:\\Art\\x"},
                                         Row{"PointInTheMiddle", "C:\\.\\Art\\.", "C:\\Art"},
                                         Row{"Up", "C:\\Art\\..\\Bio", "C:\\Bio"},
                                         Row{"UpBeyondTheRoot", "C:\\..\\..\\Art", "C:\\Art"},
                                         Row{"BlanksAtTheEnd", "C:\\wall.jpg  ", "C:\\wall.jpg"},
                                         Row{"PointsAtTheEnd", "C:\\wall..", "C:\\wall"},
                                         Row{"BlanksAndPointsAtTheEnd", "C:\\wall. . ", "C:\\wall"},
                                         Row{"BlankAtAFoldersEndStays", "C:\\Art \\x", "C:\\Art \\x"},
                                         Row{"PointAtAFoldersEnd", "C:\\Art.\\x", "C:\\Art\\x"},
                                         Row{"OnlyBlanksBehindAFolder", "C:\\Art\\   ", "C:\\Art"},
                                         Row{"BlankAhead", "C:\\ x", "C:\\ x"},
                                         Row{"RootOfTheCurrentDrive", "\\Art", "C:\\Art"},
                                         Row{"Relative", "Support\\x", "C:\\Mirelle\\Support\\x"},
                                         Row{"BehindTheColon", "D:Art", "D:\\Art"},
                                         Row{"NotUtf8", "C:\\\xFF\xFE", "C:\\\xFF\xFE"}),
                         [](const auto& row) { return std::string(row.param.name); });

class OtherPath : public testing::TestWithParam<std::pair<const char*, WindowsPathKind>> {};

TEST_P(OtherPath, IsTold) {
    EXPECT_EQ(ParseWindowsPath(GetParam().first, kCurrent).kind, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(WindowsPath, OtherPath,
                         testing::Values(std::pair{"\\\\server\\share\\x", WindowsPathKind::Network},
                                         std::pair{"//server/share", WindowsPathKind::Network},
                                         std::pair{"\\\\?\\C:\\x", WindowsPathKind::Network},
                                         std::pair{"", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a<b", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a>b", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a:b", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a\"b", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a|b", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a?\\x", WindowsPathKind::NotAName},
                                         std::pair{"C:\\*.jpg", WindowsPathKind::NotAName},
                                         std::pair{"C:\\a\tb", WindowsPathKind::NotAName},
                                         std::pair{"CD:\\x", WindowsPathKind::NotAName}));

TEST(WindowsPath, TellsASeparatorAtTheEnd) {
    EXPECT_TRUE(ParseWindowsPath("C:\\x\\", kCurrent).endsInSeparator);
    EXPECT_TRUE(ParseWindowsPath("C:/x/", kCurrent).endsInSeparator);
    EXPECT_FALSE(ParseWindowsPath("C:\\x", kCurrent).endsInSeparator);
    EXPECT_FALSE(ParseWindowsPath("C:", kCurrent).endsInSeparator);
}

TEST(WindowsPath, HoldsANulByteForNoName) {
    EXPECT_EQ(ParseWindowsPath(std::string("C:\\a\0b", 6), kCurrent).kind, WindowsPathKind::NotAName);
}

TEST(WindowsName, HoldsNothingThatWindowsForbids) {
    EXPECT_TRUE(IsWindowsName("wall + brick.jpg"));
    EXPECT_TRUE(IsWindowsName(".jpg"));
    for (const char* name : {"", "a:b", "a\\b", "a/b", "a*", "a?", "wall ", "wall.", "a\nb"})
        EXPECT_FALSE(IsWindowsName(name)) << name;
}

} // namespace
} // namespace mirelle
