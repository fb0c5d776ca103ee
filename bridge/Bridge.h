// The handlers of sends, batches and the colour palette, connected to the form.
#pragma once

namespace mirelle {

class FrmPicX;

class Bridge {
  public:
    explicit Bridge(FrmPicX& form);
};

} // namespace mirelle
