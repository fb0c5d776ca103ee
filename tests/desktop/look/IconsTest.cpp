#include "desktop/look/Icons.h"

#include <cmath>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

#include "desktop/look/IconTable.h"
#include "desktop/look/PixelFit.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {
namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 1.75, 2};

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::vector<std::string> DrawingNames() {
    std::vector<std::string> names;
    for (const QString& file : QDir(QStringLiteral(":/look/icons")).entryList({QStringLiteral("*.svg")})) {
        if (file != u"application.svg") names.push_back(file.chopped(4).toStdString());
    }
    return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& row) {
    std::string name = row.param;
    for (char& c : name) {
        if (c == '-') c = '_';
    }
    return name;
}

class EveryIcon : public testing::TestWithParam<std::string> {
protected:
    const SvgDrawing& Drawing() const { return IconDrawing(Text(GetParam())); }
};

TEST_P(EveryIcon, IsReadWithoutAFault) {
    QFile file(QStringLiteral(":/look/icons/%1.svg").arg(Text(GetParam())));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString fault;
    EXPECT_TRUE(ReadSvg(file.readAll(), &fault)) << fault.toStdString();
}

TEST_P(EveryIcon, IsOfTheOneHand) {
    EXPECT_EQ(Drawing().viewBox, QRectF(0, 0, kIcon, kIcon));
    for (const SvgShape& shape : Drawing().shapes) {
        EXPECT_TRUE(shape.HasFill() || shape.HasStroke());
        EXPECT_NE(shape.fill.kind, SvgPaint::Kind::Colour);
        EXPECT_NE(shape.stroke.kind, SvgPaint::Kind::Colour);
        if (!shape.HasStroke()) continue;
        EXPECT_EQ(shape.strokeWidth, kIconStroke);
        EXPECT_EQ(shape.cap, Qt::RoundCap);
        EXPECT_EQ(shape.join, Qt::RoundJoin);
    }
}

// Painted in the middle of a sheet three times its size: all ink lies in the middle, and there is some.
TEST_P(EveryIcon, StaysInsideItsGridAndPaintsSomething) {
    for (const double scale : kScales) {
        const int side = static_cast<int>(kIcon * scale);
        QImage sheet(3 * side, 3 * side, QImage::Format_ARGB32_Premultiplied);
        sheet.fill(Qt::transparent);
        QPainter painter(&sheet);
        PaintFitted(painter, Drawing(), QRectF(side, side, side, side), QColor(Qt::white));
        painter.end();
        int inked = 0;
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 0; x < sheet.width(); ++x) {
                if (qAlpha(sheet.pixel(x, y)) == 0) continue;
                ++inked;
                EXPECT_TRUE(x >= side && x < 2 * side && y >= side && y < 2 * side)
                    << x << ", " << y << " at " << scale;
            }
        }
        EXPECT_GT(inked, side);
    }
}

double OffPixel(double place) {
    return std::abs(place - std::round(place));
}

// An upright or level stroke has an edge on a pixel border, and both once its width is whole.
TEST_P(EveryIcon, HasItsStraightLinesOnThePixelGrid) {
    for (const double scale : kScales) {
        for (const SvgShape& shape : FittedToPixels(Drawing(), scale).shapes) {
            if (!shape.HasStroke()) continue;
            for (int i = 1; i < shape.path.elementCount(); ++i) {
                const QPainterPath::Element from = shape.path.elementAt(i - 1);
                const QPainterPath::Element to = shape.path.elementAt(i);
                if (!to.isLineTo() || (from.x != to.x && from.y != to.y)) continue;
                const double place = from.x == to.x ? to.x : to.y;
                const double low = OffPixel(place - shape.strokeWidth / 2);
                const double high = OffPixel(place + shape.strokeWidth / 2);
                EXPECT_LT(std::min(low, high), 1e-6) << "line at " << place << ", scale " << scale;
            }
        }
    }
}

TEST_P(EveryIcon, DiffersFromEveryOther) {
    const auto painted = [](const SvgDrawing& drawing) {
        QImage image(kIcon, kIcon, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        PaintFitted(painter, drawing, QRectF(0, 0, kIcon, kIcon), QColor(Qt::white));
        return image;
    };
    const QImage mine = painted(Drawing());
    for (const std::string& name : DrawingNames()) {
        if (name == GetParam()) continue;
        EXPECT_NE(mine, painted(IconDrawing(Text(name)))) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Icons, EveryIcon, testing::ValuesIn(DrawingNames()), TestName);

TEST(IconTable, EveryRowNamesADrawing) {
    const std::vector<std::string> names = DrawingNames();
    for (const IconRow& row : kIconTable)
        EXPECT_THAT(names, testing::Contains(row.icon)) << row.control;
    for (const std::string_view icon : {kNormalSizeIcon, kSpinUpIcon, kSpinDownIcon})
        EXPECT_THAT(names, testing::Contains(icon));
}

TEST(IconTable, NoControlAndNoDrawingStandsInItTwice) {
    std::set<std::string_view> controls;
    std::set<std::string_view> icons;
    for (const IconRow& row : kIconTable) {
        EXPECT_TRUE(controls.insert(row.control).second) << row.control;
        EXPECT_TRUE(icons.insert(row.icon).second) << row.icon;
    }
}

TEST(IconTable, FindsTheDrawingOfAControl) {
    EXPECT_EQ(IconOf("Command5"), "paste");
    EXPECT_EQ(IconOf("cmdMatDirs(9)"), "library-misc");
    EXPECT_EQ(IconOf("TextLoops"), "");
}

TEST(Icons, ANameWithoutADrawingPaintsNothing) {
    EXPECT_TRUE(IconDrawing(u"no-such-drawing").shapes.empty());
    EXPECT_TRUE(MakeIcon(u"no-such-drawing").isNull());
}

QRgb InkOf(QIcon::Mode mode, QIcon::State state) {
    // The drop at the lower right of this drawing is solid.
    return MakeIcon(u"canvas-colour").pixmap(QSize(kIcon, kIcon), mode, state).toImage().pixel(16, 14);
}

TEST(Icons, TakeTheInkOfTheirState) {
    EXPECT_EQ(InkOf(QIcon::Normal, QIcon::Off), kText);
    EXPECT_EQ(InkOf(QIcon::Active, QIcon::Off), kTextStrong);
    EXPECT_EQ(InkOf(QIcon::Disabled, QIcon::Off), kTextOff);
    EXPECT_EQ(InkOf(QIcon::Normal, QIcon::On), kAccentText);
    EXPECT_EQ(InkOf(QIcon::Disabled, QIcon::On), kTextOff);
}

TEST(Icons, AreDrawnForTheDeviceAndNotStretched) {
    // Twice the pixels show more than twice the figure: a stretched one would equal its own enlargement.
    const QImage small = MakeIcon(u"paste").pixmap(QSize(20, 20), 1.0).toImage();
    const QImage large = MakeIcon(u"paste").pixmap(QSize(20, 20), 2.0).toImage();
    EXPECT_EQ(large.size(), QSize(40, 40));
    EXPECT_NE(large.convertToFormat(QImage::Format_ARGB32),
              small.scaled(40, 40).convertToFormat(QImage::Format_ARGB32));
}

TEST(Icons, AnIconAtAFractionalPlaceIsMovedToWholePixels) {
    const auto painted = [](double place) {
        QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(1.25, 1.25);
        PaintFitted(painter, IconDrawing(u"paste"), QRectF(place, place, kIcon, kIcon), QColor(Qt::white));
        return image;
    };
    EXPECT_EQ(painted(3), painted(3.2)); // 3.75 and 4 device pixels
}

TEST(Icons, TheApplicationIconComesInManySizes) {
    const QIcon icon = ApplicationIcon();
    for (const int size : {16, 24, 32, 48, 256}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
        EXPECT_GT(qAlpha(icon.pixmap(QSize(size, size), 1.0).toImage().pixel(size / 2, size / 2)), 0) << size;
    }
}

} // namespace
} // namespace mirelle::look
