// The SuperBatch panel: showing it, the list of files to send, and the file types that the library lists
// meanwhile.
#pragma once

namespace mirelle {

class FrmPicX;

class SuperBatchPanel {
public:
    explicit SuperBatchPanel(FrmPicX& form);

private:
    void ToggleFrame();
    void ShowFrame();
    void HideFrame();
    void ToggleFileTypes();
    void PreviewRow();
    void RemoveRow();

    FrmPicX& form_;
};

} // namespace mirelle
