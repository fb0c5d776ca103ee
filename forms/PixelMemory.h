// Memory for the pixels of bitmaps.
//
// Effects make a new picture of the same size again and again. Memory of that size comes fresh from the
// system, page by page and each cleared first, which takes longer than most effects. So a large block that
// was given back is kept for the next bitmap of just its size: one each of the last two sizes, for work that
// goes to and fro between two pictures.
//
// What that may cost is a quarter of a gigabyte, and nothing where memory is short: what is kept goes back to
// the system before any allocation by operator new fails.
#pragma once

#include <cstddef>
#include <new>
#include <utility>

namespace mirelle {

// `bytes` bytes that hold anything. Throws std::bad_alloc. To be given back with the same number of bytes.
void* TakePixelMemory(std::size_t bytes);
void GivePixelMemory(void* memory, std::size_t bytes) noexcept;

// The system gets back what is kept; whether that was anything.
bool ReleaseSparePixelMemory() noexcept;

// For a container whose elements hold anything until they are written, unless it is told a value for them.
template <class Element>
struct PixelAllocator {
    using value_type = Element;

    Element* allocate(std::size_t count) {
        if (count > static_cast<std::size_t>(-1) / sizeof(Element)) throw std::bad_array_new_length();
        return static_cast<Element*>(TakePixelMemory(count * sizeof(Element)));
    }
    void deallocate(Element* elements, std::size_t count) noexcept {
        GivePixelMemory(elements, count * sizeof(Element));
    }

    void construct(Element*) noexcept {}
    template <class... Arguments>
    void construct(Element* element, Arguments&&... arguments) {
        ::new (static_cast<void*>(element)) Element(std::forward<Arguments>(arguments)...);
    }

    friend bool operator==(const PixelAllocator&, const PixelAllocator&) = default;
};

} // namespace mirelle
