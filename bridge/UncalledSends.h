// Two sends that no control, event or routine reaches.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;

// Types a block that sets the material on every selected entity.
void ApplyMaterialToLayerFaces(FrmPicX& form);

// The new-material send with a pause ahead of the material's lines and its name bare. Nothing supplies the
// window title and the file name, so both are empty.
void SendMaterialAfterSave(FrmPicX& form, const std::string& windowTitle = {},
                           const std::string& fileName = {});

} // namespace mirelle
