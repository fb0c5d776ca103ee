#include "library/Navigator.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"
#include "library/CategoryTable.h"
#include "library/FileNumber.h"
#include "library/FolderScan.h"

namespace mirelle {
namespace {

constexpr const char* kDefaultPattern = "*.jpg";
constexpr int kLastRowOfTheWalk = 5;

} // namespace

Navigator::Navigator(FrmPicX& form) : form_(form) {
    const auto darkenFrame = [this](const MouseArgs&) { form_.FrameRGBFX2.BackColor = 0; };
    form_.Drive5.Change.Connect([this] { GoToDrive(); });
    form_.Dir5.Change.Connect([this] { OnFolderChanged(); });
    form_.Dir5.Click.Connect([this] { ShowCurrentFolder(); });
    form_.Dir5.MouseMove.Connect(darkenFrame);
    form_.File5.MouseMove.Connect(darkenFrame);
    form_.File5.MouseMove.Connect([this](const MouseArgs&) { TellWhatFileClickDoes(); });
    form_.Combo5.Click.Connect([this] { TakePattern(); });
    form_.Combo5.Change.Connect([this] { MendPattern(); });
    form_.cmdMatDirs.OnClick([this](int index) { GoToCategory(index); });
    form_.cmdBackDir.Click.Connect([this] { GoBackToLibrary(); });
    form_.cmdRefreshFile.Click.Connect([this] { WalkThroughFirstFiles(); });
}

// A drive that is not ready leaves the folder where it was, without a word, and the drive list as it is.
void Navigator::GoToDrive() {
    ResumeNext([this] { form_.Dir5.SetPath(form_.Drive5.Drive); });
}

void Navigator::OnFolderChanged() {
    ShowCurrentFolder();
    ShowFileCount(form_);
    form_.ListDirs.AddItem(form_.Dir5.Path());
}

void Navigator::ShowCurrentFolder() {
    ResumeNext([this] { form_.File5.SetPath(form_.Dir5.Path()); });
    ResetFileView();
}

void Navigator::ResetFileView() {
    form_.ListHigh.Clear();
    form_.File5.SetPattern(form_.Combo5.Text);
    ListFiles();
    if (form_.ckGetCount.Value == kChecked) ShowCounter();
}

// Notes each file's number and, while folders are gathered whole, its path in the list of the SuperBatch. An
// empty folder leaves both counts as they were.
void Navigator::ListFiles() {
    if (form_.File5.ListCount() == 0) return;
    ShowFileCount(form_);
    const bool gather = form_.ckAppend.Value == kChecked && form_.ckSingleFile.Value == kUnchecked;
    for (const std::string& name : form_.File5.Rows()) {
        if (gather) form_.List2.AddItem(form_.File5.Path() + form_.ports.files.Separator() + name);
        NoteFileNumber(form_, name);
    }
    if (gather) form_.Label8(0).Caption = CStr(form_.List2.ListCount()) + " Files";
}

void Navigator::ShowCounter() {
    ShowHighestNumber(form_);
    if (form_.File5.ListCount() == 0 && form_.ckIncrement.Value == kChecked) form_.TextLoops.Text = "0";
    if (!form_.MaterialPrefix.empty()) {
        form_.textProfileName.Text = Trim(form_.MaterialPrefix);
        form_.MaterialPrefix.clear();
    }
}

void Navigator::TakePattern() {
    form_.File5.SetPattern(Trim(form_.Combo5.Text()));
    ShowFileCount(form_);
}

// What is no pattern turns back into the first one. The file list takes a typed pattern at the next click or
// change of folder, not here.
void Navigator::MendPattern() {
    if (form_.Combo5.Text().empty()) form_.Combo5.Text = kDefaultPattern;
    if (!Contains(form_.Combo5.Text(), "*")) form_.Combo5.Text = kDefaultPattern;
}

void Navigator::GoToCategory(int index) {
    const char* folder = kCategoryFolders[static_cast<std::size_t>(index)];
    ResumeNext([&] { form_.Dir5.SetPath(form_.AppPath(folder)); });
}

// The first folder visited is the library's root, unless the user started elsewhere.
void Navigator::GoBackToLibrary() {
    if (form_.ListDirs.ListCount() == 0) return;
    ResumeNext([this] { form_.Dir5.SetPath(form_.ListDirs.List(0)); });
}

// Each row of the walk is opened in turn, upwards, so that the first file is the one that stays.
void Navigator::WalkThroughFirstFiles() {
    form_.File5.Refresh();
    for (int row = kLastRowOfTheWalk; row >= 0; --row) {
        ResumeNext([&] { form_.File5.Selected(row) = true; });
        ResumeNext([&] { form_.File5.Selected(row) = false; });
    }
    ResumeNext([this] { form_.File5.Selected(0) = true; });
}

void Navigator::TellWhatFileClickDoes() {
    const bool forGradient = form_.ckGradPic(0).Value == kChecked;
    form_.File5.ToolTipText =
        forGradient ? "Click to open for gradient image to gradate" : "Click to preview image file";
}

} // namespace mirelle
