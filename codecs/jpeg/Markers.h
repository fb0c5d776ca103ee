// The segments of a JFIF file but for its scans: ITU T.81, Annex B. Each writer raises error 9 when the
// buffer is full.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/OutBuffer.h"
#include "codecs/jpeg/ScanGroups.h"

#include <string_view>

namespace mirelle::jpeg {

enum class Marker : std::int32_t {
    SOF0 = 0xC0,
    DHT = 0xC4,
    SOI = 0xD8,
    EOI = 0xD9,
    SOS = 0xDA,
    DQT = 0xDB,
    APP0 = 0xE0,
    COM = 0xFE,
};

void WriteMarker(OutBuffer& out, Marker marker);

// JFIF 1.1, square pixels, no thumbnail.
void WriteAPP0(OutBuffer& out);

// Nothing for an empty comment. Raises error 6 for one of more than 65533 bytes, whose length has no room in
// two.
void WriteCOM(OutBuffer& out, std::string_view comment);

// Raises "Illegal precision in Quantization Table" for a value above 255 unless the precision is 12; entries
// take two bytes there.
void WriteDQT(OutBuffer& out, const QuantTable& table, std::int32_t number, std::int32_t precision);

// Raises error 6 for a side of more than 65535 pixels.
void WriteSOF(OutBuffer& out, const Frame& frame);

enum class TableClass : std::int32_t { Dc = 0, Ac = 1 };
void WriteDHT(OutBuffer& out, const HuffmanTable& table, TableClass tableClass, std::int32_t number);

// The header of a scan.
void WriteSOS(OutBuffer& out, const Frame& frame, const ScanGroup& group);

} // namespace mirelle::jpeg
