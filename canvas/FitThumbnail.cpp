#include "canvas/FitThumbnail.h"

#include "app/FrmPicX.h"

namespace mirelle {

void FitThumbnail(FrmPicX& form, float startWidth, float startHeight) {
    ImageControl& thumbnail = form.Image1;
    const auto takeOfMaterial = [&](double factor) {
        thumbnail.Width = static_cast<float>(form.picSmall.Width * factor);
        thumbnail.Height = static_cast<float>(form.picSmall.Height * factor);
    };
    thumbnail.Width = startWidth;
    thumbnail.Height = startHeight;
    if (thumbnail.Height < 350) takeOfMaterial(1.5);
    if (thumbnail.Width < 350) takeOfMaterial(1.5);
    if (thumbnail.Height > 350) takeOfMaterial(0.4);
    if (thumbnail.Width > 650) takeOfMaterial(0.4);
    if (thumbnail.Width > 400) thumbnail.Width = 350;
    if (thumbnail.Height > 300) thumbnail.Height = 300;
}

} // namespace mirelle
