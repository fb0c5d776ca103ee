#include "desktop/pictures/JpegReader.h"

#include "codecs/PictureLimits.h"
#include "desktop/pictures/CoresAtHand.h"
#include "desktop/pictures/FourthBytes.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <new>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

#ifndef JCS_EXTENSIONS
#error "The JPEG library must be one that decodes to pixels of four bytes, as libjpeg-turbo does."
#endif

namespace mirelle {
namespace {

// No picture comes in more passes; a file made to cost time can claim millions.
constexpr int kGreatestScanCount = 500;

// Smaller pictures are there before a thread has done much.
constexpr std::int64_t kFewestPixelsForTwo = 1'000'000;
// Up to here both threads take the same time: the lower one passes over this part in about half of the time
// that the upper one takes for it.
constexpr double kUpperPart = 0.65;
// A row's colours are smoothed with those of the rows beside it, at most four rows of the picture away; how
// far the decoder itself looks ahead is at most two blocks of the largest sampling.
constexpr int kRowsOfInfluence = 64;

struct Failure {
    jpeg_error_mgr manager; // first, so that a pointer to it is one to this
    std::jmp_buf back;
    bool isOutOfMemory;
};

// The library is C and may not be left by an exception, hence the long jump. Functions that it can jump out
// of hold nothing that would have to be destroyed.
[[noreturn]] void Fail(j_common_ptr decoder) {
    auto* failure = reinterpret_cast<Failure*>(decoder->err);
    failure->isOutOfMemory = decoder->err->msg_code == JERR_OUT_OF_MEMORY;
    std::longjmp(failure->back, 1);
}

void KeepSilent(j_common_ptr) {}

void CountScans(j_common_ptr decoder) {
    const auto* decompressor = reinterpret_cast<j_decompress_ptr>(decoder);
    if (decompressor->input_scan_number > kGreatestScanCount) Fail(decoder);
}

class JpegDecoder {
public:
    explicit JpegDecoder(std::span<const std::uint8_t> file) : file_(file) {
        decoder_.err = jpeg_std_error(&failure_.manager);
        failure_.manager.error_exit = Fail;
        failure_.manager.output_message = KeepSilent;
        progress_.progress_monitor = CountScans;
    }
    ~JpegDecoder() { jpeg_destroy_decompress(&decoder_); }
    JpegDecoder(const JpegDecoder&) = delete;
    JpegDecoder& operator=(const JpegDecoder&) = delete;

    int Width() const { return static_cast<int>(decoder_.image_width); }
    int Height() const { return static_cast<int>(decoder_.image_height); }
    ErrorNumber Error() const {
        return failure_.isOutOfMemory ? ErrorNumber::OutOfMemory : ErrorNumber::InvalidPicture;
    }

    // Both return false where the file can't be read.
    bool ReadHeader();
    // The rows from `begin` up to `end` of a bitmap of Width() by Height() pixels. Rows ahead of them are
    // passed over; those behind are not looked at.
    bool ReadRows(Bitmap& bitmap, int begin, int end);
    // Whether rows can be passed over: not where every pixel comes bit by bit, in scans over the whole
    // picture.
    bool HasOneScan() { return jpeg_has_multiple_scans(&decoder_) == FALSE; }

private:
    std::span<const std::uint8_t> file_;
    jpeg_decompress_struct decoder_{};
    Failure failure_{};
    jpeg_progress_mgr progress_{};
};

bool JpegDecoder::ReadHeader() {
    if (setjmp(failure_.back) != 0) return false;
    jpeg_create_decompress(&decoder_);
    decoder_.progress = &progress_;
    jpeg_mem_src(&decoder_, file_.data(), static_cast<unsigned long>(file_.size()));
    jpeg_read_header(&decoder_, TRUE);
    const bool hasFour = decoder_.jpeg_color_space == JCS_CMYK || decoder_.jpeg_color_space == JCS_YCCK;
    decoder_.out_color_space = hasFour ? JCS_CMYK : JCS_EXT_BGRX;
    return true;
}

// Cyan, magenta, yellow and black stand in the pixels' bytes in this order.
void MixFourColours(std::span<Pixel> row, bool isInverted) {
    const int turn = isInverted ? 0 : 255;
    for (Pixel& pixel : row) {
        const int light = pixel.fourth ^ turn;
        const auto mixed = [&](std::uint8_t ink) {
            return static_cast<std::uint8_t>(((ink ^ turn) * light + 127) / 255);
        };
        pixel = {mixed(pixel.red), mixed(pixel.green), mixed(pixel.blue), 0};
    }
}

bool JpegDecoder::ReadRows(Bitmap& bitmap, int begin, int end) {
    if (setjmp(failure_.back) != 0) return false;
    jpeg_start_decompress(&decoder_);
    const bool hasFourColours = decoder_.out_color_space == JCS_CMYK;
    // Programs of one maker write four-colour files with all values inverted, and mark their files.
    const bool isInverted = decoder_.saw_Adobe_marker;
    if (begin > kRowsOfInfluence)
        jpeg_skip_scanlines(&decoder_, static_cast<JDIMENSION>(begin - kRowsOfInfluence));
    while (static_cast<int>(decoder_.output_scanline) < end) {
        // Each row is finished while the processor still has it at hand. Rows ahead of the first one go where
        // that will be.
        const std::span<Pixel> row = bitmap.Row(std::max(begin, static_cast<int>(decoder_.output_scanline)));
        auto* bytes = reinterpret_cast<JSAMPROW>(row.data());
        jpeg_read_scanlines(&decoder_, &bytes, 1);
        if (hasFourColours) {
            MixFourColours(row, isInverted);
        } else {
            ClearFourthBytes(row);
        }
    }
    if (end == bitmap.Height()) jpeg_finish_decompress(&decoder_);
    return true;
}

// In this thread where no other, or no memory for one, is to be had. The work raises nothing.
template <class Work>
std::jthread InAnotherThread(const Work& work) {
    try {
        return std::jthread(work);
    } catch (const std::system_error&) {
    } catch (const std::bad_alloc&) {
    }
    work();
    return {};
}

// The header has been read.
Bitmap ReadPixels(JpegDecoder& decoder) {
    Bitmap bitmap = Bitmap::Unwritten(decoder.Width(), decoder.Height());
    if (!decoder.ReadRows(bitmap, 0, decoder.Height())) throw RunTimeError(decoder.Error());
    return bitmap;
}

// The lower decoder meets whatever is wrong with the file; the upper one can lack memory as well.
Bitmap ReadPixelsInTwo(JpegDecoder& upper, std::span<const std::uint8_t> file, int split) {
    Bitmap bitmap = Bitmap::Unwritten(upper.Width(), upper.Height());
    JpegDecoder lower(file);
    bool lowerIsRead = false;
    bool upperIsRead = false;
    {
        const std::jthread thread = InAnotherThread(
            [&] { lowerIsRead = lower.ReadHeader() && lower.ReadRows(bitmap, split, bitmap.Height()); });
        upperIsRead = upper.ReadRows(bitmap, 0, split);
    }
    if (!lowerIsRead) throw RunTimeError(lower.Error());
    if (!upperIsRead) throw RunTimeError(upper.Error());
    return bitmap;
}

void ReadHeader(JpegDecoder& decoder) {
    if (!decoder.ReadHeader()) throw RunTimeError(decoder.Error());
    CheckPictureSize(decoder.Width(), decoder.Height());
}

} // namespace

Bitmap ReadJpeg(std::span<const std::uint8_t> file) {
    JpegDecoder decoder(file);
    ReadHeader(decoder);
    const bool isLarge = std::int64_t{decoder.Width()} * decoder.Height() >= kFewestPixelsForTwo;
    const bool inTwo = isLarge && decoder.HasOneScan() && CoresAtHand() > 1;
    const int split = static_cast<int>(decoder.Height() * kUpperPart);
    return inTwo ? ReadPixelsInTwo(decoder, file, split) : ReadPixels(decoder);
}

Bitmap ReadJpegInTwo(std::span<const std::uint8_t> file, int split) {
    JpegDecoder decoder(file);
    ReadHeader(decoder);
    const bool hasTwoParts = decoder.HasOneScan() && split > 0 && split < decoder.Height();
    return hasTwoParts ? ReadPixelsInTwo(decoder, file, split) : ReadPixels(decoder);
}

} // namespace mirelle
