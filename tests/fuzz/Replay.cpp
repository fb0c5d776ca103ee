// Stands in for libFuzzer's main in normal builds: runs the target over every file of the folders that are
// named, over each file with its tail cut off at every length, so that even a small corpus meets every end
// that a reader can run into, and over a fixed number of changes of each file, always the same ones.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

// Of a long file this many cuts are tried, spread evenly.
constexpr std::size_t kCuts = 128;
constexpr int kChangedFiles = 60;
constexpr unsigned kMostChanges = 6;

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

// Puts another byte in the place of one, takes one out, puts one in, or repeats a piece.
void Change(std::vector<std::uint8_t>& bytes, std::mt19937& random) {
    constexpr std::uint8_t kNotable[] = {0, 1, 0x7F, 0x80, 0xFF};
    const auto at = static_cast<std::ptrdiff_t>(random() % (bytes.size() + 1));
    const auto byte = static_cast<std::uint8_t>(random());
    const unsigned kind = random() % 8;
    if (at == std::ptrdiff_t(bytes.size()) || kind == 0) {
        bytes.insert(bytes.begin() + at, byte);
    } else if (kind == 1) {
        bytes.erase(bytes.begin() + at);
    } else if (kind == 2) {
        const std::vector<std::uint8_t> piece(
            bytes.begin() + at,
            bytes.begin() + std::min<std::ptrdiff_t>(at + 8, std::ptrdiff_t(bytes.size())));
        bytes.insert(bytes.begin() + at, piece.begin(), piece.end());
    } else {
        bytes[static_cast<std::size_t>(at)] = kind < 5 ? kNotable[byte % std::size(kNotable)] : byte;
    }
}

void ReplayChanged(const std::vector<std::uint8_t>& bytes) {
    std::mt19937 random(static_cast<unsigned>(bytes.size()));
    for (int i = 0; i < kChangedFiles; ++i) {
        std::vector<std::uint8_t> changed = bytes;
        for (unsigned changes = 1 + random() % kMostChanges; changes > 0; --changes)
            Change(changed, random);
        LLVMFuzzerTestOneInput(changed.data(), changed.size());
    }
}

} // namespace

int main(int count, char** arguments) {
    int files = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            const std::vector<std::uint8_t> bytes = ReadWhole(entry.path());
            Replay(bytes);
            ReplayChanged(bytes);
            ++files;
        }
    }
    std::printf("%d files replayed\n", files);
    return files > 0 ? 0 : 1;
}
