// Command23: a picture file from the open dialog becomes the Material Image, and the canvas too while Check4
// is set. A picture file that is dropped on the canvas comes in as if the dialog had named it.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;

class OpenImage {
public:
    explicit OpenImage(FrmPicX& form);

private:
    void OpenFromDialog();
    void OpenDropped(const std::string& file);
    void OpenFile(const std::string& file);

    FrmPicX& form_;
};

} // namespace mirelle
