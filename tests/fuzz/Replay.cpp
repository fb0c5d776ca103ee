// Stands in for libFuzzer's main in normal builds: runs the target over every file of the folders that are
// named, and over each file with its tail cut off at every length, so that even a small corpus meets every
// end that a reader can run into.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

// Of a long file this many cuts are tried, spread evenly.
constexpr std::size_t kCuts = 512;

std::vector<std::uint8_t> ReadWhole(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Replay(const std::vector<std::uint8_t>& bytes) {
    const std::size_t step = std::max<std::size_t>(1, bytes.size() / kCuts);
    for (std::size_t size = 0; size < bytes.size(); size += step) {
        const std::vector<std::uint8_t> cut(bytes.begin(), bytes.begin() + std::ptrdiff_t(size));
        LLVMFuzzerTestOneInput(cut.data(), cut.size());
    }
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

} // namespace

int main(int count, char** arguments) {
    int files = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            Replay(ReadWhole(entry.path()));
            ++files;
        }
    }
    std::printf("%d files replayed\n", files);
    return files > 0 ? 0 : 1;
}
