#include "forms/Lists.h"

#include "forms/Form.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle {

std::string ListControl::List(int row) const {
    return row >= 0 && row < ListCount() ? Rows()[static_cast<std::size_t>(row)] : std::string();
}

void ListControl::AddItem(std::string text) {
    rows_.Change().push_back(std::move(text));
    TellWatchers();
}

void ListControl::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    std::vector<std::string>& rows = rows_.Change();
    rows.erase(rows.begin() + row);
    if (row == current_) current_ = kNoRow;
    if (row < current_) --current_;
    TellWatchers();
}

void ListControl::Clear() {
    rows_.Change().clear();
    current_ = kNoRow;
    TellWatchers();
}

void ListControl::SetList(int row, std::string text) {
    if (row < 0 || row >= ListCount()) throw RunTimeError(ErrorNumber::InvalidPropertyArrayIndex);
    rows_.Change()[static_cast<std::size_t>(row)] = std::move(text);
    TellWatchers();
}

void ListControl::SetListIndex(int row) {
    if (row < kNoRow || row >= ListCount()) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    current_ = row;
    TellWatchers();
    if (row == kNoRow) return;
    CurrentChanged();
    Click();
}

void ListBox::SetText(const std::string& text) {
    const auto found = std::ranges::find(Rows(), text);
    SetListIndex(found == Rows().end() ? kNoRow : static_cast<int>(found - Rows().begin()));
}

void ListBox::UserClick() {
    if (current_ != kNoRow) Control::UserClick();
}

ComboBox::ComboBox(Form& form, std::string name, int index) : ListControl(form, std::move(name), index) {
    Text.OnChange([this] {
        current_ = kNoRow;
        Change();
    });
}

void ComboBox::Clear() {
    ListControl::Clear();
    Text.SetQuietly("");
}

void ComboBox::CurrentChanged() {
    Text.SetQuietly(List(current_));
}

} // namespace mirelle
