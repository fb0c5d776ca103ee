// The way through the library: drive, folder and file lists kept in step, the jumps to the category folders,
// the pattern of files, and the count of files shown.
#pragma once

namespace mirelle {

class FrmPicX;

class Navigator {
public:
    explicit Navigator(FrmPicX& form);

private:
    void GoToDrive();
    void OnFolderChanged();
    void ShowCurrentFolder();
    void ResetFileView();
    void ListFiles();
    void ShowCounter();
    void TakePattern();
    void MendPattern();
    void GoToCategory(int index);
    void GoBackToLibrary();
    void WalkThroughFirstFiles();
    void TellWhatFileClickDoes();

    FrmPicX& form_;
};

} // namespace mirelle
