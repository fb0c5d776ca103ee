// The way of the point effects through the pixel arrays: the canvas picture goes into FXSource, and FXDest
// comes back as the canvas picture.
//
// Both raise nothing. Each leaves at its own first error without a word, such as the arrays not having been
// sized yet, and whatever called it goes on.
#pragma once

namespace mirelle {

class FrmPicX;

// Sets the hourglass and fills FXSource from the Working picture.
void GetFXBits(FrmPicX& form);

// Writes FXDest to the Working picture, hands it on to the boxes that follow it, retains it and clears the
// hourglass, which stays where an error came first.
void PutFXBits(FrmPicX& form);

} // namespace mirelle
