// The colour palette under a real pointer.
#include "desktop/window/ColourChart.h"
#include "forms/Color.h"
#include "tests/desktop/Mouse.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gtest/gtest.h>

#include <QLineEdit>

namespace mirelle::test {
namespace {

class PaletteTest : public testing::Test {
protected:
    PaletteTest() {
        opened.form.cmdColorPick.UserClick();
        opened.Settle();
    }

    // A place of the chart, by its share of the width and height, in device pixels.
    QPoint At(double across, double down) const {
        const QSize size = DeviceSize(*chart);
        return {int(size.width() * across), int(size.height() * down)};
    }
    // The colour that a widget shows in its middle.
    static QRgb MiddleOf(QWidget& widget) {
        const QImage painted = widget.grab().toImage();
        return painted.pixel(painted.width() / 2, painted.height() / 2) & 0xFFFFFF;
    }
    static QRgb RgbOf(Color color) {
        const Pixel pixel = PixelOf(color);
        return qRgb(pixel.red, pixel.green, pixel.blue) & 0xFFFFFF;
    }

    OpenedWindow opened;
    FrmPicX& form = opened.form;
    ColourChart* chart = opened.window->findChild<ColourChart*>();
};

TEST_F(PaletteTest, ThePreviewFollowsThePointer) {
    QWidget* preview = opened.Find("Frame2");
    Mouse mouse(*chart);
    std::vector<QRgb> seen;
    for (const double across : {0.1, 0.4, 0.7}) {
        const QPoint pointer = At(across, 0.5);
        mouse.Move(pointer);
        opened.Settle();
        const Color under = form.Frame2.BackColor;
        const QSize size = DeviceSize(*chart);
        const int column = pointer.x() * form.Picture2.Picture().Width() / size.width();
        const int row = pointer.y() * form.Picture2.Picture().Height() / size.height();
        EXPECT_EQ(under, form.Picture2.Point(float(column), float(row)));
        EXPECT_EQ(MiddleOf(*preview), RgbOf(under));
        seen.push_back(MiddleOf(*preview));
    }
    EXPECT_NE(seen[0], seen[1]);
    EXPECT_NE(seen[1], seen[2]);
    for (int slot = 0; slot < form.Text2x.Count(); ++slot)
        EXPECT_TRUE(form.Text2x(slot).Text().empty());
}

TEST_F(PaletteTest, APressFillsASlotAndTheReleaseShowsTheChartsCorner) {
    Mouse mouse(*chart);
    mouse.Press(At(0.6, 0.4));
    opened.Settle();
    const Color sampled = form.Frame2.BackColor;
    EXPECT_EQ(opened.window->findChild<QLineEdit*>("Text2x(0)")->text().toStdString(),
              ColorText(PartsOf(sampled)));
    EXPECT_EQ(form.cmdColor(0).BackColor, sampled);
    EXPECT_EQ(MiddleOf(*opened.Find("Frame2")), RgbOf(sampled));
    mouse.Release(At(0.6, 0.4));
    opened.Settle();
    EXPECT_EQ(form.Frame2.BackColor, form.Picture2.Point(0, 0));
}

} // namespace
} // namespace mirelle::test
