// The handlers of sends, batches and the colour palette, connected to the form.
#pragma once

#include "bridge/BatchSend.h"
#include "bridge/ColorPalette.h"
#include "bridge/SendMaterial.h"
#include "bridge/SuperBatchPanel.h"

namespace mirelle {

class Bridge {
public:
    explicit Bridge(FrmPicX& form) : send_(form), batch_(form), superBatch_(form), palette_(form) {}

private:
    SendMaterial send_;
    BatchSend batch_;
    SuperBatchPanel superBatch_;
    ColorPalette palette_;
};

} // namespace mirelle
