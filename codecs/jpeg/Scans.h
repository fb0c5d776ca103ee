// The scans of a file.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/OptimizeTables.h"
#include "codecs/jpeg/OutBuffer.h"
#include "codecs/jpeg/ScanGroups.h"

namespace mirelle::jpeg {

// Headers and coded blocks of all groups. Raises error 9 when the buffer is full.
void WriteScans(OutBuffer& out, const Frame& frame, const std::vector<ScanGroup>& groups,
                const HuffmanTables& tables);

} // namespace mirelle::jpeg
