// The values that the form's controls start with: captions, tool tips, texts, colours, sizes, what is hidden.
#pragma once

namespace mirelle {

class FrmPicX;

void ApplyDesignValues(FrmPicX& form);

} // namespace mirelle
