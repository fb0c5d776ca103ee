// Port: the system's clipboard.
#pragma once

#include "forms/Picture.h"

#include <string>

namespace mirelle {

class Clipboard {
public:
    virtual ~Clipboard() = default;

    // GetFormat(2): whether a bitmap is there.
    virtual bool HasBitmap() const = 0;
    // The bitmap; the empty picture where there is none or it can't be had any more. The same contents give
    // the same shared pixels however often it is asked.
    virtual Picture GetData() = 0;
    virtual void Clear() = 0;
    virtual void SetData(const Picture& bitmap) = 0;
    virtual void SetText(const std::string& text) = 0;
};

} // namespace mirelle
