#include "codecs/jpeg/Markers.h"

#include "codecs/jpeg/Errors.h"

#include <algorithm>
#include <numeric>

namespace mirelle::jpeg {
namespace {

constexpr std::array<std::uint8_t, 18> kAPP0 = {
    0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F', 0, // marker, length, name
    1,    1,                                  // version
    0,    0,    1, 0,  1,                     // no unit: 1 by 1 is the shape of a pixel
    0,    0,                                  // no thumbnail
};

} // namespace

void WriteMarker(OutBuffer& out, Marker marker) {
    out.Byte(0xFF);
    out.Byte(static_cast<std::int32_t>(marker));
}

void WriteAPP0(OutBuffer& out) {
    if (out.Remaining() < kAPP0.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    for (const std::uint8_t byte : kAPP0)
        out.Byte(byte);
}

void WriteCOM(OutBuffer& out, std::string_view comment) {
    if (comment.empty()) return;
    WriteMarker(out, Marker::COM);
    out.Word(static_cast<std::int32_t>(comment.size()) + 2);
    for (const char c : comment)
        out.Byte(static_cast<std::uint8_t>(c));
}

void WriteDQT(OutBuffer& out, const QuantTable& table, std::int32_t number, std::int32_t precision) {
    const bool twoBytes = *std::max_element(table.Qk.begin(), table.Qk.end()) > 255;
    if (twoBytes && precision != 12) RaiseCodecFailure(kIllegalPrecision);
    WriteMarker(out, Marker::DQT);
    out.Word(2 + 1 + 64 * (twoBytes ? 2 : 1));
    out.Byte(twoBytes ? number + 16 : number);
    for (const std::int16_t value : table.Qk) {
        if (twoBytes) {
            out.Word(value);
        } else {
            out.Byte(value);
        }
    }
}

void WriteSOF(OutBuffer& out, const Frame& frame) {
    WriteMarker(out, Marker::SOF0);
    out.Word(frame.Nf() * 3 + 8);
    out.Byte(frame.P);
    out.Word(frame.Y);
    out.Word(frame.X);
    out.Byte(frame.Nf());
    for (const Component& component : frame.Components) {
        out.Byte(component.Ci);
        out.Byte(component.Hi * 16 + component.Vi);
        out.Byte(component.Tqi);
    }
}

void WriteDHT(OutBuffer& out, const HuffmanTable& table, TableClass tableClass, std::int32_t number) {
    const int symbols = std::accumulate(table.Bits.begin(), table.Bits.end(), 0);
    WriteMarker(out, Marker::DHT);
    out.Word(2 + 1 + 16 + symbols);
    out.Byte(number + 16 * static_cast<std::int32_t>(tableClass));
    for (const std::uint8_t count : table.Bits)
        out.Byte(count);
    for (int k = 0; k < symbols; ++k)
        out.Byte(table.HuffVal[static_cast<std::size_t>(k)]);
}

void WriteSOS(OutBuffer& out, const Frame& frame, const ScanGroup& group) {
    const auto components = static_cast<std::int32_t>(group.last - group.first + 1);
    WriteMarker(out, Marker::SOS);
    out.Word(components * 2 + 6);
    out.Byte(components);
    for (std::size_t k = group.first; k <= group.last; ++k) {
        out.Byte(frame.Components[k].Ci);
        out.Byte(static_cast<std::int32_t>(TableOf(k) * 16 + TableOf(k)));
    }
    // The whole spectrum, with no approximation: what a sequential scan has to say.
    out.Byte(0);
    out.Byte(63);
    out.Byte(0);
}

} // namespace mirelle::jpeg
