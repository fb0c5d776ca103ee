// Message boxes and the dialogs for files, colours and texts, all over the program's window and in its look.
#pragma once

#include "forms/ports/Dialogs.h"

#include <QPointer>
#include <QWidget>

namespace mirelle {

class QtDialogs : public Dialogs {
public:
    // The window that dialogs stand over; without one they stand alone.
    void SetParent(QWidget* parent) { parent_ = parent; }

    MessageAnswer MsgBox(const std::string& text, MessageButtons buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::optional<std::string> ShowOpen(const OpenRequest& request) override;
    std::optional<Color> ShowColor(Color current) override;

private:
    QPointer<QWidget> parent_;
    QString folder_; // where the last file was opened
};

} // namespace mirelle
