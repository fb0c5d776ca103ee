#include "tests/driver/ControlProperties.h"

#include "forms/Controls.h"
#include "forms/FileLists.h"
#include "forms/Lists.h"
#include "forms/PictureBox.h"
#include "forms/Text.h"

#include <algorithm>
#include <iterator>

namespace mirelle::driver {
namespace {

using Row = PropertyRow<Control>;
template <class Kind>
using Of = Rows<Kind, Control>;

// A row that the user reaches: on a disabled control nothing happens.
template <class Kind, class Get, class Act>
Row ByUser(std::string name, Get get, Act act) {
    return Of<Kind>::Of(std::move(name), get, [act](Kind& kind, const std::string& word) {
        if (kind.Enabled) act(kind, word);
    });
}

// A property that the user changes by nothing but giving it another value.
template <class Kind, class T>
Row Typed(std::string name, Property<T> Kind::*member) {
    return ByUser<Kind>(
        std::move(name), [member](Kind& kind) -> T { return kind.*member; },
        [member](Kind& kind, const std::string& word) { kind.*member = Read<T>(word); });
}

void Append(std::vector<Row>& rows, std::vector<Row> more) {
    std::ranges::move(more, std::back_inserter(rows));
}

std::vector<Row> EveryControl() {
    return {
        Of<Control>::Plain("Visible", &Control::Visible),
        Of<Control>::Plain("Enabled", &Control::Enabled),
        Of<Control>::Plain("Left", &Control::Left),
        Of<Control>::Plain("Top", &Control::Top),
        Of<Control>::Plain("Width", &Control::Width),
        Of<Control>::Plain("Height", &Control::Height),
        Of<Control>::Plain("BackColor", &Control::BackColor),
        Of<Control>::Plain("ForeColor", &Control::ForeColor),
        Of<Control>::Plain("ToolTipText", &Control::ToolTipText),
        Of<Control>::Plain("MousePointer", &Control::MousePointer),
        Of<Control>::Plain("FontSize", &Control::FontSize),
    };
}

std::vector<Row> PlainControls() {
    return {
        Of<Label>::Plain("Caption", &Label::Caption),
        Of<Frame>::Plain("Caption", &Frame::Caption),
        Of<CommandButton>::Plain("Caption", &CommandButton::Caption),
        Of<CheckBox>::Plain("Caption", &CheckBox::Caption),
        Of<OptionButton>::Plain("Caption", &OptionButton::Caption),
        Typed("Value", &CheckBox::Value),
        Typed("Value", &OptionButton::Value),
        ByUser<ScrollBar>(
            "Value", [](ScrollBar& bar) { return bar.Value(); },
            [](ScrollBar& bar, const std::string& word) { bar.UserSet(Read<std::int16_t>(word)); }),
        Of<ScrollBar>::Plain("Min", &ScrollBar::Min),
        Of<ScrollBar>::Plain("Max", &ScrollBar::Max),
        Of<ScrollBar>::Plain("SmallChange", &ScrollBar::SmallChange),
        Of<ScrollBar>::Plain("LargeChange", &ScrollBar::LargeChange),
        Typed("Text", &TextBox::Text),
        Of<Shape>::Plain("BorderColor", &Shape::BorderColor),
        Of<TimerControl>::Plain("Interval", &TimerControl::Interval),
    };
}

std::vector<Row> Lists() {
    return {
        Of<ListControl>::ReadOnly("ListCount", [](ListControl& list) { return list.ListCount(); }),
        Of<ListControl>::ReadOnly("List", [](ListControl& list) { return list.Rows(); }),
        Of<ListControl>::Of(
            "List", [](ListControl& list, int row) { return list.List(row); },
            [](ListControl& list, int row, const std::string& word) { list.SetList(row, word); }),
        ByUser<ListControl>(
            "ListIndex", [](ListControl& list) { return list.ListIndex(); },
            [](ListControl& list, const std::string& word) { list.SetListIndex(Read<int>(word)); }),
        ByUser<ListBox>(
            "Text", [](ListBox& list) { return list.Text(); },
            [](ListBox& list, const std::string& word) { list.SetText(word); }),
        Typed("Text", &ComboBox::Text),
    };
}

bool SameDrive(const std::string& a, const std::string& b) {
    return CompareNoCase(a, b) == 0;
}

void ChooseDrive(DriveListBox& list, const std::string& word) {
    if (!SameDrive(list.Drive, word)) list.Drive = word;
}

int RowOfDrive(DriveListBox& list) {
    const std::vector<std::string> rows = list.Rows();
    const auto row = std::ranges::find_if(
        rows, [&list](const std::string& candidate) { return SameDrive(candidate, list.Drive); });
    return row == rows.end() ? kNoRow : static_cast<int>(row - rows.begin());
}

std::vector<Row> FileLists() {
    return {
        ByUser<DriveListBox>(
            "Drive", [](DriveListBox& list) { return list.Drive(); }, ChooseDrive),
        Of<DriveListBox>::ReadOnly("ListCount",
                                   [](DriveListBox& list) { return static_cast<int>(list.Rows().size()); }),
        Of<DriveListBox>::ReadOnly("List", [](DriveListBox& list) { return list.Rows(); }),
        Of<DriveListBox>::ReadOnly("List",
                                   [](DriveListBox& list, int row) {
                                       const std::vector<std::string> rows = list.Rows();
                                       const auto at = static_cast<std::size_t>(row);
                                       return at < rows.size() ? rows[at] : std::string();
                                   }),
        Of<DriveListBox>::ReadOnly("ListIndex", RowOfDrive),
        Of<DirListBox>::Of(
            "Path", [](DirListBox& list) { return list.Path(); },
            [](DirListBox& list, const std::string& word) { list.SetPath(word); }),
        Of<FileListBox>::Of(
            "Path", [](FileListBox& list) { return list.Path(); },
            [](FileListBox& list, const std::string& word) { list.SetPath(word); }),
        Of<FileListBox>::Of(
            "Pattern", [](FileListBox& list) { return list.Pattern(); },
            [](FileListBox& list, const std::string& word) { list.SetPattern(word); }),
        Of<FileListBox>::ReadOnly("FileName", [](FileListBox& list) { return list.FileName(); }),
        Of<FileListBox>::ReadOnly("ListCount", [](FileListBox& list) { return list.ListCount(); }),
        Of<FileListBox>::ReadOnly("List", [](FileListBox& list) { return list.Rows(); }),
        Of<FileListBox>::ReadOnly("List", [](FileListBox& list, int row) { return list.List(row); }),
        ByUser<FileListBox>(
            "ListIndex", [](FileListBox& list) { return list.ListIndex(); },
            [](FileListBox& list, const std::string& word) { list.SetListIndex(Read<int>(word)); }),
    };
}

std::vector<Row> Pictures() {
    return {
        Of<PictureBox>::ReadOnly("ScaleWidth", [](PictureBox& box) { return box.ScaleWidth(); }),
        Of<PictureBox>::ReadOnly("ScaleHeight", [](PictureBox& box) { return box.ScaleHeight(); }),
        Of<PictureBox>::ReadOnly("ScaleMode",
                                 [](PictureBox& box) { return static_cast<int>(box.ScaleMode()); }),
        Of<PictureBox>::Plain("AutoSize", &PictureBox::AutoSize),
        Of<ImageControl>::Plain("Stretch", &ImageControl::Stretch),
    };
}

std::vector<Row> AllRows() {
    std::vector<Row> rows = EveryControl();
    Append(rows, PlainControls());
    Append(rows, Lists());
    Append(rows, FileLists());
    Append(rows, Pictures());
    return rows;
}

} // namespace

const std::vector<PropertyRow<Control>>& ControlProperties() {
    static const std::vector<Row> kRows = AllRows();
    return kRows;
}

} // namespace mirelle::driver
