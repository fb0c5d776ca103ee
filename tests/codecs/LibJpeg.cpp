#include "tests/codecs/LibJpeg.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <jpeglib.h>
#include <stdexcept>

namespace mirelle::test {
namespace {

[[noreturn]] void ThrowMessage(j_common_ptr info) {
    std::array<char, JMSG_LENGTH_MAX> message{};
    info->err->format_message(info, message.data());
    throw std::runtime_error(message.data());
}

jpeg_error_mgr ThrowingErrors() {
    jpeg_error_mgr errors{};
    jpeg_std_error(&errors);
    errors.error_exit = ThrowMessage;
    errors.output_message = [](j_common_ptr) {};
    return errors;
}

struct Decompressor {
    Decompressor() {
        info.err = &errors;
        jpeg_create_decompress(&info);
    }
    ~Decompressor() { jpeg_destroy_decompress(&info); }
    Decompressor(const Decompressor&) = delete;
    Decompressor& operator=(const Decompressor&) = delete;

    jpeg_error_mgr errors = ThrowingErrors();
    jpeg_decompress_struct info{};
};

struct Compressor {
    Compressor() {
        info.err = &errors;
        jpeg_create_compress(&info);
    }
    ~Compressor() { jpeg_destroy_compress(&info); }
    Compressor(const Compressor&) = delete;
    Compressor& operator=(const Compressor&) = delete;

    jpeg_error_mgr errors = ThrowingErrors();
    jpeg_compress_struct info{};
};

struct MallocBytes {
    ~MallocBytes() { std::free(bytes); }
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
};

} // namespace

Decoded DecodeJpeg(std::span<const std::uint8_t> file) {
    Decompressor jpeg;
    jpeg_decompress_struct& info = jpeg.info;
    jpeg_mem_src(&info, file.data(), static_cast<unsigned long>(file.size()));
    jpeg_save_markers(&info, JPEG_COM, 0xFFFF);
    jpeg_read_header(&info, TRUE);
    info.out_color_space = info.num_components == 1 ? JCS_GRAYSCALE : JCS_EXT_BGR;
    info.dct_method = JDCT_ISLOW;
    jpeg_start_decompress(&info);

    Decoded decoded{
        Bitmap(static_cast<int>(info.output_width), static_cast<int>(info.output_height)), 0, {}, {}, 0};
    decoded.components = info.num_components;
    for (int i = 0; i < info.num_components; ++i) {
        decoded.factors.push_back({info.comp_info[i].h_samp_factor, info.comp_info[i].v_samp_factor});
    }
    if (info.marker_list != nullptr) {
        decoded.comment.assign(info.marker_list->data,
                               info.marker_list->data + info.marker_list->data_length);
    }
    const auto channels = static_cast<std::size_t>(info.output_components);
    std::vector<std::uint8_t> row(info.output_width * channels);
    while (info.output_scanline < info.output_height) {
        const auto y = static_cast<int>(info.output_scanline);
        std::uint8_t* start = row.data();
        jpeg_read_scanlines(&info, &start, 1);
        for (std::size_t x = 0; x < info.output_width; ++x) {
            const std::uint8_t* pixel = &row[x * channels];
            const std::size_t last = channels - 1;
            decoded.picture.At(static_cast<int>(x), y) = {pixel[0], pixel[std::min<std::size_t>(1, last)],
                                                          pixel[last], 0};
        }
    }
    jpeg_finish_decompress(&info);
    decoded.warnings = jpeg.errors.num_warnings;
    return decoded;
}

std::vector<std::uint8_t> EncodeJpegForeign(const Bitmap& picture, const ForeignOptions& options) {
    MallocBytes out;
    Compressor jpeg;
    jpeg_compress_struct& info = jpeg.info;
    jpeg_mem_dest(&info, &out.bytes, &out.size);
    info.image_width = static_cast<JDIMENSION>(picture.Width());
    info.image_height = static_cast<JDIMENSION>(picture.Height());
    info.input_components = 4;
    info.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, options.quality, TRUE);
    info.comp_info[0].h_samp_factor = options.lumaFactors[0];
    info.comp_info[0].v_samp_factor = options.lumaFactors[1];
    info.dct_method = JDCT_ISLOW;
    info.optimize_coding = TRUE;
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        // The library reads rows through pointers that are not const.
        auto* row = const_cast<std::uint8_t*>(&picture.At(0, static_cast<int>(info.next_scanline)).blue);
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    return {out.bytes, out.bytes + out.size};
}

BaseTables ForeignBaseTables() {
    Compressor jpeg;
    jpeg.info.in_color_space = JCS_RGB;
    jpeg.info.input_components = 3;
    jpeg_set_defaults(&jpeg.info);
    jpeg_set_linear_quality(&jpeg.info, 100, TRUE);
    BaseTables tables;
    for (std::size_t n = 0; n < 64; ++n) {
        tables.luminance[n] = jpeg.info.quant_tbl_ptrs[0]->quantval[n];
        tables.chrominance[n] = jpeg.info.quant_tbl_ptrs[1]->quantval[n];
    }
    return tables;
}

} // namespace mirelle::test
