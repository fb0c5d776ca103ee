// The lines of a text file, read one after the other.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace mirelle {

// A line ends at CR LF, LF or CR; the last one needs no end. A byte order mark of UTF-8 at the front is none
// of the text. Every other byte comes through as it stands.
class LineInput {
public:
    explicit LineInput(std::span<const std::uint8_t> bytes);

    bool AtEnd() const { return next_ >= text_.size(); }
    // The next line without its end; at the end of the text the empty one.
    std::string ReadLine();

private:
    std::string text_;
    std::size_t next_ = 0;
};

} // namespace mirelle
