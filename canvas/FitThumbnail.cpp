#include "canvas/FitThumbnail.h"

#include "app/FrmPicX.h"

namespace mirelle {

void FitThumbnail(FrmPicX& form, float startWidth, float startHeight) {
    ImageControl& thumbnail = form.Image1;
    const auto takeOfMaterial = [&](float factor) {
        thumbnail.Width = form.picSmall.Width * factor;
        thumbnail.Height = form.picSmall.Height * factor;
    };
    thumbnail.Width = startWidth;
    thumbnail.Height = startHeight;
    if (thumbnail.Height < 350) takeOfMaterial(1.5F);
    if (thumbnail.Width < 350) takeOfMaterial(1.5F);
    if (thumbnail.Height > 350) takeOfMaterial(0.4F);
    if (thumbnail.Width > 650) takeOfMaterial(0.4F);
    if (thumbnail.Width > 400) thumbnail.Width = 350;
    if (thumbnail.Height > 300) thumbnail.Height = 300;
}

} // namespace mirelle
