// A block of memory whose elements hold nothing until they are written: symbols and file buffers run to
// many megabytes, and every one of them is written before it is read.
#pragma once

#include "forms/RunTimeError.h"

#include <cstddef>
#include <memory>
#include <span>
#include <utility>

namespace mirelle::jpeg {

template <class Element>
class Array {
public:
    Array() = default;
    // Raises error 7 when the memory can't be had.
    explicit Array(std::size_t size)
        : elements_(WithinMemory([size] { return std::make_unique_for_overwrite<Element[]>(size); })),
          size_(size) {}

    Array(Array&& other) noexcept
        : elements_(std::move(other.elements_)), size_(std::exchange(other.size_, 0)) {}
    Array& operator=(Array&& other) noexcept {
        elements_ = std::move(other.elements_);
        size_ = std::exchange(other.size_, 0);
        return *this;
    }

    std::size_t Size() const { return size_; }
    bool IsEmpty() const { return size_ == 0; }
    Element* Data() { return elements_.get(); }
    const Element* Data() const { return elements_.get(); }
    Element& operator[](std::size_t index) { return elements_[index]; }
    const Element& operator[](std::size_t index) const { return elements_[index]; }
    operator std::span<Element>() { return {elements_.get(), size_}; }
    operator std::span<const Element>() const { return {elements_.get(), size_}; }

private:
    std::unique_ptr<Element[]> elements_;
    std::size_t size_ = 0;
};

} // namespace mirelle::jpeg
