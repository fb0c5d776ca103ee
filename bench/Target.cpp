#include "bench/Target.h"

#include "forms/PixelMemory.h"

#include <malloc.h>

namespace mirelle::bench {

void GiveMemoryBack() {
    ReleaseSparePixelMemory();
    ::malloc_trim(0);
}

// Kept memory has been written before.
Target::Target(std::size_t bytes, Memory memory)
    : bytes_(bytes), memory_(memory),
      block_(memory == Memory::Kept ? std::make_unique<std::uint8_t[]>(bytes) : nullptr) {}

void Target::Ready() {
    if (memory_ == Memory::Kept) return;
    block_ = nullptr;
    GiveMemoryBack();
}

std::span<std::uint8_t> Target::Bytes() {
    if (!block_) block_ = std::make_unique_for_overwrite<std::uint8_t[]>(bytes_);
    return {block_.get(), bytes_};
}

} // namespace mirelle::bench
