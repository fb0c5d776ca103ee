// Shares work out over the processor's cores.
#pragma once

#include <cstddef>
#include <functional>

namespace mirelle::jpeg {

// 0..count in slices of about the same length. How they are cut depends on nothing but the two numbers, so
// that the result is the same on every machine. Large counts have 64 slices: more than there are cores,
// mostly, so that one that is held up holds nobody else up.
class Slices {
public:
    // No slice is shorter than `shortest`, the least that is worth a thread, unless the count itself is.
    Slices(std::size_t count, std::size_t shortest);

    std::size_t Number() const { return number_; }
    std::size_t Begin(std::size_t slice) const { return slice * (count_ / number_) + LongerBefore(slice); }
    std::size_t End(std::size_t slice) const { return Begin(slice + 1); }

private:
    // The first slices are one longer where the count does not divide.
    std::size_t LongerBefore(std::size_t slice) const {
        return slice < count_ % number_ ? slice : count_ % number_;
    }

    std::size_t count_;
    std::size_t number_;
};

// Runs work(slice) once for each slice, in no order and in several threads, and returns when all is done.
// What the work raises is raised here, and slices not yet begun are left out then. The work for different
// slices must not touch the same memory.
void RunShared(const Slices& slices, const std::function<void(std::size_t)>& work);

} // namespace mirelle::jpeg
