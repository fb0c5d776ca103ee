#include "tests/desktop/screens/FixedPicture.h"

#include <QFileInfo>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace mirelle::test {
namespace {

constexpr int kPart = 4;
constexpr QSize kScreen{1024, 700};
// Of a channel's mean over a block of pixels of the small picture; letters and icons differ by less.
constexpr int kBlock = 8;
constexpr int kMostDifferent = 22;

QImage Small(const QImage& shot) {
    return shot.convertToFormat(QImage::Format_RGB32)
        .scaled(shot.size() / kPart, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

int MeanDifference(const QImage& one, const QImage& other, const QRect& block) {
    int worst = 0;
    for (const int shift : {0, 8, 16}) {
        int sum = 0;
        for (int y = block.top(); y <= block.bottom(); ++y) {
            for (int x = block.left(); x <= block.right(); ++x) {
                sum += static_cast<int>((one.pixel(x, y) >> shift) & 0xff) -
                       static_cast<int>((other.pixel(x, y) >> shift) & 0xff);
            }
        }
        worst = std::max(worst, std::abs(sum) / (block.width() * block.height()));
    }
    return worst;
}

} // namespace

FixedPicture::FixedPicture(const char* name)
    : file_(QString(MIRELLE_FIXED_PICTURES) + "/" + QString::fromLatin1(name) + ".png") {}

bool FixedPicture::IsFor(const QWidget& window) const {
    return window.screen()->size() == kScreen && window.devicePixelRatioF() == 1 && QFileInfo::exists(file_);
}

std::string FixedPicture::FaultsIn(const QImage& shot) const {
    const QImage small = Small(shot);
    if (qEnvironmentVariableIsSet("MIRELLE_FIX_PICTURES"))
        return small.save(file_) ? "" : "cannot be written";
    const QImage fixed = QImage(file_).convertToFormat(QImage::Format_RGB32);
    if (small.size() != fixed.size()) return "is of another size";
    for (int y = 0; y < fixed.height(); y += kBlock) {
        for (int x = 0; x < fixed.width(); x += kBlock) {
            const QRect block = QRect(x, y, kBlock, kBlock) & fixed.rect();
            const int difference = MeanDifference(small, fixed, block);
            if (difference > kMostDifferent) {
                return "differs by " + std::to_string(difference) + " around pixel " +
                       std::to_string(x * kPart) + ", " + std::to_string(y * kPart);
            }
        }
    }
    return "";
}

} // namespace mirelle::test
