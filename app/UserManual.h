// The manual's form: two buttons that open the manual, from the disk or on the web. The main window is
// minimised while the form is shown and comes back when it is closed.
#pragma once

#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/Form.h"

namespace mirelle {

class FrmPicX;

class UserManual : public Form {
public:
    explicit UserManual(FrmPicX& mainForm);

    ControlArray<CommandButton> Command1{*this, "Command1", 2};

private:
    void ShowManualForm();
    void BackToMainForm();
    void OpenDocument(const std::string& target);

    FrmPicX& mainForm_;
};

} // namespace mirelle
