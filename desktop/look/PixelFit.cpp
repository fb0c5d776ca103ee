#include "desktop/look/PixelFit.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace mirelle::look {

namespace {

constexpr double kHardlyOff = 1e-6;
constexpr double kWholeFrom = 1.75; // from this width in device pixels on, half a pixel is not missed

// A map of one axis: places of the drawing to device pixels, straight between the anchors.
class Axis {
public:
    Axis(double start, double length, double scale) : start_(start), length_(length), scale_(scale) {
        anchors_[start] = 0;
        anchors_[start + length] = length * scale;
    }

    // A line at `place` that is `width` device pixels wide; width 0 is the edge of an area. The first line at
    // a place decides.
    void Anchor(double place, double width) {
        if (place <= start_ || place >= start_ + length_) return;
        const double scaled = (place - start_) * scale_;
        const double low = Nearest(scaled - width / 2, place) + width / 2;
        const double high = Nearest(scaled + width / 2, place) - width / 2;
        // For a width of whole pixels the two are the same; otherwise one edge can be sharp: the nearer one.
        const double lead = std::abs(high - scaled) - std::abs(low - scaled);
        const bool takeLow = std::abs(lead) > kHardlyOff ? lead > 0 : InFirstHalf(place);
        anchors_.try_emplace(place, takeLow ? low : high);
    }

    double operator()(double place) const {
        auto after = anchors_.upper_bound(place);
        if (after == anchors_.end()) --after;
        if (after == anchors_.begin()) ++after;
        const auto before = std::prev(after);
        const double share = (place - before->first) / (after->first - before->first);
        return before->second + share * (after->second - before->second);
    }

private:
    // To the nearest whole pixel; a tie goes away from the middle, on both sides of it.
    double Nearest(double pixels, double place) const {
        return InFirstHalf(place) ? std::ceil(pixels - 0.5 - kHardlyOff)
                                  : std::floor(pixels + 0.5 + kHardlyOff);
    }

    bool InFirstHalf(double place) const { return place < start_ + length_ / 2; }

    double start_;
    double length_;
    double scale_;
    std::map<double, double> anchors_;
};

// The upright and level pieces of an outline, drawn `width` device pixels wide.
void AnchorLines(const SvgShape& shape, double width, Axis& across, Axis& down) {
    for (int i = 1; i < shape.path.elementCount(); ++i) {
        const QPainterPath::Element to = shape.path.elementAt(i);
        if (!to.isLineTo()) continue;
        const QPainterPath::Element from = shape.path.elementAt(i - 1);
        if (std::abs(from.x - to.x) < kHardlyOff) across.Anchor(to.x, width);
        if (std::abs(from.y - to.y) < kHardlyOff) down.Anchor(to.y, width);
    }
}

} // namespace

double FittedStroke(double width, double scale) {
    const double pixels = width * scale;
    if (pixels >= kWholeFrom) return std::round(pixels);
    return std::max(0.5, std::round(pixels * 2) / 2);
}

SvgDrawing FittedToPixels(const SvgDrawing& drawing, double scale) {
    const QRectF box = drawing.viewBox;
    Axis across(box.left(), box.width(), scale);
    Axis down(box.top(), box.height(), scale);
    // Strokes go first: where the edge of an area lies under a stroke, it is the stroke that is seen.
    for (const SvgShape& shape : drawing.shapes) {
        if (shape.HasStroke()) AnchorLines(shape, FittedStroke(shape.strokeWidth, scale), across, down);
    }
    for (const SvgShape& shape : drawing.shapes) {
        if (!shape.HasStroke()) AnchorLines(shape, 0, across, down);
    }

    SvgDrawing fitted = drawing;
    fitted.viewBox = QRectF(QPointF(), box.size() * scale);
    for (SvgShape& shape : fitted.shapes) {
        if (shape.HasStroke()) shape.strokeWidth = FittedStroke(shape.strokeWidth, scale);
        for (int i = 0; i < shape.path.elementCount(); ++i) {
            const QPainterPath::Element element = shape.path.elementAt(i);
            shape.path.setElementPositionAt(i, across(element.x), down(element.y));
        }
    }
    return fitted;
}

} // namespace mirelle::look
