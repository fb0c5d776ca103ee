// The handlers of library, names, counter, saving, connected to the form.
#pragma once

#include "library/FastSave.h"
#include "library/FilePreview.h"
#include "library/IncrementCounter.h"
#include "library/MaterialNames.h"
#include "library/Navigator.h"

namespace mirelle {

class Library {
public:
    explicit Library(FrmPicX& form)
        : navigator_(form), filePreview_(form), materialNames_(form), incrementCounter_(form),
          fastSave_(form) {}

private:
    Navigator navigator_;
    FilePreview filePreview_;
    MaterialNames materialNames_;
    IncrementCounter incrementCounter_;
    FastSave fastSave_;
};

} // namespace mirelle
