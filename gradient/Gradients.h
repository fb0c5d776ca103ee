// The handlers of image gradient and form gradient, connected to the form.
#pragma once

namespace mirelle {

class FrmPicX;

class Gradients {
  public:
    explicit Gradients(FrmPicX& form);
};

} // namespace mirelle
