// Command23: a picture file from the open dialog becomes the Material Image, and the canvas too while Check4
// is set.
#pragma once

namespace mirelle {

class FrmPicX;

class OpenImage {
public:
    explicit OpenImage(FrmPicX& form);

private:
    void OpenFromDialog();

    FrmPicX& form_;
};

} // namespace mirelle
