// The handlers of library, names, counter, saving, connected to the form.
#pragma once

namespace mirelle {

class FrmPicX;

class Library {
public:
    explicit Library(FrmPicX& form);
};

} // namespace mirelle
