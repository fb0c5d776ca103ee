#include "gradient/StretchToFit.h"

#include "forms/PictureBox.h"
#include "forms/RunTimeError.h"

namespace mirelle {

void StretchToFit::operator()(PictureBox& target, const Picture& picture) {
    const Picture source = picture; // the target's own picture may be what it is painted with
    const int width = target.PixelWidth();
    const int height = target.PixelHeight();
    if (source.Width() == width && source.Height() == height) {
        target.Picture = source; // painting it would only copy it
        return;
    }
    if (const Picture* known = Known(source, width, height)) {
        target.Picture = *known;
        return;
    }
    const bool painted = ResumeNext([&] { target.StretchPicture(source); });
    const bool kept = ResumeNext([&] { target.Picture = target.Image(); });
    target.Refresh();
    if (!painted || !kept) return;
    made_[oldest_] = {source, target.Picture};
    oldest_ = (oldest_ + 1) % made_.size();
}

const Picture* StretchToFit::Known(const Picture& picture, int width, int height) const {
    for (const Stretched& stretched : made_) {
        if (!picture.IsEmpty() && stretched.source.SharesPixelsWith(picture) &&
            stretched.result.Width() == width && stretched.result.Height() == height) {
            return &stretched.result;
        }
    }
    return nullptr;
}

} // namespace mirelle
