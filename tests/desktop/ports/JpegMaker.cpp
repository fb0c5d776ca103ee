#include "tests/desktop/ports/JpegMaker.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace mirelle::test {
namespace {

using Colours = JpegMaking::Colours;

std::vector<jpeg_scan_info> CountlessScans() {
    std::vector<jpeg_scan_info> scans;
    scans.push_back({3, {0, 1, 2, 0}, 0, 0, 0, 0});
    for (int component = 0; component < 3; ++component) {
        for (int coefficient = 1; coefficient < 64; ++coefficient) {
            scans.push_back({1, {component, 0, 0, 0}, coefficient, coefficient, 0, 2});
            scans.push_back({1, {component, 0, 0, 0}, coefficient, coefficient, 2, 1});
            scans.push_back({1, {component, 0, 0, 0}, coefficient, coefficient, 1, 0});
        }
    }
    return scans;
}

FileBytes RowOf(std::span<const Pixel> pixels, Colours colours) {
    FileBytes row;
    for (const Pixel& pixel : pixels) {
        switch (colours) {
        case Colours::Grey:
            row.push_back(pixel.green);
            break;
        case Colours::Three:
            row.insert(row.end(), {pixel.red, pixel.green, pixel.blue});
            break;
        case Colours::Four:
        case Colours::FourUnmarked:
            // The inks of red, green and blue are cyan, magenta and yellow.
            row.insert(row.end(), {static_cast<std::uint8_t>(255 - pixel.red),
                                   static_cast<std::uint8_t>(255 - pixel.green),
                                   static_cast<std::uint8_t>(255 - pixel.blue), pixel.fourth});
            break;
        }
    }
    return row;
}

} // namespace

FileBytes MakeJpeg(const Bitmap& bitmap, const JpegMaking& making) {
    jpeg_compress_struct encoder{};
    jpeg_error_mgr errors{};
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&encoder, &memory, &size);

    encoder.image_width = static_cast<JDIMENSION>(bitmap.Width());
    encoder.image_height = static_cast<JDIMENSION>(bitmap.Height());
    const bool isGrey = making.colours == Colours::Grey;
    const bool isThree = making.colours == Colours::Three;
    encoder.input_components = isGrey ? 1 : isThree ? 3 : 4;
    encoder.in_color_space = isGrey ? JCS_GRAYSCALE : isThree ? JCS_RGB : JCS_CMYK;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, making.quality, TRUE);
    encoder.write_Adobe_marker = making.colours == Colours::Four ? TRUE : FALSE;
    if (isThree) {
        encoder.comp_info[0].h_samp_factor = making.lumaAcross;
        encoder.comp_info[0].v_samp_factor = making.lumaDown;
    }
    encoder.restart_in_rows = making.rowsBetweenRestarts;
    if (making.isProgressive) jpeg_simple_progression(&encoder);
    const std::vector<jpeg_scan_info> scans = CountlessScans();
    if (making.hasCountlessScans) {
        encoder.scan_info = scans.data();
        encoder.num_scans = static_cast<int>(scans.size());
    }

    jpeg_start_compress(&encoder, TRUE);
    if (!making.exif.empty())
        jpeg_write_marker(&encoder, JPEG_APP0 + 1, making.exif.data(),
                          static_cast<unsigned>(making.exif.size()));
    for (int y = 0; y < bitmap.Height(); ++y) {
        FileBytes bytes = RowOf(bitmap.Row(y), making.colours);
        JSAMPROW row = bytes.data();
        jpeg_write_scanlines(&encoder, &row, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    FileBytes file(memory, memory + size);
    std::free(memory);
    return file;
}

Bitmap DecodeJpegPlainly(std::span<const std::uint8_t> file) {
    jpeg_decompress_struct decoder{};
    jpeg_error_mgr errors{};
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_mem_src(&decoder, file.data(), static_cast<unsigned long>(file.size()));
    jpeg_read_header(&decoder, TRUE);
    decoder.out_color_space = JCS_RGB;
    jpeg_start_decompress(&decoder);
    Bitmap bitmap(static_cast<int>(decoder.output_width), static_cast<int>(decoder.output_height));
    FileBytes bytes(std::size_t{3} * decoder.output_width);
    for (int y = 0; y < bitmap.Height(); ++y) {
        JSAMPROW row = bytes.data();
        jpeg_read_scanlines(&decoder, &row, 1);
        for (int x = 0; x < bitmap.Width(); ++x) {
            const std::uint8_t* triple = bytes.data() + std::size_t{3} * static_cast<std::size_t>(x);
            bitmap.At(x, y) = {triple[2], triple[1], triple[0], 0};
        }
    }
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
    return bitmap;
}

} // namespace mirelle::test
