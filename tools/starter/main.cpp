// mirelle_starter FOLDER: draws the starter library into FOLDER/Support/Materials, over what is there.
#include "tools/starter/Starter.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

int main(int argumentCount, char** arguments) {
    using namespace mirelle::starter;
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: mirelle_starter FOLDER\n");
        return 2;
    }
    for (const StarterMaterial& material : StarterMaterials()) {
        const auto folder = std::filesystem::path(arguments[1]) / "Support" / "Materials" / material.folder;
        std::filesystem::create_directories(folder);
        const auto path = folder / (std::string(material.name) + ".jpg");
        const std::vector<std::uint8_t> bytes = FileOf(material);
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) {
            std::fprintf(stderr, "can't write %s\n", path.string().c_str());
            return 1;
        }
        std::printf("%s %zu\n", path.string().c_str(), bytes.size());
    }
}
