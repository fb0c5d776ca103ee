#include "fx/SizeFXBits.h"

#include "app/FrmPicX.h"

namespace mirelle {

void SizeFXBits(FrmPicX& form) {
    // An image has the size of its box; asking for the image itself would draw it.
    form.FXSource.SizeFor(form.Pic1.PixelWidth(), form.Pic1.PixelHeight());
    form.FXDest.SizeFor(form.PicImage.PixelWidth(), form.PicImage.PixelHeight());
}

} // namespace mirelle
