#include "tests/desktop/screens/Stage.h"

#include "desktop/pictures/QtImages.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QPainter>
#include <QScreen>

namespace mirelle::test {
namespace {

constexpr QSize kGrab{4000, 2400};

std::vector<std::uint8_t> BytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    return {bytes.begin(), bytes.end()};
}

QImage Material(const char* file) {
    return QImage(QString(MIRELLE_SUPPORT) + "/Materials/" + file);
}

void Cover(QPainter& painter, const QRect& area, const QImage& tile) {
    painter.fillRect(area, QBrush(tile));
}

} // namespace

Stage::Stage() {
    MirrorLibrary();
    Form().Load();
    window_ = std::make_unique<MainWindow>(Form());
    const QRect screen = window_->screen()->geometry();
    window_->setGeometry(screen);
    window_->Start();
    Settle();
}

Stage::~Stage() = default;

void Stage::MirrorLibrary() {
    QDirIterator walk(MIRELLE_SUPPORT, QDir::Files, QDirIterator::Subdirectories);
    const QDir root(MIRELLE_SUPPORT);
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (path.endsWith(".pdf")) continue;
        const QString below = root.relativeFilePath(path).replace('/', '\\');
        files_.AddFile("C:\\Mirelle\\Support\\" + below.toStdString(), BytesOf(path));
    }
}

SplashWindow& Stage::TheSplashWindow() {
    if (!splashWindow_) {
        const QSize screen = window_->screen()->geometry().size() * window_->screen()->devicePixelRatio();
        desktop_.screen.size = {screen.width(), screen.height()};
        splashWindow_ = std::make_unique<SplashWindow>(splash_, desktop_.dialogs);
    }
    return *splashWindow_;
}

ManualWindow& Stage::TheManual() {
    if (!manual_) manual_ = std::make_unique<ManualWindow>(sampler_.manual, Form(), *window_);
    return *manual_;
}

void Stage::GrabSomething() {
    QImage grab(kGrab, QImage::Format_RGB32);
    QPainter painter(&grab);
    QLinearGradient sky(0, 0, 0, kGrab.height() / 2.0);
    sky.setColorAt(0, QColor(0x6f, 0x9d, 0xc8));
    sky.setColorAt(1, QColor(0xe4, 0xec, 0xf0));
    painter.fillRect(grab.rect(), sky);
    Cover(painter, {120, 260, 1100, 2140}, Material("Architecture/Arch_1.jpg"));
    Cover(painter, {1220, 420, 900, 1980}, Material("Architecture/Arch_2.jpg"));
    Cover(painter, {2120, 140, 1300, 2260}, Material("Industrial/Industrial_1.jpg"));
    Cover(painter, {3420, 500, 580, 1900}, Material("Metal/Metal_1.jpg"));
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 4; ++column)
            painter.fillRect(230 + column * 260, 360 + row * 250, 110, 150, QColor(0x2c, 0x36, 0x42));
    }
    painter.end();
    desktop_.clipboard.bitmap = Picture(OpaqueBitmap(grab));
}

void Stage::AddFiles(const std::string& folder, int count, const std::string& stem) {
    const auto bytes = BytesOf(QString(MIRELLE_SUPPORT) + "/Materials/Art/Art_1.jpg");
    for (int number = 1; number <= count; ++number)
        files_.AddFile(folder + "\\" + stem + std::to_string(number) + ".jpg", bytes);
}

void Stage::Settle() {
    for (int round = 0; round < 8; ++round)
        QCoreApplication::processEvents();
}

} // namespace mirelle::test
