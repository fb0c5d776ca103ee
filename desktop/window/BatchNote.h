// Which file of a batch is going, and how many there are: a line of text, and the share that is done.
//
// A batch keeps no state that others could read. What is told is read off the lists that it goes through,
// once for each of its pauses, one a file; the count of the pauses is the note's own.
#pragma once

#include "desktop/look/ElidedLabel.h"

#include <optional>

namespace mirelle {

class CommandButton;
class FrmPicX;

class BatchNote : public look::ElidedLabel {
    Q_OBJECT

public:
    BatchNote(FrmPicX& form, QWidget* parent);

    // A pause of so many seconds has begun, in a batch or elsewhere. Each batch has a length of its own.
    void PauseBegan(double seconds);
    // How much of a batch has gone, from 0 to 1; nothing while none is going.
    std::optional<double> Share() const;

private:
    struct File {
        QString name;
        int of = 0;
    };

    File PresentFile() const;
    void Ended(const CommandButton& batch);
    void Clear();

    FrmPicX& form_;
    const CommandButton* going_ = nullptr; // the batch that is told
    int sent_ = 0;
    int of_ = 0;
};

} // namespace mirelle
