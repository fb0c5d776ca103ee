// Pictures and picture files that are dragged over from other programs.
#include "desktop/window/CanvasDrops.h"
#include "desktop/canvas/SamplingCanvas.h"
#include "desktop/pictures/QtImages.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QUrl>

namespace mirelle::test {
namespace {

struct CanvasDropsTest : testing::Test {
    CanvasDropsTest() { opened.program.loader.pictures[kWall] = wall; }

    // What the other program is told while the mouse is over the canvas, and, if it may, lets the thing go.
    bool Drop(const QMimeData& data) {
        SamplingCanvas& canvas = opened.window->Canvas();
        QDragEnterEvent enter({40, 40}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&canvas, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop({40, 40}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&canvas, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        OpenedWindow::Settle();
        return drop.isAccepted();
    }
    static QMimeData* Files(QMimeData& data, const QStringList& files) {
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        data.setUrls(urls);
        return &data;
    }

    static constexpr const char* kWall = "/pictures/wall.JPG";
    OpenedWindow opened;
    Picture wall = ChartPicture(40, 30, 7);
};

TEST_F(CanvasDropsTest, APictureFileOpensAsTheOpenButtonWouldOpenIt) {
    QMimeData data;
    EXPECT_TRUE(Drop(*Files(data, {kWall})));
    EXPECT_TRUE(opened.form.PicImage.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(opened.form.picSmall.Picture().SharesPixelsWith(wall));
    EXPECT_TRUE(opened.program.desktop.dialogs.dialogs.empty());
}

TEST_F(CanvasDropsTest, TheFirstFileThatIsAPictureCounts) {
    QMimeData data;
    EXPECT_TRUE(Drop(*Files(data, {"/pictures/notes.txt", kWall})));
    EXPECT_TRUE(opened.form.PicImage.Picture().SharesPixelsWith(wall));
}

TEST_F(CanvasDropsTest, APictureComesInAsThePasteButtonWouldBringIt) {
    QImage image(5, 4, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    QMimeData data;
    data.setImageData(image);
    EXPECT_TRUE(Drop(data));
    EXPECT_EQ(opened.form.PicImage.Width, 5);
    EXPECT_EQ(opened.form.PicImage.Point(0, 0), RGB(10, 20, 30));
    EXPECT_TRUE(opened.form.ClipboardIsSource);
}

TEST_F(CanvasDropsTest, AFileIsTakenRatherThanThePictureThatComesWithIt) {
    QImage image(5, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QMimeData data;
    data.setImageData(image);
    EXPECT_TRUE(Drop(*Files(data, {kWall})));
    EXPECT_TRUE(opened.form.PicImage.Picture().SharesPixelsWith(wall));
    EXPECT_FALSE(opened.form.ClipboardIsSource);
}

TEST_F(CanvasDropsTest, WhatIsNoPictureIsTurnedAwayBeforeItIsLetGo) {
    QMimeData text;
    text.setText("words");
    EXPECT_FALSE(Drop(text));
    QMimeData other;
    EXPECT_FALSE(Drop(*Files(other, {"/pictures/notes.txt", "/pictures/photo.png"})));
    QMimeData page;
    page.setUrls({QUrl("https://mirelle.example/wall.jpg")});
    EXPECT_FALSE(Drop(page));
}

TEST_F(CanvasDropsTest, APictureThatCannotBeReadChangesNothing) {
    const Picture before = opened.form.PicImage.Picture();
    QMimeData data;
    EXPECT_TRUE(Drop(*Files(data, {"/pictures/missing.bmp"})));
    EXPECT_TRUE(opened.form.PicImage.Picture().SharesPixelsWith(before));
    EXPECT_TRUE(opened.program.desktop.dialogs.messages.empty());
}

} // namespace
} // namespace mirelle::test
