// The way of the point effects through the pixel arrays: the canvas picture goes into FXSource, and FXDest
// comes back as the canvas picture.
#pragma once

namespace mirelle {

class FrmPicX;

// Sets the hourglass and fills FXSource from the Working picture. Raises error 9 while the arrays have not
// been sized.
void GetFXBits(FrmPicX& form);

// Writes FXDest to the Working picture, hands it on to the boxes that follow it, retains it and clears the
// hourglass. Raises error 9 while the arrays have not been sized.
void PutFXBits(FrmPicX& form);

} // namespace mirelle
