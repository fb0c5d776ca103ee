#include "tools/starter/Starter.h"

#include "codecs/cJPEG.h"
#include "tests/support/MemoryFileSystem.h"
#include "tools/starter/Materials.h"

#include <array>

namespace mirelle::starter {
namespace {

constexpr int kQuality = 90;

constexpr std::array kMaterials = {
    StarterMaterial{"Art", "Art_1", MarbledPaper},
    StarterMaterial{"Art", "Art_2", BrushDabs},
    StarterMaterial{"Fractal", "Fractal_1", JuliaKaleidoscope},
    StarterMaterial{"Fractal", "Fractal_2", ElectricVeil},
    StarterMaterial{"Graffiti", "Graffiti_1", SprayLoops},
    StarterMaterial{"Graffiti", "Graffiti_2", PaintSplatter},
    StarterMaterial{"Metal", "Metal_1", BrushedSteel},
    StarterMaterial{"Metal", "Metal_2", TreadPlate},
    StarterMaterial{"Color", "Color_1", GlazedMosaic},
    StarterMaterial{"Color", "Color_2", SerapeStripes},
    StarterMaterial{"Gradient", "Gradient_1", DawnFade},
    StarterMaterial{"Gradient", "Gradient_2", DeepWater},
    StarterMaterial{"Bio", "Bio_1", LeafCells},
    StarterMaterial{"Bio", "Bio_2", GiraffeHide},
    StarterMaterial{"Architecture", "Arch_1", BrickWall},
    StarterMaterial{"Architecture", "Arch_2", ParquetSquares},
    StarterMaterial{"Architecture", "Arch_3", Cobblestones},
    StarterMaterial{"Industrial", "Industrial_1", HazardStripes},
    StarterMaterial{"Industrial", "Industrial_2", RustyPanels},
    StarterMaterial{"Misc", "Misc_1", Burlap},
    StarterMaterial{"Misc", "Misc_2", Terrazzo},
};

} // namespace

std::span<const StarterMaterial> StarterMaterials() {
    return kMaterials;
}

std::vector<std::uint8_t> FileOf(const StarterMaterial& material) {
    const Bitmap bitmap = BitmapOf(material.draw());
    cJPEG jpeg;
    jpeg.Quality(kQuality);
    jpeg.SampleHDC(bitmap, bitmap.Width(), bitmap.Height());
    // The encoder writes whole files; this one stays in memory.
    test::MemoryFileSystem memory;
    const std::string path = "C:\\material.jpg";
    jpeg.SaveFileJPG(path, memory);
    return memory.ReadFile(path);
}

} // namespace mirelle::starter
