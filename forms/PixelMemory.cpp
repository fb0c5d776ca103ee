#include "forms/PixelMemory.h"

#include "forms/WatchedMemory.h"

#include <array>
#include <mutex>

namespace mirelle {
namespace {

// Smaller blocks come soon enough, and nobody works on larger pictures all day.
constexpr std::size_t kLeastBytes = std::size_t{4} << 20;
constexpr std::size_t kMostBytes = std::size_t{1} << 28; // of all that is kept

struct Block {
    void* memory = nullptr;
    std::size_t bytes = 0;
};

// The blocks that are kept, of different sizes, the last one first.
class Spares {
public:
    // A block of that size, or none.
    void* Take(std::size_t bytes) noexcept {
        const std::lock_guard lock(mutex_);
        for (Block& block : blocks_) {
            if (block.memory != nullptr && block.bytes == bytes) return std::exchange(block.memory, nullptr);
        }
        return nullptr;
    }

    // Keeps a block, and gives those that it takes the place of.
    std::array<void*, 2> Keep(const Block& given) noexcept {
        const std::lock_guard lock(mutex_);
        auto& [last, before] = blocks_;
        // The one of another size stays, if it is the later one of two and there is room for both.
        const Block& other = last.memory != nullptr && last.bytes != given.bytes ? last : before;
        const bool stays =
            other.memory != nullptr && other.bytes != given.bytes && other.bytes + given.bytes <= kMostBytes;
        const Block kept = stays ? other : Block{};
        std::array<void*, 2> replaced = {last.memory, before.memory};
        for (void*& memory : replaced) {
            if (memory == kept.memory) memory = nullptr;
        }
        blocks_ = {given, kept};
        return replaced;
    }

    std::array<void*, 2> GiveUp() noexcept {
        const std::lock_guard lock(mutex_);
        const std::array<void*, 2> given = {blocks_[0].memory, blocks_[1].memory};
        blocks_ = {};
        return given;
    }

private:
    std::mutex mutex_;
    std::array<Block, 2> blocks_;
};

std::new_handler handlerBefore = nullptr;

// Called where an allocation fails: it is tried again if this returns.
void ReleaseOrFail() {
    if (ReleaseSparePixelMemory()) return;
    if (handlerBefore == nullptr) throw std::bad_alloc();
    handlerBefore();
}

// Lives as long as the program: bitmaps may go away at its very end.
Spares& TheSpares() {
    static Spares& spares = []() -> Spares& {
        // There before the handler, which asks for it.
        auto& made = *new Spares;
        handlerBefore = std::get_new_handler();
        std::set_new_handler(ReleaseOrFail);
        return made;
    }();
    return spares;
}

bool IsWorthKeeping(std::size_t bytes) {
    return !kMemoryIsWatched && bytes >= kLeastBytes && bytes <= kMostBytes;
}

} // namespace

void* TakePixelMemory(std::size_t bytes) {
    void* const kept = IsWorthKeeping(bytes) ? TheSpares().Take(bytes) : nullptr;
    return kept != nullptr ? kept : ::operator new(bytes);
}

void GivePixelMemory(void* memory, std::size_t bytes) noexcept {
    if (!IsWorthKeeping(bytes)) return ::operator delete(memory);
    for (void* const replaced : TheSpares().Keep({memory, bytes}))
        ::operator delete(replaced);
}

bool ReleaseSparePixelMemory() noexcept {
    bool any = false;
    for (void* const memory : TheSpares().GiveUp()) {
        any = any || memory != nullptr;
        ::operator delete(memory);
    }
    return any;
}

} // namespace mirelle
