#include "desktop/window/PanelPlaces.h"

#include "desktop/look/Tokens.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr int kMargin = look::kSpace;
// The right column: a share of the window's width, within what it needs and what serves it.
constexpr int kColumnShare = 23; // of a hundred
constexpr int kColumnLeast = 296;
constexpr int kColumnMost = 440;

} // namespace

PanelPlaces PlacePanels(const PanelNeeds& needs) {
    const int width = needs.window.width();
    const int height = needs.window.height();
    PanelPlaces places;
    places.lower =
        QRect(kMargin, height - kMargin - needs.lowerHeight, width - 2 * kMargin, needs.lowerHeight);
    const int lowest = places.lower.top() - kMargin;
    const int columnHeight = std::max(0, lowest - kMargin);
    places.sends = QRect(width - kMargin - needs.sendsWidth, kMargin, needs.sendsWidth, columnHeight);
    const int columnWidth = std::clamp(width * kColumnShare / 100, kColumnLeast, kColumnMost);
    places.material = QRect(places.sends.left() - kMargin - columnWidth, kMargin, columnWidth, columnHeight);
    places.superBatch = places.material;
    places.superBatch.setHeight(std::min(needs.upperPart, columnHeight));

    const int right = needs.rightShown ? places.material.left() : width;
    const int stripWidth = std::max(0, right - 2 * kMargin);
    const int stripHeight = needs.stripHeight ? needs.stripHeight(stripWidth) : 0;
    const int stripBottom = needs.lowerShown ? lowest : height - kMargin;
    places.strip = QRect(kMargin, stripBottom - stripHeight, stripWidth, stripHeight);
    places.free = QRect(0, 0, right, needs.lowerShown ? lowest : height);
    return places;
}

} // namespace mirelle
