#include "forms/FileLists.h"

#include "forms/Form.h"
#include "forms/RunTimeError.h"
#include "forms/Text.h"

#include <algorithm>
#include <utility>

namespace mirelle {
namespace {

// Many names in small letters, in one text: a large folder's would be as many blocks of memory.
class SmallNames {
public:
    explicit SmallNames(const std::vector<std::string>& names) {
        ends_.reserve(names.size());
        for (const std::string& name : names)
            ends_.push_back(text_.append(LowerCase(name)).size());
    }
    std::string_view operator[](std::size_t i) const {
        const std::size_t begin = i == 0 ? 0 : ends_[i - 1];
        return std::string_view(text_).substr(begin, ends_[i] - begin);
    }

private:
    std::string text_;
    std::vector<std::size_t> ends_;
};

// The names whose small letters are wanted, sorted without regard to case; equal ones by their bytes, so that
// the order is always the same.
template <class IsWanted>
std::vector<std::string> Sorted(std::vector<std::string> names, const IsWanted& isWanted) {
    struct Place {
        std::string_view small;
        std::string* name;
    };
    const SmallNames small(names);
    std::vector<Place> places;
    places.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (isWanted(small[i])) places.push_back({small[i], &names[i]});
    }
    std::ranges::sort(places, [](const Place& a, const Place& b) {
        const int order = a.small.compare(b.small);
        return order != 0 ? order < 0 : *a.name < *b.name;
    });
    std::vector<std::string> sorted;
    sorted.reserve(places.size());
    for (const Place& place : places)
        sorted.push_back(std::move(*place.name));
    return sorted;
}

// Matching by the usual walk with one point to come back to: the last star seen.
bool MatchesOne(std::string_view name, std::string_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    const auto skipCharacter = [&name](std::size_t at) {
        ++at;
        while (at < name.size() && (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80)
            ++at;
        return at;
    };
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() && pattern[p] == '?') {
            ++p;
            n = skipCharacter(n);
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

std::vector<std::string> PatternsOf(std::string_view patterns) {
    std::vector<std::string> pieces = Split(LowerCase(patterns), ";");
    std::ranges::transform(pieces, pieces.begin(), [](const std::string& piece) { return Trim(piece); });
    return pieces;
}

bool MatchesAny(std::string_view lowerName, const std::vector<std::string>& patterns) {
    return std::ranges::any_of(patterns, [lowerName](const std::string& pattern) {
        return pattern == "*.*" || MatchesOne(lowerName, pattern);
    });
}

} // namespace

bool MatchesPattern(std::string_view name, std::string_view patterns) {
    return MatchesAny(LowerCase(name), PatternsOf(patterns));
}

DriveListBox::DriveListBox(Form& form, std::string name, FileSystem& files)
    : Control(form, std::move(name)), files_(files) {
    const std::vector<std::string> drives = files_.Drives();
    const std::string home = LowerCase(files_.AppPath());
    const auto own = std::ranges::find_if(
        drives, [&home](const std::string& drive) { return home.starts_with(LowerCase(drive)); });
    if (!drives.empty()) Drive.SetQuietly(own == drives.end() ? drives.front() : *own);
    Drive.OnChange([this] { Change(); });
}

DirListBox::DirListBox(Form& form, std::string name, FileSystem& files)
    : ListControl(form, std::move(name)), files_(files) {
    path_ = files_.AppPath();
    ResumeNext([this] { Refresh(); });
}

void DirListBox::SetPath(const std::string& path) {
    std::string resolved = files_.ResolveFolder(path);
    if (resolved == path_) return;
    path_ = std::move(resolved);
    ResumeNext([this] { Refresh(); });
    Change();
}

void DirListBox::Refresh() {
    rows_.Change().clear();
    current_ = kNoRow;
    TellWatchers();
    rows_.Change() = FoldersInside();
    TellWatchers();
}

void DirListBox::FollowDisk() {
    std::vector<std::string> rows;
    ResumeNext([&] { rows = FoldersInside(); });
    if (rows == Rows()) return;
    const std::string current = List(current_);
    rows_.Change() = std::move(rows);
    const auto found = std::ranges::find(Rows(), current);
    current_ = found == Rows().end() ? kNoRow : static_cast<int>(found - Rows().begin());
    TellWatchers();
}

std::vector<std::string> DirListBox::FoldersInside() const {
    std::vector<std::string> folders =
        Sorted(files_.FolderNames(path_), [](std::string_view) { return true; });
    const bool atRoot = !path_.empty() && path_.back() == files_.Separator();
    const std::string base = atRoot ? path_ : path_ + files_.Separator();
    for (std::string& folder : folders)
        folder.insert(0, base);
    return folders;
}

FileListBox::FileListBox(Form& form, std::string name, FileSystem& files)
    : Control(form, std::move(name)), files_(files) {
    path_ = files_.AppPath();
    ReadNames();
}

void FileListBox::SetPath(const std::string& path) {
    std::string resolved = files_.ResolveFolder(path);
    if (resolved == path_) return;
    path_ = std::move(resolved);
    ReadNames();
}

void FileListBox::SetPattern(const std::string& pattern) {
    if (pattern == pattern_) return;
    pattern_ = pattern;
    ReadNames();
}

std::string FileListBox::List(int row) const {
    return row >= 0 && row < ListCount() ? Rows()[static_cast<std::size_t>(row)] : std::string();
}

void FileListBox::SetListIndex(int row) {
    if (row < kNoRow || row >= ListCount()) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    Select(row);
}

void FileListBox::Refresh() {
    ReadNames();
}

void FileListBox::UserClick() {
    if (Enabled && current_ != kNoRow) RunClick();
}

void FileListBox::ReadNames() {
    current_ = kNoRow;
    names_.Change().clear();
    // A folder that went away or can't be read lists nothing.
    ResumeNext([this] {
        const std::vector<std::string> patterns = PatternsOf(pattern_);
        names_.Change() = Sorted(files_.FileNames(path_),
                                 [&](std::string_view small) { return MatchesAny(small, patterns); });
    });
    TellWatchers();
}

void FileListBox::Select(int row) {
    current_ = row;
    TellWatchers();
    if (row != kNoRow && row != clicking_) RunClick();
}

void FileListBox::RunClick() {
    const int before = std::exchange(clicking_, current_);
    try {
        Click();
    } catch (...) {
        clicking_ = before;
        throw;
    }
    clicking_ = before;
}

FileListBox::Selection::operator bool() const {
    return box_.current_ == row_ && row_ != kNoRow;
}

const FileListBox::Selection& FileListBox::Selection::operator=(bool selected) const {
    if (row_ < 0 || row_ >= box_.ListCount()) throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
    if (selected) {
        box_.Select(row_);
    } else if (box_.current_ == row_) {
        box_.current_ = kNoRow;
        box_.TellWatchers();
    }
    return *this;
}

} // namespace mirelle
