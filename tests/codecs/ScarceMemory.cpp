#include "tests/codecs/ScarceMemory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

constexpr long kPlenty = -1;

std::atomic<long> allocationsLeft = kPlenty;
std::atomic<bool> failed = false;
std::atomic<bool> failsOnce = false;
std::atomic<std::size_t> bytesAskedFor = 0;

// Whether this allocation is one that has to fail.
bool IsRefused() {
    if (allocationsLeft.load() == kPlenty) return false;
    long left = allocationsLeft.load();
    while (left > 0 && !allocationsLeft.compare_exchange_weak(left, left - 1)) {
    }
    if (left > 0 || (failsOnce && failed.exchange(true))) return false;
    failed = true;
    return true;
}

} // namespace

void* operator new(std::size_t size) {
    bytesAskedFor += size;
    void* memory = IsRefused() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace mirelle::test {

MemoryFor::MemoryFor(long allocations, Scarcity scarcity) {
    failed = false;
    failsOnce = scarcity == Scarcity::OneAlone;
    allocationsLeft = allocations;
}

MemoryFor::~MemoryFor() {
    allocationsLeft = kPlenty;
}

bool MemoryFor::RanOut() {
    return failed;
}

CountedMemory::CountedMemory() : before_(bytesAskedFor) {}

std::size_t CountedMemory::Bytes() const {
    return bytesAskedFor - before_;
}

} // namespace mirelle::test
