// The common dialog: asks for a file to open or for a colour.
#pragma once

#include "forms/ports/Dialogs.h"

#include <string>

namespace mirelle {

class CommonDialog {
public:
    explicit CommonDialog(Dialogs& dialogs) : dialogs_(dialogs) {}

    std::string Filter;
    std::string DefaultExt;
    std::string DialogTitle;
    int Flags = 0;
    bool CancelError = false;
    std::string FileName;     // the file chosen last
    mirelle::Color Color = 0; // the colour chosen last

    // Both keep what was chosen last where the user cancels, and then raise error 32755 if CancelError is
    // set.
    void ShowOpen();
    void ShowColor();

private:
    void Cancelled() const;

    Dialogs& dialogs_;
};

} // namespace mirelle
