// The binder's lists: rows, files, folders, drives, combo boxes.
#include "desktop/binding/Binder.h"
#include "desktop/binding/FolderModel.h"
#include "desktop/binding/RowsModel.h"
#include "desktop/binding/RowsView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace mirelle {
namespace {

// The widget's entries, if they are others than the control's.
void ShowEntries(QComboBox& widget, const std::vector<std::string>& rows) {
    QStringList entries;
    entries.reserve(static_cast<qsizetype>(rows.size()));
    for (const std::string& row : rows)
        entries.append(QString::fromStdString(row));
    QStringList shown;
    for (int row = 0; row < widget.count(); ++row)
        shown.append(widget.itemText(row));
    if (shown == entries) return;
    widget.clear();
    widget.addItems(entries);
}

void ShowEditText(QComboBox& widget, const QString& text) {
    if (widget.currentText() == text) return;
    QLineEdit& edit = *widget.lineEdit();
    const int cursor = edit.cursorPosition();
    widget.setEditText(text);
    if (edit.hasFocus()) edit.setCursorPosition(cursor);
}

// Leaving an editable box, or Return in it, would choose an entry that equals the text.
void ChooseFromTheListOnly(QComboBox& widget) {
    widget.setInsertPolicy(QComboBox::NoInsert);
    widget.setCompleter(nullptr);
    QObject::disconnect(widget.lineEdit(), &QLineEdit::editingFinished, &widget, nullptr);
    QObject::disconnect(widget.lineEdit(), &QLineEdit::returnPressed, &widget, nullptr);
}

} // namespace

void Binder::Combo(ComboBox& control, QComboBox& widget) {
    const auto show = [&control, &widget] {
        const QSignalBlocker quiet(widget);
        ShowEntries(widget, control.Rows());
        if (widget.currentIndex() != control.ListIndex()) widget.setCurrentIndex(control.ListIndex());
        if (widget.isEditable()) ShowEditText(widget, QString::fromStdString(control.Text));
    };
    Common(control, widget, show, nullptr);
    Mouse(control, widget, ControlEvents::Take::Mouse);
    QObject::connect(&widget, &QComboBox::activated, &widget,
                     [this, &control](int row) { Run([&] { control.SetListIndex(row); }); });
    if (!widget.isEditable()) return;
    ChooseFromTheListOnly(widget);
    QObject::connect(
        widget.lineEdit(), &QLineEdit::textEdited, &widget,
        [this, &control](const QString& text) { Run([&] { control.Text = text.toStdString(); }); });
    new ControlEvents(control, *widget.lineEdit(), form_.ports.dialogs, ControlEvents::Take::DblClick);
}

template <class ListOfRows>
void Binder::Rows(ListOfRows& control, RowsView& widget) {
    auto* model = new RowsModel(control.CountedRows(), &widget);
    widget.setModel(model);
    const auto show = [&control, &widget, model] {
        model->Follow();
        widget.ShowRow(control.ListIndex());
    };
    Common(control, widget, show, nullptr);
    Mouse(control, *widget.viewport(), ControlEvents::Take::Mouse);
    QObject::connect(&widget, &RowsView::Chosen, &widget,
                     [this, &control](int row) { Run([&] { control.SetListIndex(row); }); });
    QObject::connect(&widget, &RowsView::DoubleClicked, &widget,
                     [this, &control] { Run([&] { control.UserDblClick(); }); });
}

void Binder::List(ListControl& control, RowsView& widget) {
    Rows(control, widget);
}

void Binder::Files(FileListBox& control, RowsView& widget) {
    Rows(control, widget);
}

void Binder::Folders(DirListBox& control, RowsView& widget) {
    auto* model = new FolderModel(control, form_.ports.files.Separator(), &widget);
    widget.setModel(model);
    const auto show = [&control, &widget, model] {
        model->Reload();
        const int row = control.ListIndex();
        widget.ShowRow(model->PresentRow() + (row == kNoRow ? 0 : row + 1));
    };
    Common(control, widget, show, nullptr);
    Mouse(control, *widget.viewport(), ControlEvents::Take::Mouse);
    QObject::connect(&widget, &RowsView::Chosen, &widget, [this, &control, model](int row) {
        Run([&] {
            const int chosen = model->ListRow(row);
            control.SetListIndex(chosen);
            if (chosen == kNoRow) control.UserClick();
        });
    });
    QObject::connect(&widget, &RowsView::DoubleClicked, &widget, [this, &control, model](int row) {
        // A folder that went away meanwhile leaves the list where it is.
        Run([&] { ResumeNext([&] { control.SetPath(model->PathOf(row)); }); });
    });
}

void Binder::Drives(DriveListBox& control, QComboBox& widget) {
    const auto show = [&control, &widget] {
        const QSignalBlocker quiet(widget);
        ShowEntries(widget, control.Rows());
        widget.setCurrentIndex(widget.findText(QString::fromStdString(control.Drive)));
    };
    Common(control, widget, show, nullptr);
    Mouse(control, widget, ControlEvents::Take::Mouse);
    // The entry itself, not what the widget makes of it: a mounted folder may bear any name.
    QObject::connect(&widget, &QComboBox::activated, &widget, [this, &control](int row) {
        const std::vector<std::string> drives = control.Rows();
        const auto at = static_cast<std::size_t>(row);
        if (at < drives.size()) Run([&] { control.Drive = drives[at]; });
    });
}

} // namespace mirelle
