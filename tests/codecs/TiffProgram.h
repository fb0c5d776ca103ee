// The TIFF reader in a test: a Material Image, files in memory, and a file that is loaded as often as a test
// likes.
#pragma once

#include "codecs/clsTiff.h"
#include "tests/forms/TestForm.h"
#include "tests/support/MemoryFileSystem.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestTiff.h"

namespace mirelle::test {

struct TiffProgram {
    static constexpr const char* kFile = "C:\\Pictures\\scan.tif";
    static constexpr const char* kDump = "c:\\komp.txt";

    TestForm desk;
    PictureBox picSmall{desk.form, "picSmall", {}};
    MemoryFileSystem files;
    clsTiff tiff{picSmall, files};

    TiffProgram() { picSmall.Picture = ChartPicture(9, 9); }

    void Load(const FileBytes& bytes) {
        files.AddFile(kFile, bytes);
        tiff.LoadTIFF(kFile);
    }
    void Load(const TestTiff& file) { Load(TiffBytes(file)); }

    bool ShowsNothing() const { return picSmall.Picture().IsEmpty(); }
    const Bitmap& Shown() const { return picSmall.Picture().Pixels(); }
    bool HasDump() const { return files.FileExists(kDump); }
    FileBytes Dump() const { return files.ReadFile(kDump); }
};

} // namespace mirelle::test
