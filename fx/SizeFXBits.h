// Sizes the pixel arrays of the point effects for the pictures of the moment.
#pragma once

namespace mirelle {

class FrmPicX;

// FXSource from Pic1's image, then FXDest from PicImage's: each array is made anew, all bytes 0. Raises the
// error of the first box that has no pixels (11 or 9); what comes after it then stays as it was.
void SizeFXBits(FrmPicX& form);

} // namespace mirelle
