// List boxes and combo boxes.
#pragma once

#include "forms/Control.h"
#include "forms/ListRows.h"

#include <string>
#include <vector>

namespace mirelle {

constexpr int kNoRow = -1;

// The rows of a list and the current one. Reading a row that does not exist gives the empty text.
class ListControl : public Control {
public:
    using Control::Control;

    int ListCount() const { return static_cast<int>(Rows().size()); }
    std::string List(int row) const;
    const std::vector<std::string>& Rows() const { return rows_.Read(); }
    // The same with the count of their changes, for what shows them.
    const ListRows& CountedRows() const { return rows_; }

    virtual void AddItem(std::string text);
    // Error 5 for a row that does not exist.
    virtual void RemoveItem(int row);
    virtual void Clear();
    // Replaces the text of a row; error 381 for a row that does not exist.
    void SetList(int row, std::string text);

    int ListIndex() const { return current_; }
    // Makes a row the current one and runs Click, also when it is the current one already; kNoRow deselects
    // without a Click. Error 380 for a row that does not exist.
    void SetListIndex(int row);

protected:
    // What follows from a new current row, ahead of Click.
    virtual void CurrentChanged() {}

    ListRows rows_;
    int current_ = kNoRow;
};

class ListBox : public ListControl {
public:
    using ListControl::ListControl;

    // The text of the current row; setting it selects the row equal to it, or none.
    std::string Text() const { return List(current_); }
    void SetText(const std::string& text);
    void UserClick() override; // a click on the current row
};

// A text with a list to choose from. Typing or assigning another text leaves no row current and runs Change;
// choosing a row sets the text and runs Click.
class ComboBox : public ListControl {
public:
    ComboBox(Form& form, std::string name, int index = -1);

    Property<std::string> Text{*this};
    Event<> Change;

    void Clear() override; // the text goes too

protected:
    void CurrentChanged() override;
};

} // namespace mirelle
