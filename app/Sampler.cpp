#include "app/Sampler.h"

namespace mirelle {

Sampler::Sampler(Ports ports)
    : form(ports), manual(form), panels_(form), canvas_(form), library_(form), bridge_(form), imageFX_(form),
      gradients_(form) {}

} // namespace mirelle
