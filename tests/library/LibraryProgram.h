// The program over a library of ten empty category folders, with pictures put into it by tests.
#pragma once

#include "library/CategoryTable.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <string>
#include <vector>

namespace mirelle::test {

inline const std::string kLibraryRoot = "C:\\Mirelle\\Support\\Materials";
inline const std::string kArt = kLibraryRoot + "\\Art";
inline const std::string kMetal = kLibraryRoot + "\\Metal";

struct LibraryProgram : TestProgram {
    LibraryProgram() {
        for (const char* folder : kCategoryFolders)
            files.AddFolder(form.AppPath(folder));
    }

    // A file in a folder that the loader reads as a picture of its own.
    Picture AddPicture(const std::string& folder, const std::string& name, int width = 40, int height = 30) {
        std::string path = folder;
        if (path.back() != '\\') path += '\\';
        path += name;
        files.AddFile(path, "a picture");
        return loader.pictures[path] = ChartPicture(width, height, static_cast<std::uint8_t>(++marks_));
    }
    void AddFiles(const std::string& folder, const std::vector<std::string>& names) {
        for (const std::string& name : names)
            files.AddFile(folder + '\\' + name);
    }

    void StartIn(const std::string& folder) {
        Start();
        form.Dir5.SetPath(folder);
    }
    // The user clicks the row of that name.
    void ClickFile(const std::string& name) {
        const auto& rows = form.File5.Rows();
        const auto found = std::ranges::find(rows, name);
        if (found == rows.end()) throw RunTimeError(ErrorNumber::FileNotFound);
        form.File5.SetListIndex(static_cast<int>(found - rows.begin()));
    }
    // Adds a file and clicks it, in a folder that is shown anew.
    Picture ClickNewPicture(const std::string& name, int width = 40, int height = 30) {
        Picture picture = AddPicture(form.File5.Path(), name, width, height);
        form.File5.Refresh();
        ClickFile(name);
        return picture;
    }

private:
    int marks_ = 0;
};

} // namespace mirelle::test
