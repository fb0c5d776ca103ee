#include "tests/desktop/road/SavedFiles.h"

#include "codecs/cJPEG.h"
#include "tests/support/MemoryFileSystem.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace mirelle::test {
namespace {

std::string OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + " failed");
    return process.readAllStandardOutput().toStdString();
}

std::string RawPixels(const std::string& file, const QStringList& change) {
    return OutputOf("convert",
                    QStringList{QString::fromStdString(file)} + change + QStringList{"-depth", "8", "rgb:-"});
}

} // namespace

std::string BytesOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string FormatOf(const std::string& file) {
    const std::string told = OutputOf("identify", {"-format", "%m", QString::fromStdString(file)});
    const std::string format = told.starts_with("BMP") ? "bmp" : told;
    if (format == "TIFF") return "tif";
    if (format == "JPEG") return "jpg";
    return QString::fromStdString(format).toLower().toStdString();
}

std::string PixelsOf(const std::string& file) {
    return RawPixels(file, {});
}

std::string PixelsOf(const std::string& file, const road::Place& part) {
    return RawPixels(
        file, {"-crop", QString("%1x%2+%3+%4").arg(part.width).arg(part.height).arg(part.x).arg(part.y)});
}

double MeanDifference(const std::string& first, const std::string& second) {
    if (first.size() != second.size() || first.empty()) return 1000;
    double sum = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        sum += std::abs(static_cast<unsigned char>(first[i]) - static_cast<unsigned char>(second[i]));
    return sum / static_cast<double>(first.size());
}

std::string EncodedHere(const std::string& file, const road::Place& part) {
    const std::string pixels = PixelsOf(file, part);
    Bitmap bitmap(part.width, part.height);
    std::size_t at = 0;
    for (Pixel& pixel : bitmap.Pixels()) {
        const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(pixels.at(at + i)); };
        pixel = {byte(2), byte(1), byte(0), 0};
        at += 3;
    }
    cJPEG jpeg;
    jpeg.SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
    jpeg.Quality(100);
    jpeg.Comment("");
    jpeg.SampleHDC(bitmap, part.width, part.height);
    MemoryFileSystem files;
    files.AddFolder("C:\\made");
    jpeg.SaveFileJPG("C:\\made\\here.jpg", files);
    const std::vector<std::uint8_t> made = files.ReadFile("C:\\made\\here.jpg");
    return {made.begin(), made.end()};
}

} // namespace mirelle::test
