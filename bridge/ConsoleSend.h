// What the four material sends have in common: their answer to errors, their fields, and the optional size
// line.
#pragma once

#include "app/FrmPicX.h"
#include "bridge/RubyConsoleLink.h"
#include "forms/RunTimeError.h"

#include <string>
#include <utility>

namespace mirelle {

// The trimmed material name and an image's path, as the lines want them.
LineFields MaterialFields(const FrmPicX& form, const std::string& imagePath);

// Types the size line, in a call of its own, while ckSize is checked: the typed number in the chosen units.
void SendSize(FrmPicX& form, RubyConsoleLink& link);

// Runs a send that ends at its first error. Error 5 means that there is no console, and is told.
template <class Body>
void RunSend(FrmPicX& form, Body&& body) {
    try {
        WithinMemory(std::forward<Body>(body));
    } catch (const RunTimeError& error) {
        if (error.Number() != ErrorNumber::InvalidProcedureCall) return;
        form.ports.dialogs.MsgBox("Make sure the Ruby Console is visible", MessageButtons::Ok, App::Title);
    }
}

} // namespace mirelle
