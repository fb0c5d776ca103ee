// The handlers of image FX, undo and the colour dialogs, connected to the form.
#pragma once

namespace mirelle {

class FrmPicX;

class ImageFX {
public:
    explicit ImageFX(FrmPicX& form);
};

} // namespace mirelle
