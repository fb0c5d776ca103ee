// Command6 sends the selected image as a new material, Command7 as the new texture of a material that
// SketchUp has; cmdReMat changes between the two buttons.
#pragma once

namespace mirelle {

class FrmPicX;

class SendMaterial {
public:
    explicit SendMaterial(FrmPicX& form);

private:
    void SendNewMaterial();
    void ChangeTexture();
    void ToggleTextureMode();
    void EnterTextureMode();
    void LeaveTextureMode();
    void Tell(const char* message);

    FrmPicX& form_;
};

} // namespace mirelle
