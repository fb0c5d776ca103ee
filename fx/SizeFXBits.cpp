#include "fx/SizeFXBits.h"

#include "app/FrmPicX.h"

namespace mirelle {

void SizeFXBits(FrmPicX& form) {
    form.FXSource.SizeFor(form.Pic1.Image().Pixels());
    form.FXDest.SizeFor(form.PicImage.Image().Pixels());
}

} // namespace mirelle
