// A JPEG file taken apart into its segments, for tests that look at what was written.
#pragma once

#include "codecs/cJPEG.h"
#include "tests/support/MemoryFileSystem.h"

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace mirelle::test {

using Bytes = std::vector<std::uint8_t>;

// What SaveFileJPG writes. Throws what it raises, and std::runtime_error where it returns anything but 0.
inline Bytes Saved(cJPEG& jpeg) {
    MemoryFileSystem files;
    if (jpeg.SaveFileJPG("C:\\Mirelle\\a.jpg", files) != 0) throw std::runtime_error("not saved");
    return files.ReadFile("C:\\Mirelle\\a.jpg");
}

struct Segment {
    int marker = 0;
    Bytes content; // behind the length; of SOS the header alone
    Bytes coded;   // of SOS what follows the header up to the next marker, stuffing and all
};

// From SOI to EOI. Throws std::runtime_error where the file is not a string of segments.
inline std::vector<Segment> SegmentsOf(const Bytes& file) {
    std::vector<Segment> segments;
    const auto require = [](bool good) {
        if (!good) throw std::runtime_error("not a JPEG file");
    };
    for (std::size_t at = 0; at < file.size();) {
        require(at + 2 <= file.size() && file[at] == 0xFF);
        Segment segment;
        segment.marker = file[at + 1];
        at += 2;
        if (segment.marker != 0xD8 && segment.marker != 0xD9) {
            require(at + 2 <= file.size());
            const std::size_t length = file[at] * 256U + file[at + 1];
            require(length >= 2 && at + length <= file.size());
            segment.content.assign(file.begin() + static_cast<std::ptrdiff_t>(at) + 2,
                                   file.begin() + static_cast<std::ptrdiff_t>(at + length));
            at += length;
        }
        if (segment.marker == 0xDA) {
            while (at + 1 < file.size() && (file[at] != 0xFF || file[at + 1] == 0))
                segment.coded.push_back(file[at++]);
        }
        segments.push_back(segment);
    }
    require(segments.size() > 2 && segments.front().marker == 0xD8 && segments.back().marker == 0xD9);
    return segments;
}

inline std::vector<Segment> SegmentsOf(const Bytes& file, int marker) {
    std::vector<Segment> found;
    for (const Segment& segment : SegmentsOf(file)) {
        if (segment.marker == marker) found.push_back(segment);
    }
    return found;
}

struct Raised {
    int number = 0; // 0 where nothing was raised
    std::string description;
};

inline Raised RaisedBy(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const RunTimeError& error) {
        return {static_cast<int>(error.Number()), error.Description()};
    }
    return {};
}

} // namespace mirelle::test
