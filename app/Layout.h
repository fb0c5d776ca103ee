// Where the panels lie in the normal and in the large (maximised) window, as numbers of the form.
#pragma once

namespace mirelle {

class FrmPicX;

void LayOutLarge(FrmPicX& form);
void LayOutNormal(FrmPicX& form);

} // namespace mirelle
