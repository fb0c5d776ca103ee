// The drop-down list of textProfileName: prefixes that jump to their library folder and wait for the next
// name, the user's own among them from a file.
#pragma once

#include "library/LineInput.h"

#include <optional>

namespace mirelle {

class FrmPicX;

class MaterialNames {
public:
    explicit MaterialNames(FrmPicX& form);

private:
    void JumpToPrefix();
    void LoadPrefixList();
    void OpenPrefixFile();

    FrmPicX& form_;
    // File number 1. A file of more lines than are read in one go stays open here, and the next reading goes
    // on in it.
    std::optional<LineInput> file1_;
};

} // namespace mirelle
