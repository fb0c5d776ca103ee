// The rows of the table, a function a subject.
#pragma once

#include "bench/Measure.h"

namespace mirelle::bench {

Group JpegRows();
Group KernelRows();
Group PointRows();
Group ContrastRows();
Group KernelClickRows();
Group PointClickRows();
Group SmudgerRows();
Group GradientRows();
Group PasteRows();
Group CropRows();
Group PhotographRows();
Group FolderRows();
Group StartRows();
Group MemoryRows();
Group KeysRows();

} // namespace mirelle::bench
