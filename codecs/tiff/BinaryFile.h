// A file opened for binary reading: positions count from 1, numbers have their low byte first. What lies
// beyond the file's end reads as 0.
#pragma once

#include <cstdint>
#include <span>

namespace mirelle::tiff {

class BinaryFile {
public:
    // The bytes have to outlive the reader.
    explicit BinaryFile(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    // Where the next read begins. Raises 63 for a position below 1, 6 for one beyond 32 bits.
    void Seek(std::int64_t position);

    std::uint8_t Byte();
    std::int16_t Int16();
    std::int32_t Int32();
    void Fill(std::span<std::uint8_t> bytes);

    // The whole file, and what stands from the next read's place to its end.
    std::span<const std::uint8_t> Bytes() const { return bytes_; }
    std::span<const std::uint8_t> Rest() const;

private:
    std::span<const std::uint8_t> bytes_;
    std::int64_t next_ = 0; // counted from 0
};

} // namespace mirelle::tiff
