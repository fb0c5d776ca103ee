#include "desktop/canvas/PictureImage.h"

#include <memory>

namespace mirelle {

QImage ImageOver(const Picture& picture) {
    const Bitmap& bitmap = picture.Pixels();
    if (bitmap.IsEmpty()) return {};
    auto holder = std::make_unique<Picture>(picture);
    const auto* bytes = reinterpret_cast<const uchar*>(bitmap.Pixels().data());
    return QImage(
        bytes, bitmap.Width(), bitmap.Height(), static_cast<qsizetype>(bitmap.Width()) * 4,
        QImage::Format_RGB32, [](void* held) { delete static_cast<Picture*>(held); }, holder.release());
}

} // namespace mirelle
