// The counter of material names: its text box, its spinner, its reset, and the scan of the folder for the
// highest number in use.
#pragma once

namespace mirelle {

class FrmPicX;

class IncrementCounter {
public:
    explicit IncrementCounter(FrmPicX& form);

private:
    void TakeText();
    void StepUp();
    void StepDown();
    void StepBy(double step);
    void Rename();
    void Reset();
    void OnIncrementSwitched();
    void ScanFolder();

    FrmPicX& form_;
};

} // namespace mirelle
