// A click on a JPEG file of 24 megapixels, which fills every holder, beside one plain decoding of the file.
#include "desktop/files/NativeFileSystem.h"
#include "desktop/pictures/ImageFileLoader.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <jpeglib.h>
#include <vector>

namespace mirelle::test {
namespace {

constexpr int kWidth = 6000;
constexpr int kHeight = 4000;
constexpr int kQuality = 90;

std::vector<std::uint8_t> EncodedPhotograph() {
    const Bitmap bitmap = SmoothBitmap(kWidth, kHeight);
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = kWidth;
    jpeg.image_height = kHeight;
    jpeg.input_components = 4;
    jpeg.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, kQuality, TRUE);
    jpeg_start_compress(&jpeg, TRUE);
    for (int y = 0; y < kHeight; ++y) {
        auto* row = reinterpret_cast<JSAMPROW>(const_cast<Pixel*>(bitmap.Row(y).data()));
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    std::vector<std::uint8_t> bytes(memory, memory + size);
    jpeg_destroy_compress(&jpeg);
    std::free(memory);
    return bytes;
}

class PhotographLibrary {
public:
    PhotographLibrary() {
        folder_.MakeFolder("Support/Materials");
        folder_.MakeFile("Support/Materials/photograph.jpg", EncodedPhotograph());
    }
    const std::string& AppFolder() const { return folder_.Path(); }
    std::string Photograph() const { return folder_ / "Support/Materials/photograph.jpg"; }

private:
    TemporaryFolder folder_;
};

PhotographLibrary& Photographs() {
    static PhotographLibrary library;
    return library;
}

void DecodePlainly(benchmark::State& state) {
    const NativeFileSystem files(Photographs().AppFolder(), {});
    for (auto _ : state) {
        const std::vector<std::uint8_t> bytes = files.ReadFile(Photographs().Photograph());
        jpeg_decompress_struct jpeg{};
        jpeg_error_mgr errors{};
        jpeg.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&jpeg);
        jpeg_mem_src(&jpeg, bytes.data(), bytes.size());
        jpeg_read_header(&jpeg, TRUE);
        jpeg.out_color_space = JCS_EXT_BGRX;
        jpeg_start_decompress(&jpeg);
        std::vector<std::uint8_t> pixels(std::size_t{4} * jpeg.output_width * jpeg.output_height);
        while (jpeg.output_scanline < jpeg.output_height) {
            JSAMPROW row = pixels.data() + std::size_t{4} * jpeg.output_width * jpeg.output_scanline;
            jpeg_read_scanlines(&jpeg, &row, 1);
        }
        jpeg_finish_decompress(&jpeg);
        jpeg_destroy_decompress(&jpeg);
        benchmark::DoNotOptimize(pixels.data());
    }
}
BENCHMARK(DecodePlainly)->Unit(benchmark::kMillisecond);

void ClickPhotograph(benchmark::State& state) {
    NativeFileSystem files(Photographs().AppFolder(), {});
    ImageFileLoader loader(files);
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    Sampler sampler(desktop.PortsOver(files, loader, encoders));
    FrmPicX& form = sampler.form;
    form.Load();
    form.Activate();
    form.FrameGradFX.Visible = state.range(0) != 0;
    for (auto _ : state)
        form.File5.SetListIndex(0);
    if (form.PicImage.Picture().Width() != kWidth) state.SkipWithError("the picture was not loaded");
}
BENCHMARK(ClickPhotograph)->Unit(benchmark::kMillisecond)->ArgName("gradient")->Arg(0)->Arg(1);

} // namespace
} // namespace mirelle::test
