// The stand-in that other tests lean on keeps the promises of the port.
#include "tests/support/MemoryFileSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Bytes = MemoryFileSystem::Bytes;

ErrorNumber NumberRaisedBy(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return ErrorNumber{0};
}

TEST(MemoryFileSystem, ReadsBackWhatWasWritten) {
    MemoryFileSystem files;
    files.WriteFile("C:\\Mirelle\\a.bin", Bytes{1, 2, 3});
    EXPECT_TRUE(files.FileExists("c:\\mirelle\\A.BIN"));
    EXPECT_EQ(files.ReadFile("C:\\MIRELLE\\a.bin"), (Bytes{1, 2, 3}));
    files.OverwriteStart("C:\\Mirelle\\a.bin", Bytes{9});
    EXPECT_EQ(files.ReadFile("C:\\Mirelle\\a.bin"), (Bytes{9, 2, 3}));
    files.WriteFile("C:\\Mirelle\\a.bin", Bytes{7});
    EXPECT_EQ(files.ReadFile("C:\\Mirelle\\a.bin"), (Bytes{7}));
    EXPECT_EQ(files.WriteCount(), 3);
    files.DeleteFile("C:\\Mirelle\\a.bin");
    EXPECT_FALSE(files.FileExists("C:\\Mirelle\\a.bin"));
}

TEST(MemoryFileSystem, ListsFilesAndFoldersOfOneFolder) {
    MemoryFileSystem files;
    files.AddFile("C:\\Mirelle\\Art\\Art_1.jpg", "x");
    files.AddFile("C:\\Mirelle\\Art\\hidden.jpg", {}, MemoryFileSystem::Attribute::Hidden);
    files.AddFile("C:\\Mirelle\\top.txt", "x");
    files.AddFolder("D:\\");
    EXPECT_THAT(files.FileNames("C:\\Mirelle\\art"), ElementsAre("Art_1.jpg"));
    EXPECT_THAT(files.FileNames("C:\\Mirelle"), ElementsAre("top.txt"));
    EXPECT_THAT(files.FolderNames("C:\\Mirelle"), ElementsAre("Art"));
    EXPECT_THAT(files.FolderNames("C:\\"), ElementsAre("Mirelle"));
    EXPECT_THAT(files.FolderNames("D:\\"), IsEmpty());
    EXPECT_THAT(files.Drives(), UnorderedElementsAre("c:", "d:"));
    EXPECT_TRUE(files.FileExists("C:\\Mirelle\\Art\\hidden.jpg"));
    EXPECT_FALSE(files.FileExists("C:\\Mirelle\\Art"));
    EXPECT_TRUE(files.IsHidden("C:\\Mirelle\\Art\\hidden.jpg"));
    EXPECT_FALSE(files.IsHidden("C:\\Mirelle\\Art\\Art_1.jpg"));
    EXPECT_FALSE(files.IsHidden("C:\\Mirelle\\Art\\missing.jpg"));
}

TEST(MemoryFileSystem, ResolvesFoldersToTheirAbsoluteForm) {
    MemoryFileSystem files;
    files.AddFolder("C:\\Mirelle\\Support\\Materials");
    EXPECT_EQ(files.ResolveFolder("c:"), "C:\\");
    EXPECT_EQ(files.ResolveFolder("C:\\mirelle\\support\\"), "C:\\Mirelle\\Support");
    EXPECT_EQ(files.ResolveFolder("Support\\..\\Support\\.\\Materials"), "C:\\Mirelle\\Support\\Materials");
    EXPECT_EQ(files.ResolveFolder("\\Mirelle"), "C:\\Mirelle");
    EXPECT_EQ(NumberRaisedBy([&] { files.ResolveFolder("C:\\none"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { files.FileNames("E:"); }), ErrorNumber::PathNotFound);
}

TEST(MemoryFileSystem, RaisesWhatThePortTells) {
    MemoryFileSystem files;
    files.AddFile("C:\\Mirelle\\fixed.bin", {1}, MemoryFileSystem::Attribute::ReadOnly);
    const auto write = [&](const char* path) { return [&files, path] { files.WriteFile(path, Bytes{1}); }; };
    EXPECT_EQ(NumberRaisedBy([&] { files.ReadFile("C:\\Mirelle\\no"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { files.ReadFile("C:\\No\\no"); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { files.ReadFile("C:\\Mirelle"); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy([&] { files.DeleteFile("C:\\Mirelle\\no"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(NumberRaisedBy(write("C:\\No\\a")), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy(write("C:\\Mirelle")), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy(write("C:\\Mirelle\\fixed.bin")), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy([&] { files.MakeWritable("C:\\Mirelle\\no"); }), ErrorNumber::FileNotFound);
    files.MakeWritable("C:\\Mirelle\\fixed.bin");
    EXPECT_EQ(NumberRaisedBy(write("C:\\Mirelle\\fixed.bin")), ErrorNumber{0});
    files.FailWritesWith(ErrorNumber::DiskFull);
    EXPECT_EQ(NumberRaisedBy(write("C:\\Mirelle\\b.bin")), ErrorNumber::DiskFull);
    EXPECT_FALSE(files.FileExists("C:\\Mirelle\\b.bin"));
}

} // namespace
} // namespace mirelle::test
