// The encoders of picture files that Windows brings along: those of GDI+, reached by its flat interface.
#pragma once

#include "forms/ports/Pictures.h"

#include <cstdint>

namespace mirelle {

class GdiPlusEncoders : public ImageEncoders {
public:
    ~GdiPlusEncoders() override { Stop(); }

    // GDI+ runs between the two, and at no other time.
    void Start() override;
    void Stop() override;
    // The path is one of Windows. The file is written beside it and then put in its place, so that a save
    // that fails leaves what was there.
    bool Save(const Picture& picture, ImageFormat format, const std::string& path) override;

private:
    std::uintptr_t token_ = 0; // 0 while GDI+ does not run
};

} // namespace mirelle
