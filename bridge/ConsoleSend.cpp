#include "bridge/ConsoleSend.h"

#include "forms/Text.h"

#include <array>

namespace mirelle {
namespace {

// What each choice of units multiplies the typed size by: inches, feet, metres.
constexpr std::array kInchesPerUnit = {1.0, 12.0, 39.37};

double SizeInInches(FrmPicX& form) {
    double size = 0;
    for (int unit = 0; unit < form.optUnits.Count(); ++unit) {
        if (form.optUnits(unit).Value) {
            size = Val(form.TextMatSize.Text()) * kInchesPerUnit[static_cast<std::size_t>(unit)];
        }
    }
    return size;
}

} // namespace

LineFields MaterialFields(const FrmPicX& form, const std::string& imagePath) {
    return {.name = Trim(form.textProfileName.Text()), .path = EscapedPath(imagePath), .size = {}, .rgb = {}};
}

void SendSize(FrmPicX& form, RubyConsoleLink& link) {
    if (form.ckSize.Value != kChecked) return;
    link.Send({Line::M3}, {.name = {}, .path = {}, .size = CStr(SizeInInches(form)), .rgb = {}});
}

} // namespace mirelle
