// The handlers of image gradient and form gradient, connected to the form.
#pragma once

#include "gradient/FormGradient.h"
#include "gradient/GradientSources.h"
#include "gradient/ImageGradient.h"

namespace mirelle {

class Gradients {
public:
    explicit Gradients(FrmPicX& form) : image_(form), sources_(form), formGradient_(form) {}

private:
    ImageGradient image_;
    GradientSources sources_;
    FormGradient formGradient_;
};

} // namespace mirelle
