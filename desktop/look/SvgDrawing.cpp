#include "desktop/look/SvgDrawing.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <QPainter>
#include <QXmlStreamReader>

#include "desktop/look/SvgPath.h"

namespace mirelle::look {

namespace {

// What a group hands down to its children.
struct Inherited {
    SvgPaint fill{SvgPaint::Kind::Colour, QColor(Qt::black), 1};
    SvgPaint stroke;
    double strokeWidth = 1;
    Qt::PenCapStyle cap = Qt::FlatCap;
    Qt::PenJoinStyle join = Qt::SvgMiterJoin;
    Qt::FillRule rule = Qt::WindingFill;
    double opacity = 1; // of the groups around, multiplied
};

// Read where an element wants them, or of no account for the picture.
constexpr std::array<std::u16string_view, 18> kOtherAttributes = {
    u"d",  u"points", u"viewBox", u"x",  u"y", u"width", u"height", u"x1", u"y1",
    u"x2", u"y2",     u"cx",      u"cy", u"r", u"rx",    u"ry",     u"id", u"version",
};

std::u16string_view AsView(QStringView text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

bool IsOtherAttribute(QStringView name) {
    return std::find(kOtherAttributes.begin(), kOtherAttributes.end(), AsView(name)) !=
           kOtherAttributes.end();
}

class Reader {
public:
    explicit Reader(const QByteArray& text) : xml_(text) {}

    std::optional<SvgDrawing> Read(QString* fault) {
        if (xml_.readNextStartElement()) Root();
        while (!xml_.atEnd())
            xml_.readNext(); // what follows the root has to be well-formed too
        if (fault && xml_.hasError()) {
            *fault = QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString());
        }
        if (xml_.hasError()) return std::nullopt;
        return drawing_;
    }

private:
    void Fail(const QString& reason) {
        if (!xml_.hasError()) xml_.raiseError(reason);
    }

    void Root() {
        if (xml_.name() != u"svg") return Fail(QStringLiteral("the root is not svg"));
        const std::vector<double> box = Numbers(u"viewBox");
        if (xml_.hasError()) return;
        if (box.size() != 4 || box[2] <= 0 || box[3] <= 0) return Fail(QStringLiteral("svg needs a viewBox"));
        drawing_.viewBox = QRectF(box[0], box[1], box[2], box[3]);
        // An own stack in place of recursion: a deep file costs memory in proportion to its length, no more.
        std::vector<Inherited> open = {Presentation({})};
        while (!open.empty() && !xml_.atEnd()) {
            xml_.readNext();
            if (xml_.isEndElement()) open.pop_back();
            if (xml_.isStartElement()) Begin(open);
        }
    }

    void Begin(std::vector<Inherited>& open) {
        if (xml_.name() == u"title" || xml_.name() == u"desc") return xml_.skipCurrentElement();
        const Inherited style = Presentation(open.back());
        if (xml_.hasError()) return;
        if (xml_.name() != u"g") Shape(style);
        open.push_back(style);
    }

    void Shape(const Inherited& style) {
        QPainterPath path = Outline();
        if (xml_.hasError()) return;
        path.setFillRule(style.rule);
        SvgShape shape{path, style.fill, style.stroke, style.strokeWidth, style.cap, style.join};
        shape.fill.opacity *= style.opacity;
        shape.stroke.opacity *= style.opacity;
        drawing_.shapes.push_back(shape);
    }

    QPainterPath Outline() {
        const QStringView name = xml_.name();
        if (name == u"path") return PathData();
        if (name == u"line") return Line();
        if (name == u"polyline") return Polyline(false);
        if (name == u"polygon") return Polyline(true);
        if (name == u"rect") return Rectangle();
        if (name == u"circle") return Ellipse(Number(u"r", 0), Number(u"r", 0));
        if (name == u"ellipse") return Ellipse(Number(u"rx", 0), Number(u"ry", 0));
        Fail(QStringLiteral("unknown element %1").arg(name));
        return {};
    }

    QPainterPath PathData() {
        const QByteArray text = xml_.attributes().value(QStringLiteral("d")).toUtf8();
        const std::optional<QPainterPath> path =
            ReadPathData({text.data(), static_cast<std::size_t>(text.size())});
        if (!path) Fail(QStringLiteral("bad path data"));
        return path.value_or(QPainterPath());
    }

    QPainterPath Line() {
        QPainterPath path(QPointF(Number(u"x1", 0), Number(u"y1", 0)));
        path.lineTo(Number(u"x2", 0), Number(u"y2", 0));
        return path;
    }

    QPainterPath Polyline(bool closed) {
        const std::vector<double> numbers = Numbers(u"points");
        if (numbers.size() < 4 || numbers.size() % 2 != 0) Fail(QStringLiteral("bad points"));
        if (xml_.hasError()) return {};
        QPainterPath path(QPointF(numbers[0], numbers[1]));
        for (std::size_t i = 2; i < numbers.size(); i += 2)
            path.lineTo(numbers[i], numbers[i + 1]);
        if (closed) path.closeSubpath();
        return path;
    }

    QPainterPath Rectangle() {
        const QRectF box(Number(u"x", 0), Number(u"y", 0), Number(u"width", 0), Number(u"height", 0));
        if (box.width() <= 0 || box.height() <= 0) Fail(QStringLiteral("empty rect"));
        const double rx = Number(u"rx", Number(u"ry", 0));
        const double ry = Number(u"ry", rx);
        QPainterPath path;
        if (rx <= 0 || ry <= 0) {
            path.addRect(box);
        } else {
            path.addRoundedRect(box, rx, ry);
        }
        return path;
    }

    QPainterPath Ellipse(double rx, double ry) {
        if (rx <= 0 || ry <= 0) Fail(QStringLiteral("empty ellipse"));
        QPainterPath path;
        path.addEllipse(QPointF(Number(u"cx", 0), Number(u"cy", 0)), rx, ry);
        return path;
    }

    std::vector<double> Numbers(QStringView name) {
        const QByteArray text = xml_.attributes().value(name.toString()).toUtf8();
        const auto numbers = ReadNumbers({text.data(), static_cast<std::size_t>(text.size())});
        if (!numbers) Fail(QStringLiteral("bad numbers in %1").arg(name));
        return numbers.value_or(std::vector<double>());
    }

    double Number(QStringView name, double absent) {
        if (!xml_.attributes().hasAttribute(name.toString())) return absent;
        const std::vector<double> numbers = Numbers(name);
        if (numbers.size() != 1) Fail(QStringLiteral("bad number in %1").arg(name));
        return numbers.size() == 1 ? numbers[0] : absent;
    }

    double Share(QStringView name) { return std::clamp(Number(name, 1), 0.0, 1.0); }

    Inherited Presentation(Inherited style) {
        const QXmlStreamAttributes attributes = xml_.attributes();
        for (const QXmlStreamAttribute& attribute : attributes)
            Apply(attribute.name(), attribute.value(), style);
        style.opacity *= Share(u"opacity");
        return style;
    }

    void Apply(QStringView name, QStringView value, Inherited& style) {
        if (name == u"fill") return Paint(value, style.fill);
        if (name == u"stroke") return Paint(value, style.stroke);
        if (name == u"fill-opacity") return void(style.fill.opacity = Share(name));
        if (name == u"stroke-opacity") return void(style.stroke.opacity = Share(name));
        if (name == u"stroke-width") return void(style.strokeWidth = Number(name, 1));
        if (name == u"stroke-linecap") return Cap(value, style.cap);
        if (name == u"stroke-linejoin") return Join(value, style.join);
        if (name == u"fill-rule") return Rule(value, style.rule);
        if (name == u"opacity" || IsOtherAttribute(name)) return;
        Fail(QStringLiteral("unknown attribute %1").arg(name));
    }

    void Paint(QStringView value, SvgPaint& paint) {
        if (value == u"none") return void(paint.kind = SvgPaint::Kind::None);
        if (value == u"currentColor") return void(paint.kind = SvgPaint::Kind::Ink);
        QColor colour;
        if (value.startsWith(u'#')) colour.setNamedColor(value.toString());
        if (!colour.isValid()) return Fail(QStringLiteral("bad colour %1").arg(value));
        paint.kind = SvgPaint::Kind::Colour;
        paint.colour = colour;
    }

    void Cap(QStringView value, Qt::PenCapStyle& cap) {
        if (value == u"round") return void(cap = Qt::RoundCap);
        if (value == u"butt") return void(cap = Qt::FlatCap);
        if (value == u"square") return void(cap = Qt::SquareCap);
        Fail(QStringLiteral("bad cap %1").arg(value));
    }

    void Join(QStringView value, Qt::PenJoinStyle& join) {
        if (value == u"round") return void(join = Qt::RoundJoin);
        if (value == u"miter") return void(join = Qt::SvgMiterJoin);
        if (value == u"bevel") return void(join = Qt::BevelJoin);
        Fail(QStringLiteral("bad join %1").arg(value));
    }

    void Rule(QStringView value, Qt::FillRule& rule) {
        if (value == u"nonzero") return void(rule = Qt::WindingFill);
        if (value == u"evenodd") return void(rule = Qt::OddEvenFill);
        Fail(QStringLiteral("bad fill rule %1").arg(value));
    }

    QXmlStreamReader xml_;
    SvgDrawing drawing_;
};

QColor Coloured(const SvgPaint& paint, const QColor& ink) {
    QColor colour = paint.kind == SvgPaint::Kind::Ink ? ink : paint.colour;
    colour.setAlphaF(colour.alphaF() * static_cast<float>(paint.opacity));
    return colour;
}

} // namespace

std::optional<SvgDrawing> ReadSvg(const QByteArray& text, QString* fault) {
    return Reader(text).Read(fault);
}

void PaintSvg(QPainter& painter, const SvgDrawing& drawing, const QRectF& target, const QColor& ink) {
    if (drawing.viewBox.isEmpty()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / drawing.viewBox.width(), target.height() / drawing.viewBox.height());
    painter.translate(-drawing.viewBox.topLeft());
    for (const SvgShape& shape : drawing.shapes) {
        if (shape.HasFill()) painter.fillPath(shape.path, Coloured(shape.fill, ink));
        if (!shape.HasStroke()) continue;
        const QPen pen(Coloured(shape.stroke, ink), shape.strokeWidth, Qt::SolidLine, shape.cap, shape.join);
        painter.strokePath(shape.path, pen);
    }
    painter.restore();
}

} // namespace mirelle::look
