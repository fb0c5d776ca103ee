#include "codecs/jpeg/ScanGroups.h"

namespace mirelle::jpeg {
namespace {

constexpr std::int32_t kMostBlocksInMcu = 10;
constexpr std::size_t kMostComponentsInScan = 3;

} // namespace

std::vector<ScanGroup> GroupComponents(const Frame& frame) {
    std::vector<ScanGroup> groups;
    std::size_t first = 0;
    std::int32_t blocks = 0;
    for (std::size_t i = 0; i < frame.Components.size();) {
        blocks += frame.Components[i].Hi * frame.Components[i].Vi;
        ++i;
        const bool tooMany = blocks > kMostBlocksInMcu;
        if (tooMany && i - first > 1) --i;
        if (tooMany || i - first == kMostComponentsInScan || i == frame.Components.size()) {
            groups.push_back({first, i - 1});
            blocks = 0;
            first = i;
        }
    }
    return groups;
}

McuCount CountMcus(const Frame& frame) {
    const std::int32_t width = frame.Hmax * 8;
    const std::int32_t height = frame.Vmax * 8;
    return {(width + frame.X - 1) / width, (height + frame.Y - 1) / height};
}

InterleavedBlocks::InterleavedBlocks(const Frame& frame, const Component& component)
    : mcus_(CountMcus(frame)), h_(static_cast<std::size_t>(component.Hi)),
      v_(static_cast<std::size_t>(component.Vi)), blocks_(component.Blocks()) {
    const std::int32_t samples = (component.Hi * frame.X + frame.Hmax - 1) / frame.Hmax;
    perRow_ = static_cast<std::size_t>((samples + 7) / 8);
    edge_ = perRow_ % h_ == 0 ? h_ : perRow_ % h_;
}

} // namespace mirelle::jpeg
