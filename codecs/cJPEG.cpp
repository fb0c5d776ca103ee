#include "codecs/cJPEG.h"

#include "codecs/jpeg/AnsiText.h"
#include "codecs/jpeg/DataPlanes.h"
#include "codecs/jpeg/Errors.h"
#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/Markers.h"
#include "codecs/jpeg/OptimizeTables.h"
#include "codecs/jpeg/OutBuffer.h"
#include "codecs/jpeg/Quantiser.h"
#include "codecs/jpeg/Scans.h"
#include "codecs/jpeg/SurfacePlanes.h"
#include "codecs/jpeg/Tables.h"
#include "codecs/jpeg/Transform.h"
#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <limits>
#include <optional>
#include <vector>

namespace mirelle {
namespace {

using QuantTables = std::array<jpeg::QuantTable, 2>;

constexpr std::size_t kLongestComment = 65535;
constexpr std::int32_t kSamplePrecision = 8;
constexpr int kPixelBytes = 3;

// Room beside the estimate of the scans for the segments.
constexpr int kRoomForSegments = 1000;
// The estimate leaves out a bit of every code, so that an area of one colour counts nothing, and some of the
// bits behind long values. What it falls short is less than two bytes a coefficient.
constexpr std::size_t kRoomForBlock = 2 * 64;

// The working bitmap of a surface's picture has 24 bits a pixel, and its bytes are counted in 32 bits.
bool CanBeMade(int w8, int h8) {
    if (w8 < 1 || h8 < 1) return false;
    return std::int64_t{w8} * kPixelBytes * h8 <= std::numeric_limits<std::int32_t>::max();
}

std::optional<jpeg::SurfacePlanes> MakePlanes(const Bitmap& surface, const PixelArea& picture, int w8, int h8,
                                              const std::vector<jpeg::PlaneSize>& sizes) {
    try {
        return jpeg::SurfacePlanes(surface, picture, w8, h8, sizes);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// Forgets the planes of a picture before and begins one of this size.
void BeginPicture(jpeg::Frame& frame, int width, int height) {
    frame.P = kSamplePrecision;
    frame.X = width;
    frame.Y = height;
    for (jpeg::Component& component : frame.Components) {
        component.DcValues = {};
        component.BlockSymbols = {};
        component.AcStore = {};
    }
}

std::vector<jpeg::PlaneSize> PlaneSizes(const jpeg::Frame& frame, int w8, int h8) {
    std::vector<jpeg::PlaneSize> sizes;
    for (const jpeg::Component& component : frame.Components) {
        sizes.push_back(jpeg::PlaneSizeOf(component, frame, w8, h8));
    }
    return sizes;
}

template <class Planes>
void TransformPlanes(jpeg::Frame& frame, const QuantTables& tables, Planes& planes,
                     const std::vector<jpeg::PlaneSize>& sizes) {
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        jpeg::Component& component = frame.Components[i];
        const jpeg::QuantTable& table = tables[static_cast<std::size_t>(component.Tqi)];
        jpeg::TransformComponent(component, i, table, sizes[i], planes.Next());
    }
}

void SampleArray(jpeg::Frame& frame, const QuantTables& tables, const jpeg::PixelData& data,
                 const PixelArea& picture) {
    BeginPicture(frame, picture.width, picture.height);
    const int w8 = jpeg::RoundedUpTo8(picture.width);
    const int h8 = jpeg::RoundedUpTo8(picture.height);
    // The step between samples would be the quotient of two zeros.
    if (w8 < 1 || h8 < 1) throw RunTimeError(ErrorNumber::Overflow);
    const std::vector<jpeg::PlaneSize> sizes = PlaneSizes(frame, w8, h8);
    jpeg::DataPlanes planes(data, picture, w8, h8, sizes);
    TransformPlanes(frame, tables, planes, sizes);
}

int SampleSurface(jpeg::Frame& frame, const QuantTables& tables, const Bitmap& surface,
                  const PixelArea& picture) {
    BeginPicture(frame, picture.width, picture.height);
    const int w8 = jpeg::RoundedUpTo8(picture.width);
    const int h8 = jpeg::RoundedUpTo8(picture.height);
    if (surface.IsEmpty() || !CanBeMade(w8, h8)) return cJPEG::kNoSurface;
    const std::vector<jpeg::PlaneSize> sizes = PlaneSizes(frame, w8, h8);
    std::optional<jpeg::SurfacePlanes> planes = MakePlanes(surface, picture, w8, h8, sizes);
    if (!planes) return cJPEG::kNoSurface;
    TransformPlanes(frame, tables, *planes, sizes);
    return cJPEG::kDone;
}

void WriteSegments(jpeg::OutBuffer& out, const jpeg::Frame& frame, const QuantTables& tables,
                   const std::string& comment, const std::vector<jpeg::ScanGroup>& groups,
                   const jpeg::HuffmanTables& huffman) {
    using jpeg::Marker;
    using jpeg::TableClass;
    const std::int32_t tableCount = frame.Nf() > 1 ? 2 : 1;
    jpeg::WriteMarker(out, Marker::SOI);
    jpeg::WriteAPP0(out);
    jpeg::WriteCOM(out, comment);
    for (std::int32_t t = 0; t < tableCount; ++t) {
        jpeg::WriteDQT(out, tables[static_cast<std::size_t>(t)], t, frame.P);
    }
    jpeg::WriteSOF(out, frame);
    for (std::int32_t t = 0; t < tableCount; ++t) {
        jpeg::WriteDHT(out, huffman.DcTables[static_cast<std::size_t>(t)], TableClass::Dc, t);
        jpeg::WriteDHT(out, huffman.AcTables[static_cast<std::size_t>(t)], TableClass::Ac, t);
    }
    jpeg::WriteScans(out, frame, groups, huffman);
    jpeg::WriteMarker(out, Marker::EOI);
}

jpeg::OutBuffer MakeFile(const jpeg::Frame& frame, const QuantTables& tables, const std::string& comment) {
    const std::vector<jpeg::ScanGroup> groups = jpeg::GroupComponents(frame);
    jpeg::HuffmanTables huffman;
    const Long estimate = jpeg::OptimizeTables(frame, groups, huffman);
    // The last index of the buffer, so that it holds one byte more.
    const Long last = estimate * Long(2) + Long(kRoomForSegments) + Long(static_cast<int>(comment.size()));
    std::size_t blocks = 0;
    for (const jpeg::Component& component : frame.Components)
        blocks += component.Blocks();
    jpeg::OutBuffer out(static_cast<std::size_t>(last.Value()) + 1 + kRoomForBlock * blocks);
    WriteSegments(out, frame, tables, comment, groups, huffman);
    return out;
}

} // namespace

cJPEG::cJPEG() {
    SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
    Quality(jpeg::kDefaultQuality);
}

void cJPEG::Quality(int value) {
    QualityValue_ = value < 1 || value > 100 ? jpeg::kDefaultQuality : value;
    const int scale = jpeg::ScaleOfQuality(QualityValue_);
    jpeg::ScaleBaseTable(QuantTables_[0], jpeg::QLuminance, scale, frame_.P);
    jpeg::ScaleBaseTable(QuantTables_[1], jpeg::QChrominance, scale, frame_.P);
    for (jpeg::QuantTable& table : QuantTables_)
        jpeg::ScaleQuantTable(table, frame_.P);
}

void cJPEG::SetSamplingFrequencies(int H1, int V1, int H2, int V2, int H3, int V3) {
    WithinMemory([&] { jpeg::SetSamplingFrequencies(frame_, H1, V1, H2, V2, H3, V3); });
}

void cJPEG::Comment(const std::string& value) {
    std::string bytes = jpeg::AnsiBytes(value);
    if (bytes.size() > kLongestComment) jpeg::RaiseCodecFailure(jpeg::kIllegalCommentLength);
    CommentText_ = value;
    commentBytes_ = std::move(bytes);
}

int cJPEG::SampleDATA(std::span<const std::uint8_t> data, int columns, int rows, int width, int height, int x,
                      int y) {
    WithinMemory([&] { SampleArray(frame_, QuantTables_, {data, columns, rows}, {x, y, width, height}); });
    return kDone;
}

int cJPEG::SampleHDC(const Bitmap& surface, int width, int height, int x, int y) {
    return WithinMemory([&] { return SampleSurface(frame_, QuantTables_, surface, {x, y, width, height}); });
}

int cJPEG::SaveFileJPG(const std::string& fileName, FileSystem& files) {
    if (fileName.empty()) return kNoFileName;
    if (files.FileExists(fileName)) return kFileExists;
    const jpeg::OutBuffer file =
        WithinMemory([this] { return MakeFile(frame_, QuantTables_, commentBytes_); });
    files.WriteFile(fileName, file.Written());
    return kDone;
}

} // namespace mirelle
