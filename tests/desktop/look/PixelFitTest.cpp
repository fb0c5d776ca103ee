#include "desktop/look/PixelFit.h"

#include <cmath>

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

#include "desktop/look/Icons.h"

namespace mirelle::look {
namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 1.75, 2};

SvgDrawing Frame(double inset) {
    SvgShape shape;
    shape.path.addRect(QRectF(inset, inset, 20 - 2 * inset, 20 - 2 * inset));
    shape.stroke.kind = SvgPaint::Kind::Ink;
    shape.strokeWidth = 1.5;
    return {QRectF(0, 0, 20, 20), {shape}};
}

QImage Painted(const SvgDrawing& drawing, double scale) {
    const int side = static_cast<int>(20 * scale);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PaintFitted(painter, drawing, QRectF(0, 0, side, side), QColor(Qt::white));
    return image;
}

TEST(PixelFit, StrokesBecomeWholePixelsAndHalvesWhileTheyAreThin) {
    EXPECT_EQ(FittedStroke(1.5, 1), 1.5);
    EXPECT_EQ(FittedStroke(1.5, 1.25), 2);
    EXPECT_EQ(FittedStroke(1.5, 1.5), 2);
    EXPECT_EQ(FittedStroke(1.5, 1.75), 3);
    EXPECT_EQ(FittedStroke(1.5, 2), 3);
    EXPECT_EQ(FittedStroke(0.1, 1), 0.5);
}

// Whatever the place that it was drawn at, a frame comes out without a grey pixel once its lines are whole.
TEST(PixelFit, AFrameHasNoBlurredPixelAtAnyScaleAboveOne) {
    for (const double scale : kScales) {
        if (scale == 1) continue;
        for (const double inset : {2.0, 2.3, 2.75, 3.25, 4.1}) {
            const QImage image = Painted(Frame(inset), scale);
            for (int x = 0; x < image.width(); ++x) {
                const int alpha = qAlpha(image.pixel(x, image.height() / 2));
                EXPECT_TRUE(alpha == 0 || alpha == 255)
                    << "scale " << scale << " inset " << inset << " x " << x;
            }
        }
    }
}

TEST(PixelFit, AtScaleOneALineHasOneSharpEdge) {
    const QImage image = Painted(Frame(2.75), 1);
    EXPECT_EQ(qAlpha(image.pixel(1, 10)), 0);
    EXPECT_EQ(qAlpha(image.pixel(2, 10)), 255);
    EXPECT_NEAR(qAlpha(image.pixel(3, 10)), 128, 2);
    EXPECT_EQ(qAlpha(image.pixel(4, 10)), 0);
}

TEST(PixelFit, AFrameStaysSymmetrical) {
    for (const double scale : kScales) {
        for (const double inset : {2.0, 2.5, 2.75, 3.0, 3.3, 4.6}) {
            const QImage image = Painted(Frame(inset), scale);
            EXPECT_EQ(image, image.mirrored(true, false)) << "scale " << scale << " inset " << inset;
            EXPECT_EQ(image, image.mirrored(false, true)) << "scale " << scale << " inset " << inset;
        }
    }
}

TEST(PixelFit, NothingMovesByAPixelOrMore) {
    for (const double scale : kScales) {
        for (double inset = 1; inset < 9; inset += 0.13) {
            const SvgDrawing fitted = FittedToPixels(Frame(inset), scale);
            EXPECT_LT(std::abs(fitted.shapes[0].path.boundingRect().left() - inset * scale), 1)
                << inset << " at " << scale;
        }
    }
}

TEST(PixelFit, TheOrderOfLinesIsKept) {
    SvgDrawing drawing{QRectF(0, 0, 20, 20), {}};
    for (double x = 2; x < 18; x += 0.4) {
        SvgShape line;
        line.path.moveTo(x, 2);
        line.path.lineTo(x, 18);
        line.stroke.kind = SvgPaint::Kind::Ink;
        line.strokeWidth = 1.5;
        drawing.shapes.push_back(line);
    }
    for (const double scale : kScales) {
        double before = 0;
        for (const SvgShape& shape : FittedToPixels(drawing, scale).shapes) {
            EXPECT_GE(shape.path.elementAt(0).x, before);
            before = shape.path.elementAt(0).x;
        }
    }
}

TEST(PixelFit, WhereAStrokeCoversTheEdgeOfAnAreaTheStrokeIsSharp) {
    SvgDrawing drawing = Frame(3);
    SvgShape area;
    area.path.addRect(QRectF(3, 3, 14, 14));
    area.fill.kind = SvgPaint::Kind::Ink;
    area.fill.opacity = 0.5;
    drawing.shapes.insert(drawing.shapes.begin(), area);
    const QImage image = Painted(drawing, 2);
    EXPECT_EQ(qAlpha(image.pixel(3, 20)), 0);
    for (int x = 4; x < 7; ++x)
        EXPECT_EQ(qAlpha(image.pixel(x, 20)), 255) << x;
}

} // namespace
} // namespace mirelle::look
