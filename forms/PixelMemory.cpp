#include "forms/PixelMemory.h"

#include <mutex>

namespace mirelle {
namespace {

// Smaller blocks are kept by the system's own allocator, and nobody works on larger pictures all day.
constexpr std::size_t kLeastBytes = std::size_t{1} << 20;
constexpr std::size_t kMostBytes = std::size_t{1} << 28;

// A tool that watches memory is to see every block come and go.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kKeeps = false;
#else
constexpr bool kKeeps = true;
#endif

// The block that is kept. It lives as long as the program: bitmaps may go away at its very end.
struct Spare {
    std::mutex mutex;
    void* memory = nullptr;
    std::size_t bytes = 0;

    // Puts a block in place of the one that is kept, which is the result.
    void* Exchange(void* block, std::size_t size) noexcept {
        const std::lock_guard lock(mutex);
        bytes = size;
        return std::exchange(memory, block);
    }
    // The block that is kept if it is of that size, or none.
    void* Take(std::size_t size) noexcept {
        const std::lock_guard lock(mutex);
        return bytes == size ? std::exchange(memory, nullptr) : nullptr;
    }
};

Spare& TheSpare() {
    static Spare& spare = *new Spare;
    return spare;
}

} // namespace

void* TakePixelMemory(std::size_t bytes) {
    if (bytes < kLeastBytes) return ::operator new(bytes);
    if (void* kept = TheSpare().Take(bytes)) return kept;
    // What is kept is of no use for this size, and would be missed where memory is short.
    ReleaseSparePixelMemory();
    return ::operator new(bytes);
}

void GivePixelMemory(void* memory, std::size_t bytes) noexcept {
    const bool isKept = kKeeps && bytes >= kLeastBytes && bytes <= kMostBytes;
    ::operator delete(isKept ? TheSpare().Exchange(memory, bytes) : memory);
}

void ReleaseSparePixelMemory() noexcept {
    ::operator delete(TheSpare().Exchange(nullptr, 0));
}

} // namespace mirelle
