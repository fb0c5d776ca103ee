// The window's own drawings: a small reader for the part of SVG that they are made of, and their painting.
//
// Read are the elements svg, g, path, line, polyline, polygon, rect, circle and ellipse, with the
// presentation attributes fill, stroke, stroke-width, stroke-linecap, stroke-linejoin, fill-rule, opacity,
// fill-opacity and stroke-opacity; title and desc are passed over. Anything else (transform, style, text,
// gradients) is a fault, so that a drawing shows all that it holds or nothing. This is no viewer for the SVG
// files of other people.
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QString>

class QPainter;

namespace mirelle::look {

// What fills an area or a stroke. Ink is the SVG's currentColor: the colour that the painter is given.
struct SvgPaint {
    enum class Kind { None, Ink, Colour };
    Kind kind = Kind::None;
    QColor colour;      // for Kind::Colour alone
    double opacity = 1; // 0 to 1

    friend bool operator==(const SvgPaint&, const SvgPaint&) = default;
};

struct SvgShape {
    QPainterPath path;
    SvgPaint fill;
    SvgPaint stroke;
    double strokeWidth = 1;
    Qt::PenCapStyle cap = Qt::FlatCap;
    Qt::PenJoinStyle join = Qt::SvgMiterJoin;

    bool HasStroke() const { return stroke.kind != SvgPaint::Kind::None && strokeWidth > 0; }
    bool HasFill() const { return fill.kind != SvgPaint::Kind::None; }
};

struct SvgDrawing {
    QRectF viewBox;
    std::vector<SvgShape> shapes;
};

// Empty where the text is no drawing of this kind; `fault`, where given, then tells the line and the reason.
std::optional<SvgDrawing> ReadSvg(const QByteArray& text, QString* fault = nullptr);

// Paints `drawing` with its view box stretched over `target`, in the painter's units.
void PaintSvg(QPainter& painter, const SvgDrawing& drawing, const QRectF& target, const QColor& ink);

} // namespace mirelle::look
