#include "bench/peers/LibJpegTurbo.h"

#include "bench/peers/Peers.h"

#include <cstdio>
#include <jpeglib.h>
#include <string>

namespace mirelle::bench {
namespace {

struct Settings {
    int quality = 75;
    int luma = 2;
    bool optimalTables = false;
};

std::size_t Encode(const Bitmap& picture, const Settings& settings, std::span<std::uint8_t> target) {
    jpeg_error_mgr errors{};
    jpeg_compress_struct jpeg{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = target.data();
    unsigned long size = target.size();
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = static_cast<JDIMENSION>(picture.Width());
    jpeg.image_height = static_cast<JDIMENSION>(picture.Height());
    jpeg.input_components = 4;
    jpeg.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, settings.quality, TRUE);
    jpeg.comp_info[0].h_samp_factor = settings.luma;
    jpeg.comp_info[0].v_samp_factor = settings.luma;
    jpeg.dct_method = JDCT_ISLOW;
    jpeg.optimize_coding = settings.optimalTables ? TRUE : FALSE;
    jpeg_start_compress(&jpeg, TRUE);
    std::vector<JSAMPROW> rows;
    for (int y = 0; y < picture.Height(); ++y) // which it reads through pointers that are not const
        rows.push_back(reinterpret_cast<JSAMPROW>(const_cast<Pixel*>(picture.Row(y).data())));
    jpeg_write_scanlines(&jpeg, rows.data(), static_cast<JDIMENSION>(rows.size()));
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    return size;
}

} // namespace

std::size_t EncodeByLibJpeg(const Bitmap& picture, int quality, int luma, std::span<std::uint8_t> target) {
    return Encode(picture, {quality, luma, true}, target);
}

std::vector<std::uint8_t> PlainJpegFile(const Bitmap& picture, int quality) {
    std::vector<std::uint8_t> file(picture.ByteCount());
    file.resize(Encode(picture, {quality}, file));
    return file;
}

void DecodeByLibJpeg(std::span<const std::uint8_t> file, std::span<std::uint8_t> pixels) {
    jpeg_error_mgr errors{};
    jpeg_decompress_struct jpeg{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, file.data(), file.size());
    jpeg_read_header(&jpeg, TRUE);
    jpeg.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&jpeg);
    const std::size_t rowBytes = std::size_t{4} * jpeg.output_width;
    while (jpeg.output_scanline < jpeg.output_height) {
        JSAMPROW row = pixels.data() + rowBytes * jpeg.output_scanline;
        jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_decompress(&jpeg);
    jpeg_destroy_decompress(&jpeg);
}

std::string VersionOfLibJpeg() {
#define MIRELLE_TEXT_OF(number) #number
#define MIRELLE_TEXT(number) MIRELLE_TEXT_OF(number)
    return "libjpeg-turbo " MIRELLE_TEXT(LIBJPEG_TURBO_VERSION) ", its vector code on";
}

} // namespace mirelle::bench
