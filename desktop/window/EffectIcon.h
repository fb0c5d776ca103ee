// The icon of an effect's button: a sample as the effect itself changes it.
#pragma once

#include <QIcon>
#include <QString>

#include <string_view>

namespace mirelle {

// Null for a control that has no effect. The picture is made when it is first painted, for the pixels of its
// device, and kept in QPixmapCache: icons of a panel that nobody opens cost nothing.
QIcon EffectIcon(std::string_view control);

// The cache's key for a picture of so many device pixels a side.
QString EffectPictureKey(std::string_view control, int side);

} // namespace mirelle
