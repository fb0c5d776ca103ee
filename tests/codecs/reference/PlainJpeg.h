// The JPEG encoder in its plainest form: one step after the other, one value at a time, nothing kept that
// could be computed anew. It is the yardstick for the encoder that users run, which has to give the same
// bytes.
//
// Tables are transcribed a second time here, in natural order, or computed from their formulas.
#pragma once

#include "forms/Picture.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace mirelle::reference {

// (column + 8 * row) to zig-zag position, by walking the grid.
std::array<int, 64> WalkedZigZag();
// Tables K.1 and K.2 of ITU T.81 in natural order.
extern const std::array<int, 64> kNaturalLuminance;
extern const std::array<int, 64> kNaturalChrominance;
// 16384 times the norms of the transform's basis functions, one for the column and one for the row.
std::array<std::int32_t, 64> ComputedFdctScale();

struct QuantRecord {
    std::array<int, 64> Qk{};
    std::array<std::int32_t, 64> Fdtbl{};
};

struct HuffmanRecord {
    std::array<int, 16> Bits{};
    std::array<int, 256> HuffVal{};
    std::array<int, 256> Size{};
    std::array<std::int32_t, 256> Mask{};
    std::array<std::int32_t, 256> Code{};
};

struct ComponentRecord {
    int Ci = 0, Hi = 1, Vi = 1, Tqi = 0;
    std::vector<std::int16_t> Coefficients;
};

using Frequencies = std::array<std::int32_t, 257>;

// A bounded byte array that is written from its start; going past its end raises error 9.
struct PlainOutput {
    std::vector<std::uint8_t> OutBuffer;
    std::size_t OutPos = 0;
    int BitAccumulator = 0;
    int BitMask = 128;

    void Byte(int value); // raises error 6 outside of 0..255
    void Word(int value); // two bytes, the higher one first
    void BitWriterReset();
    void BitWriterFlush();
    void WriteBits(std::int32_t mask, std::int32_t value);
};

int BitLength(int value);
void ForwardDCT(std::array<std::int32_t, 64>& block);
std::int32_t ColourValue(int component, int blue, int green, int red);
void ScaleQuantTable(QuantRecord& table, int precision);
void OptimizeHuffman(HuffmanRecord& table, Frequencies& frequency);
void ExpandHuffman(HuffmanRecord& table, int largestSymbol);
std::int32_t CountScanBytes(const HuffmanRecord& table, const Frequencies& frequency);

class PlainJpeg {
public:
    PlainJpeg();

    int SampleDATA(std::span<const std::uint8_t> data, int columns, int rows, int width, int height, int x,
                   int y);
    int SampleHDC(const Bitmap& surface, int width, int height, int x = 0, int y = 0);
    void Quality(int value);
    void SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3);
    void Comment(const std::string& oneByteACharacter) { CommentText = oneByteACharacter; }
    // The bytes that a save writes.
    std::vector<std::uint8_t> File();

    int P = 8, Y = 0, X = 0, Nf = 0, Hmax = 0, Vmax = 0;
    int QualityValue = 0;
    std::string CommentText;
    std::array<QuantRecord, 4> QuantTables;
    std::array<HuffmanRecord, 4> DcTables;
    std::array<HuffmanRecord, 4> AcTables;
    std::vector<ComponentRecord> Components;

private:
    struct Plane {
        int xi, yi, xa, ya;
    };
    struct Scan {
        int first, last;
    };

    Plane PlaneOf(const ComponentRecord& component, int w8, int h8) const;
    void TransformComponent(const std::vector<std::uint8_t>& buffer, int index, int xa, int ya, int stride);

    std::vector<Scan> Groups() const;
    std::int32_t OptimizeTables();
    void CountDcSymbols(const ComponentRecord& component, Frequencies& frequency) const;
    void CountDcSymbolsMCU(const ComponentRecord& component, Frequencies& frequency) const;
    void CountAcSymbols(const ComponentRecord& component, Frequencies& frequency) const;

    void WriteAPP0(PlainOutput& out) const;
    void WriteCOM(PlainOutput& out) const;
    void WriteDQT(PlainOutput& out, int table) const;
    void WriteSOF(PlainOutput& out) const;
    void WriteDHT(PlainOutput& out, const HuffmanRecord& table, int identifier) const;
    void WriteScanSingle(PlainOutput& out, int index) const;
    void WriteScanInterleaved(PlainOutput& out, const Scan& scan) const;
    void EncodeBlock(PlainOutput& out, const std::int16_t* block, int& lastDc, const HuffmanRecord& dc,
                     const HuffmanRecord& ac) const;
    // Calls visit(component, start of the block or -1 for a dummy) for the blocks of an interleaved scan.
    template <class Visit>
    void ForEachBlock(const Scan& scan, Visit visit) const;
};

} // namespace mirelle::reference
