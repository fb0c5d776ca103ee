// cJPEG: the program's own baseline JPEG encoder.
//
// It takes pixels from a surface or an array of bytes, turns them into YCbCr, transforms them with an
// integer-only 8x8 cosine transform, quantises, makes the best Huffman tables for the picture and writes a
// JFIF file in one piece. From the sampled planes on everything is integer arithmetic: the same pixels,
// quality, sampling factors and comment give the same file, byte for byte. The steps stand in codecs/jpeg/, a
// file each.
//
// Set sampling factors, quality and comment first, then call one of the Sample operations, then SaveFileJPG.
// A Sample operation uses the tables and factors as they stand at that moment. Every operation raises error 7
// when the memory for it can't be had.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "forms/Picture.h"
#include "forms/ports/FileSystem.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace mirelle {

class cJPEG {
public:
    // What the operations return.
    static constexpr int kDone = 0;
    static constexpr int kNoSurface = 1;  // SampleHDC: there is no surface, or it can't be made
    static constexpr int kNoFileName = 1; // SaveFileJPG
    static constexpr int kFileExists = 2; // SaveFileJPG

    // 4:2:0 sampling, quality 75, no comment.
    cJPEG();

    // Samples width x height pixels of an array of columns x rows x 3 bytes: blue, green, red, then by
    // column, then by row, the picture's lowest row first. (x, y) is the first column and row to take. Raises
    // error 9 where a sample lies outside of the array or has no place in its plane, error 6 for an empty
    // picture and for one whose bytes leave 32 bits.
    int SampleDATA(std::span<const std::uint8_t> data, int columns, int rows, int width, int height, int x,
                   int y);

    // Samples width x height pixels of a surface from (x, y) on. Beyond the surface stands its nearest edge
    // pixel. kNoSurface for an empty surface or picture, or one that is too large; nothing is sampled then.
    int SampleHDC(const Bitmap& surface, int width, int height, int x = 0, int y = 0);

    // 1..100; any other value counts as 75.
    void Quality(int value);
    int Quality() const { return QualityValue_; }

    // Horizontal and vertical factors of the three components, 1..4 each; all four of the second and third 0
    // for a grey picture. What was sampled before is gone. Raises "Invalid Sampling Value".
    void SetSamplingFrequencies(int H1, int V1, int H2, int V2, int H3, int V3);

    // UTF-8; goes to the file as Windows-1252. Raises "Illegal Comment Length" for more than 65535
    // characters. Two characters fewer is the most that can be saved.
    void Comment(const std::string& value);
    const std::string& Comment() const { return CommentText_; }

    // Writes the file with a single write and returns kDone; kNoFileName for the empty name; kFileExists,
    // with nothing written, where a file of that name stands. Raises error 9 when nothing was sampled, error
    // 6 for a comment or a side that has no room in its segment, and what the file system raises. The room
    // made for the file holds two bytes a coefficient beside the estimate, so that no file outgrows it.
    int SaveFileJPG(const std::string& fileName, FileSystem& files);

private:
    jpeg::Frame frame_;
    std::array<jpeg::QuantTable, 2> QuantTables_;
    int QualityValue_ = 0;
    std::string CommentText_;
    std::string commentBytes_; // in the code page of the file
};

} // namespace mirelle
