// The handlers of Sampling canvas, crop, Material Image, connected to the form.
#pragma once

namespace mirelle {

class FrmPicX;

class Canvas {
  public:
    explicit Canvas(FrmPicX& form);
};

} // namespace mirelle
