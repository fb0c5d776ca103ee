#include "desktop/look/SvgDrawing.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

namespace mirelle::look {
namespace {

QByteArray Svg(const char* body, const char* attributes = "") {
    return QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 20 20\" ") + attributes + ">" +
           body + "</svg>";
}

SvgShape OnlyShape(const QByteArray& text) {
    QString fault;
    const std::optional<SvgDrawing> drawing = ReadSvg(text, &fault);
    EXPECT_TRUE(drawing) << fault.toStdString();
    if (!drawing || drawing->shapes.size() != 1) {
        ADD_FAILURE() << "not one shape";
        return {};
    }
    return drawing->shapes[0];
}

QImage Painted(const QByteArray& text, QSize size = {20, 20}) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PaintSvg(painter, ReadSvg(text).value_or(SvgDrawing()), QRectF(QPointF(), QSizeF(size)),
             QColor(0xff, 0x80, 0x40));
    return image;
}

TEST(SvgDrawing, AShapeIsFilledBlackWithoutAStrokeWhenNothingIsSaid) {
    const SvgShape shape = OnlyShape(Svg("<rect x='1' y='2' width='3' height='4'/>"));
    EXPECT_EQ(shape.fill, (SvgPaint{SvgPaint::Kind::Colour, QColor(Qt::black), 1}));
    EXPECT_FALSE(shape.HasStroke());
    EXPECT_EQ(shape.path.boundingRect(), QRectF(1, 2, 3, 4));
}

TEST(SvgDrawing, ChildrenInheritFromTheRootAndFromGroups) {
    const SvgShape shape =
        OnlyShape(Svg("<g stroke-width='3'><line x1='1' y1='2' x2='3' y2='4'/></g>",
                      "fill='none' stroke='currentColor' stroke-linecap='round' stroke-linejoin='bevel'"));
    EXPECT_FALSE(shape.HasFill());
    EXPECT_EQ(shape.stroke.kind, SvgPaint::Kind::Ink);
    EXPECT_EQ(shape.strokeWidth, 3);
    EXPECT_EQ(shape.cap, Qt::RoundCap);
    EXPECT_EQ(shape.join, Qt::BevelJoin);
}

TEST(SvgDrawing, AGroupsAttributesEndWithIt) {
    const auto drawing = ReadSvg(Svg("<g fill='#ff0000'><circle r='1'/></g><circle r='2'/>"));
    ASSERT_TRUE(drawing);
    ASSERT_EQ(drawing->shapes.size(), 2u);
    EXPECT_EQ(drawing->shapes[0].fill.colour, QColor(255, 0, 0));
    EXPECT_EQ(drawing->shapes[1].fill.colour, QColor(Qt::black));
}

TEST(SvgDrawing, OpacitiesOfGroupsMultiply) {
    const SvgShape shape =
        OnlyShape(Svg("<g opacity='0.5'><circle r='1' opacity='.5' fill-opacity='0.5'/></g>"));
    EXPECT_DOUBLE_EQ(shape.fill.opacity, 0.125);
    EXPECT_DOUBLE_EQ(shape.stroke.opacity, 0.25);
}

struct ShapeCase {
    const char* name;
    const char* body;
    QRectF bounds;
    bool closed;
};

void PrintTo(const ShapeCase& row, std::ostream* out) {
    *out << row.body;
}

const ShapeCase kShapeCases[] = {
    {"Path", "<path d='M1 2H5V7z'/>", {1, 2, 4, 5}, true},
    {"Line", "<line x1='1' y1='2' x2='5' y2='7'/>", {1, 2, 4, 5}, false},
    {"Polyline", "<polyline points='1,2 5,2 5,7'/>", {1, 2, 4, 5}, false},
    {"Polygon", "<polygon points='1,2 5,2 5,7'/>", {1, 2, 4, 5}, true},
    {"Rect", "<rect x='1' y='2' width='4' height='5'/>", {1, 2, 4, 5}, true},
    {"RoundRect", "<rect x='1' y='2' width='4' height='5' rx='1'/>", {1, 2, 4, 5}, true},
    {"Circle", "<circle cx='3' cy='4' r='2'/>", {1, 2, 4, 4}, true},
    {"Ellipse", "<ellipse cx='3' cy='4' rx='2' ry='1'/>", {1, 3, 4, 2}, true},
};

class Shapes : public testing::TestWithParam<ShapeCase> {};

TEST_P(Shapes, HaveTheBoundsOfTheirFigures) {
    const SvgShape shape = OnlyShape(Svg(GetParam().body));
    EXPECT_EQ(shape.path.boundingRect(), GetParam().bounds);
    const QPointF start = shape.path.elementAt(0);
    EXPECT_EQ(shape.path.currentPosition() == start, GetParam().closed);
}

INSTANTIATE_TEST_SUITE_P(Svg, Shapes, testing::ValuesIn(kShapeCases),
                         [](const auto& row) { return row.param.name; });

TEST(SvgDrawing, ARoundedCornerLeavesTheCornerPixelEmpty) {
    const QImage sharp = Painted(Svg("<rect x='2' y='2' width='16' height='16' fill='currentColor'/>"));
    const QImage round =
        Painted(Svg("<rect x='2' y='2' width='16' height='16' rx='6' fill='currentColor'/>"));
    EXPECT_EQ(qAlpha(sharp.pixel(2, 2)), 255);
    EXPECT_EQ(qAlpha(round.pixel(2, 2)), 0);
    EXPECT_EQ(qAlpha(round.pixel(10, 10)), 255);
}

TEST(SvgDrawing, InkTakesThePaintersColourAndColoursStay) {
    const QImage image = Painted(
        Svg("<path d='M0 0h10v20h-10z' fill='currentColor'/><path d='M10 0h10v20h-10z' fill='#123456'/>"));
    EXPECT_EQ(image.pixel(5, 10), qRgb(0xff, 0x80, 0x40));
    EXPECT_EQ(image.pixel(15, 10), qRgb(0x12, 0x34, 0x56));
}

TEST(SvgDrawing, EvenOddLeavesTheInnerRectangleEmpty) {
    constexpr const char* rings = "<path d='M2 2h16v16h-16zM6 6h8v8h-8z' %1/>";
    const auto centre = [](QByteArray body, const char* rule) {
        return qAlpha(Painted(Svg(body.replace("%1", rule))).pixel(10, 10));
    };
    EXPECT_EQ(centre(rings, "fill-rule='evenodd'"), 0);
    EXPECT_EQ(centre(rings, "fill-rule='nonzero'"), 255);
}

TEST(SvgDrawing, TheViewBoxIsStretchedOverTheTarget) {
    const QImage image = Painted(Svg("<path d='M10 10h10v10h-10z' fill='currentColor'/>"), QSize(40, 40));
    EXPECT_EQ(qAlpha(image.pixel(19, 19)), 0);
    EXPECT_EQ(qAlpha(image.pixel(20, 20)), 255);
    EXPECT_EQ(qAlpha(image.pixel(39, 39)), 255);
}

struct FaultCase {
    const char* name;
    QByteArray text;
    const char* reason;
};

void PrintTo(const FaultCase& row, std::ostream* out) {
    *out << row.text.toStdString();
}

const FaultCase kFaultCases[] = {
    {"Empty", "", "line"},
    {"NotXml", "drawing", "line"},
    {"CutOff", "<svg viewBox='0 0 1 1'><path", "line"},
    {"OtherRoot", "<html/>", "the root is not svg"},
    {"NoViewBox", "<svg/>", "svg needs a viewBox"},
    {"EmptyViewBox", "<svg viewBox='0 0 0 20'/>", "svg needs a viewBox"},
    {"UnknownElement", Svg("<text>A</text>"), "unknown element text"},
    {"UnknownAttribute", Svg("<g transform='scale(2)'/>"), "unknown attribute transform"},
    {"BadPath", Svg("<path d='M0'/>"), "bad path data"},
    {"BadPoints", Svg("<polygon points='1 2 3'/>"), "bad points"},
    {"BadNumber", Svg("<circle r='wide'/>"), "bad numbers in r"},
    {"TwoNumbers", Svg("<circle r='1 2'/>"), "bad number in r"},
    {"NoRadius", Svg("<circle/>"), "empty ellipse"},
    {"EmptyRect", Svg("<rect width='3'/>"), "empty rect"},
    {"NamedColour", Svg("<circle r='1' fill='red'/>"), "bad colour red"},
    {"BadColour", Svg("<circle r='1' fill='#12'/>"), "bad colour #12"},
    {"BadCap", Svg("<circle r='1' stroke-linecap='arrow'/>"), "bad cap arrow"},
    {"RubbishBehind", Svg("") + "<svg/>", "line"},
};

class Faults : public testing::TestWithParam<FaultCase> {};

TEST_P(Faults, GiveNoDrawingAndTellTheReason) {
    QString fault;
    EXPECT_FALSE(ReadSvg(GetParam().text, &fault));
    EXPECT_TRUE(fault.contains(QLatin1String(GetParam().reason))) << fault.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Svg, Faults, testing::ValuesIn(kFaultCases),
                         [](const auto& row) { return row.param.name; });

TEST(SvgDrawing, TitlesArePassedOver) {
    const auto drawing = ReadSvg(Svg("<title>A <b>bold</b> one</title><desc/><circle r='1'/>"));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->shapes.size(), 1u);
}

TEST(SvgDrawing, ADeepFileIsReadWithoutHarm) {
    QByteArray body;
    constexpr int depth = 200000;
    for (int i = 0; i < depth; ++i)
        body += "<g>";
    body += "<circle r='1'/>";
    for (int i = 0; i < depth; ++i)
        body += "</g>";
    const auto drawing = ReadSvg(Svg(body));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->shapes.size(), 1u);
}

} // namespace
} // namespace mirelle::look
