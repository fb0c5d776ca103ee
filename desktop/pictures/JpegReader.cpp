#include "desktop/pictures/JpegReader.h"

#include "codecs/PictureLimits.h"
#include "desktop/pictures/FourthBytes.h"
#include "forms/RunTimeError.h"

#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <optional>
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
    bool ReadPixels(Bitmap& bitmap); // of Width() by Height() pixels

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

bool JpegDecoder::ReadPixels(Bitmap& bitmap) {
    if (setjmp(failure_.back) != 0) return false;
    jpeg_start_decompress(&decoder_);
    const bool hasFourColours = decoder_.out_color_space == JCS_CMYK;
    // Programs of one maker write four-colour files with all values inverted, and mark their files.
    const bool isInverted = decoder_.saw_Adobe_marker;
    while (decoder_.output_scanline < decoder_.output_height) {
        // Each row is finished while the processor still has it at hand.
        const std::span<Pixel> row = bitmap.Row(static_cast<int>(decoder_.output_scanline));
        auto* bytes = reinterpret_cast<JSAMPROW>(row.data());
        jpeg_read_scanlines(&decoder_, &bytes, 1);
        if (hasFourColours) {
            MixFourColours(row, isInverted);
        } else {
            ClearFourthBytes(row);
        }
    }
    jpeg_finish_decompress(&decoder_);
    return true;
}

} // namespace

Bitmap ReadJpeg(std::span<const std::uint8_t> file) {
    JpegDecoder decoder(file);
    if (!decoder.ReadHeader()) throw RunTimeError(decoder.Error());
    CheckPictureSize(decoder.Width(), decoder.Height());
    Bitmap bitmap = Bitmap::Unwritten(decoder.Width(), decoder.Height());
    if (!decoder.ReadPixels(bitmap)) throw RunTimeError(decoder.Error());
    return bitmap;
}

} // namespace mirelle
