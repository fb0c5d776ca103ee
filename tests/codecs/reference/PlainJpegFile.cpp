#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "tests/codecs/reference/PlainJpeg.h"

namespace mirelle::reference {

void PlainOutput::Byte(int value) {
    if (value < 0 || value > 255) throw RunTimeError(ErrorNumber::Overflow);
    if (OutPos >= OutBuffer.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    OutBuffer[OutPos++] = static_cast<std::uint8_t>(value);
}

void PlainOutput::Word(int value) {
    Byte(value / 256);
    Byte(value % 256);
}

void PlainOutput::BitWriterReset() {
    BitAccumulator = 0;
    BitMask = 128;
}

void PlainOutput::BitWriterFlush() {
    if (BitMask != 128) WriteBits(BitMask, -1);
}

void PlainOutput::WriteBits(std::int32_t mask, std::int32_t value) {
    for (std::int32_t m = mask; m >= 1; m /= 2) {
        if ((value & m) != 0) BitAccumulator |= BitMask;
        if (BitMask == 1) {
            Byte(BitAccumulator);
            if (BitAccumulator == 255) Byte(0);
            BitWriterReset();
        } else {
            BitMask /= 2;
        }
    }
}

std::vector<PlainJpeg::Scan> PlainJpeg::Groups() const {
    std::vector<Scan> groups;
    int i = 0;
    while (i < Nf) {
        const int j = i;
        int n = 0;
        while (true) {
            n += Components[static_cast<std::size_t>(i)].Hi * Components[static_cast<std::size_t>(i)].Vi;
            ++i;
            if (n > 10) {
                if (i - j > 1) --i;
                break;
            }
            if (i - j == 3 || i >= Nf) break;
        }
        groups.push_back({j, i - 1});
    }
    return groups;
}

template <class Visit>
void PlainJpeg::ForEachBlock(const Scan& scan, Visit visit) const {
    const int across = (Hmax * 8 + X - 1) / (Hmax * 8);
    const int down = (Vmax * 8 + Y - 1) / (Vmax * 8);
    struct Walk {
        std::vector<long> rowStart;
        long skip;
        int edge;
    };
    std::vector<Walk> walks;
    for (int k = scan.first; k <= scan.last; ++k) {
        const ComponentRecord& component = Components[static_cast<std::size_t>(k)];
        const int perRow = ((component.Hi * X + Hmax - 1) / Hmax + 7) / 8;
        Walk walk{{}, (component.Vi - 1) * perRow * 64L, perRow % component.Hi};
        if (walk.edge == 0) walk.edge = component.Hi;
        for (int r = 0; r < component.Vi; ++r)
            walk.rowStart.push_back(perRow * 64L * r);
        walks.push_back(walk);
    }
    for (int mcuRow = 1; mcuRow <= down; ++mcuRow) {
        for (int mcuColumn = 1; mcuColumn <= across; ++mcuColumn) {
            for (int k = scan.first; k <= scan.last; ++k) {
                const ComponentRecord& component = Components[static_cast<std::size_t>(k)];
                Walk& walk = walks[static_cast<std::size_t>(k - scan.first)];
                for (long& start : walk.rowStart) {
                    for (int c = 1; c <= component.Hi; ++c) {
                        const bool beyondRight = mcuColumn == across && c > walk.edge;
                        const bool beyondEnd =
                            mcuRow == down && start >= static_cast<long>(component.Coefficients.size());
                        if (beyondRight || beyondEnd) {
                            visit(k, -1L);
                        } else {
                            visit(k, start);
                            start += 64;
                        }
                    }
                }
            }
        }
        for (Walk& walk : walks) {
            for (long& start : walk.rowStart)
                start += walk.skip;
        }
    }
}

void PlainJpeg::CountDcSymbols(const ComponentRecord& component, Frequencies& frequency) const {
    int last = 0;
    for (std::size_t at = 0; at < component.Coefficients.size(); at += 64) {
        ++frequency[static_cast<std::size_t>(BitLength(component.Coefficients[at] - last))];
        last = component.Coefficients[at];
    }
}

void PlainJpeg::CountDcSymbolsMCU(const ComponentRecord& component, Frequencies& frequency) const {
    const int k = component.Ci - 1;
    int last = 0;
    ForEachBlock({k, k}, [&](int, long start) {
        if (start < 0) {
            ++frequency[0];
            return;
        }
        const int dc = component.Coefficients[static_cast<std::size_t>(start)];
        ++frequency[static_cast<std::size_t>(BitLength(dc - last))];
        last = dc;
    });
}

void PlainJpeg::CountAcSymbols(const ComponentRecord& component, Frequencies& frequency) const {
    for (std::size_t block = 0; block < component.Coefficients.size(); block += 64) {
        int r = 0;
        for (std::size_t k = 1; k < 64; ++k) {
            const int value = component.Coefficients[block + k];
            if (value == 0) {
                r += 16;
                continue;
            }
            for (; r > 240; r -= 256)
                ++frequency[240];
            ++frequency[static_cast<std::size_t>(r + BitLength(value))];
            r = 0;
        }
        if (r != 0) ++frequency[0];
    }
}

std::int32_t PlainJpeg::OptimizeTables() {
    std::array<bool, 3> interleaved{};
    for (const Scan& scan : Groups()) {
        for (int k = scan.first; k <= scan.last; ++k) {
            interleaved[static_cast<std::size_t>(k)] = scan.first != scan.last;
        }
    }
    Long bytes = 0;
    Frequencies frequency{};
    for (std::size_t t = 0; t < (Nf > 1 ? 2U : 1U); ++t) {
        for (std::size_t k = 0; k < Components.size(); ++k) {
            if ((k == 0 ? 0U : 1U) != t) continue;
            if (interleaved[k]) {
                CountDcSymbolsMCU(Components[k], frequency);
            } else {
                CountDcSymbols(Components[k], frequency);
            }
        }
        Frequencies copy = frequency;
        OptimizeHuffman(DcTables[t], frequency);
        ExpandHuffman(DcTables[t], P == 12 ? 15 : 11);
        bytes += Long(CountScanBytes(DcTables[t], copy));

        for (std::size_t k = 0; k < Components.size(); ++k) {
            if ((k == 0 ? 0U : 1U) == t) CountAcSymbols(Components[k], frequency);
        }
        copy = frequency;
        OptimizeHuffman(AcTables[t], frequency);
        ExpandHuffman(AcTables[t], 255);
        bytes += Long(CountScanBytes(AcTables[t], copy));
    }
    return bytes;
}

void PlainJpeg::WriteAPP0(PlainOutput& out) const {
    for (const int byte :
         {0xFF, 0xE0, 0, 16, 'J' + 0, 'F' + 0, 'I' + 0, 'F' + 0, 0, 1, 1, 0, 0, 1, 0, 1, 0, 0}) {
        out.Byte(byte);
    }
}

void PlainJpeg::WriteCOM(PlainOutput& out) const {
    if (CommentText.empty()) return;
    out.Word(0xFFFE);
    out.Word(static_cast<int>(CommentText.size()) + 2);
    for (const char c : CommentText)
        out.Byte(static_cast<unsigned char>(c));
}

void PlainJpeg::WriteDQT(PlainOutput& out, int table) const {
    out.Word(0xFFDB);
    out.Word(67);
    out.Byte(table);
    for (const int qk : QuantTables[static_cast<std::size_t>(table)].Qk)
        out.Byte(qk);
}

void PlainJpeg::WriteSOF(PlainOutput& out) const {
    out.Word(0xFFC0);
    out.Word(Nf * 3 + 8);
    out.Byte(P);
    out.Word(Y);
    out.Word(X);
    out.Byte(Nf);
    for (const ComponentRecord& component : Components) {
        out.Byte(component.Ci);
        out.Byte(component.Hi * 16 + component.Vi);
        out.Byte(component.Tqi);
    }
}

void PlainJpeg::WriteDHT(PlainOutput& out, const HuffmanRecord& table, int identifier) const {
    int symbols = 0;
    for (const int count : table.Bits)
        symbols += count;
    out.Word(0xFFC4);
    out.Word(2 + 1 + 16 + symbols);
    out.Byte(identifier);
    for (const int count : table.Bits)
        out.Byte(count);
    for (int k = 0; k < symbols; ++k)
        out.Byte(table.HuffVal[static_cast<std::size_t>(k)]);
}

void PlainJpeg::EncodeBlock(PlainOutput& out, const std::int16_t* block, int& lastDc, const HuffmanRecord& dc,
                            const HuffmanRecord& ac) const {
    const auto symbol = [&out](const HuffmanRecord& table, int value) {
        out.WriteBits(table.Mask[static_cast<std::size_t>(value)],
                      table.Code[static_cast<std::size_t>(value)]);
    };
    const auto extra = [&out](int value, int size) {
        out.WriteBits(1 << size >> 1, value < 0 ? value - 1 : value);
    };
    const int difference = block[0] - lastDc;
    lastDc = block[0];
    symbol(dc, BitLength(difference));
    extra(difference, BitLength(difference));
    int r = 0;
    for (int k = 1; k < 64; ++k) {
        const int value = block[k];
        if (value == 0) {
            r += 16;
            continue;
        }
        for (; r > 240; r -= 256)
            symbol(ac, 240);
        symbol(ac, r + BitLength(value));
        extra(value, BitLength(value));
        r = 0;
    }
    if (r != 0) symbol(ac, 0);
}

void PlainJpeg::WriteScanSingle(PlainOutput& out, int index) const {
    const int table = index == 0 ? 0 : 1;
    out.Word(0xFFDA);
    out.Word(8);
    for (const int byte : {1, index + 1, table * 16 + table, 0, 0x3F, 0})
        out.Byte(byte);
    out.BitWriterReset();
    const auto& coefficients = Components[static_cast<std::size_t>(index)].Coefficients;
    int last = 0;
    for (std::size_t at = 0; at < coefficients.size(); at += 64) {
        EncodeBlock(out, &coefficients[at], last, DcTables[static_cast<std::size_t>(table)],
                    AcTables[static_cast<std::size_t>(table)]);
    }
    out.BitWriterFlush();
}

void PlainJpeg::WriteScanInterleaved(PlainOutput& out, const Scan& scan) const {
    const int n = scan.last - scan.first + 1;
    out.Word(0xFFDA);
    out.Word(n * 2 + 6);
    out.Byte(n);
    for (int k = scan.first; k <= scan.last; ++k) {
        out.Byte(k + 1);
        out.Byte(k == 0 ? 0 : 0x11);
    }
    for (const int byte : {0, 0x3F, 0})
        out.Byte(byte);
    out.BitWriterReset();
    std::array<int, 3> last{};
    ForEachBlock(scan, [&](int k, long start) {
        const std::size_t table = k == 0 ? 0 : 1;
        int& lastDc = last[static_cast<std::size_t>(k)];
        std::array<std::int16_t, 64> dummy{};
        dummy[0] = static_cast<std::int16_t>(lastDc);
        const std::int16_t* block =
            start < 0
                ? dummy.data()
                : &Components[static_cast<std::size_t>(k)].Coefficients[static_cast<std::size_t>(start)];
        EncodeBlock(out, block, lastDc, DcTables[table], AcTables[table]);
    });
    out.BitWriterFlush();
}

std::vector<std::uint8_t> PlainJpeg::File() {
    const Long estimate = OptimizeTables();
    PlainOutput out;
    std::size_t room = 0;
    for (const auto& component : Components)
        room += 2 * component.Coefficients.size();
    out.OutBuffer.resize(static_cast<std::size_t>(estimate * Long(2) + Long(1000) +
                                                  Long(static_cast<int>(CommentText.size()))) +
                         1 + room);
    out.Word(0xFFD8);
    WriteAPP0(out);
    WriteCOM(out);
    WriteDQT(out, 0);
    if (Nf > 1) WriteDQT(out, 1);
    WriteSOF(out);
    for (std::size_t t = 0; t < (Nf > 1 ? 2U : 1U); ++t) {
        WriteDHT(out, DcTables[t], static_cast<int>(t));
        WriteDHT(out, AcTables[t], static_cast<int>(t) + 16);
    }
    for (const Scan& scan : Groups()) {
        if (scan.first == scan.last) {
            WriteScanSingle(out, scan.first);
        } else {
            WriteScanInterleaved(out, scan);
        }
    }
    out.Word(0xFFD9);
    out.OutBuffer.resize(out.OutPos);
    return out.OutBuffer;
}

} // namespace mirelle::reference
