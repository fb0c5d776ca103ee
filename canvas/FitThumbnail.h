// The size of the thumbnail of the Material Image.
#pragma once

namespace mirelle {

class FrmPicX;

// Sizes Image1, beginning with a start size in pixels. Each check reads the size that the checks before it
// left; the rescaling ones take their measures from picSmall. The aspect ratio is kept but by the last two
// limits.
void FitThumbnail(FrmPicX& form, float startWidth, float startHeight);

} // namespace mirelle
