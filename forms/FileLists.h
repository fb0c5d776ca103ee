// The drive, folder and file lists: three controls over the file-system port.
#pragma once

#include "forms/Lists.h"
#include "forms/ports/FileSystem.h"

#include <string>
#include <vector>

namespace mirelle {

// The choice of a root, at first the one that the program lies below. Any text can be set; whether it is
// ready shows when a folder list goes there.
class DriveListBox : public Control {
public:
    DriveListBox(Form& form, std::string name, FileSystem& files);

    Property<std::string> Drive{*this};
    Event<> Change;
    std::vector<std::string> Rows() const { return files_.Drives(); }

private:
    FileSystem& files_;
};

// A folder and the folders in it. Rows are the full paths of the folders in it, by name; the current row is a
// selection only, Path changes on a double click.
class DirListBox : public ListControl {
public:
    DirListBox(Form& form, std::string name, FileSystem& files);

    const std::string& Path() const { return path_; }
    // Goes to a folder and runs Change; nothing happens where it is there already. Error 76 where it does not
    // exist.
    void SetPath(const std::string& path);
    void Refresh() override;
    // Lists the folders in it anew where they are others than listed; the current row stays with its folder.
    // A folder that has gone lists none.
    void FollowDisk();
    Event<> Change;

private:
    std::vector<std::string> FoldersInside() const;

    FileSystem& files_;
    std::string path_;
};

// The files of a folder whose names match a pattern.
class FileListBox : public Control {
public:
    FileListBox(Form& form, std::string name, FileSystem& files);

    // Setting another path or pattern lists anew with nothing selected. Path: error 76 where it does not
    // exist.
    const std::string& Path() const { return path_; }
    void SetPath(const std::string& path);
    const std::string& Pattern() const { return pattern_; }
    void SetPattern(const std::string& pattern);

    int ListCount() const { return static_cast<int>(Rows().size()); }
    std::string List(int row) const;
    const std::vector<std::string>& Rows() const { return names_.Read(); }
    // The same with the count of their changes, for what shows them.
    const ListRows& CountedRows() const { return names_; }
    int ListIndex() const { return current_; }
    // Makes a row the current one and runs Click; kNoRow deselects. Error 380 for a row that does not exist.
    void SetListIndex(int row);
    // The name in the current row, the empty text where there is none.
    std::string FileName() const { return List(current_); }
    // Reads the folder again; the selection goes.
    void Refresh() override;

    // file.Selected(i) = true selects the row and runs Click, also when it is selected already, except from
    // inside that row's own Click; = false only deselects. Error 381 for a row that does not exist.
    class Selection {
    public:
        Selection(FileListBox& box, int row) : box_(box), row_(row) {}
        operator bool() const; // NOLINT(google-explicit-constructor)
        const Selection& operator=(bool selected) const;

    private:
        FileListBox& box_;
        int row_;
    };
    Selection Selected(int row) { return {*this, row}; }

    void UserClick() override; // a click on the current row
    // Runs Click by code, as from inside the current row's own click: the handler may select that row again
    // without being run once more.
    void RunClick();

private:
    void ReadNames();
    void Select(int row);

    FileSystem& files_;
    std::string path_;
    std::string pattern_ = "*.jpg";
    ListRows names_;
    int current_ = kNoRow;
    int clicking_ = kNoRow; // the row whose click is running
};

// Whether a name matches one of the patterns parted by ";", without regard to case. "*" stands for any run of
// characters, "?" for any one, and "*.*" for every name.
bool MatchesPattern(std::string_view name, std::string_view patterns);

} // namespace mirelle
