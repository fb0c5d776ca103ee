#include "bridge/RubyConsoleLink.h"

#include "forms/RunTimeError.h"
#include "forms/Text.h"

#include <algorithm>
#include <array>

namespace mirelle {
namespace {

struct LineForm {
    Line line;
    const char* head;
    std::string LineFields::*field; // null for a line that is typed as it stands
    const char* tail;
};

constexpr std::array kLineForms = {
    LineForm{Line::P1, "model = Sketchup::active_model", nullptr, ""},
    LineForm{Line::P2, "model.entities.count", nullptr, ""},
    LineForm{Line::P3, "materials = model.materials", nullptr, ""},
    LineForm{Line::M1, "material = materials.add \"", &LineFields::name, "\""},
    LineForm{Line::M1b, "material = materials.add ", &LineFields::name, ""},
    LineForm{Line::M1c, "material = Sketchup.active_model.materials[", &LineFields::name, "]"},
    LineForm{Line::M2, "material.texture = \"", &LineFields::path, "\""},
    LineForm{Line::M3, "material.texture.size=", &LineFields::size, ""},
    LineForm{Line::F1, "pt1 = [1,1,0]", nullptr, ""},
    LineForm{Line::F2, "pt2 = [2,1,0]", nullptr, ""},
    LineForm{Line::F3, "pt3 = [2,2,0]", nullptr, ""},
    LineForm{Line::F4, "pt4 = [1,2,0]", nullptr, ""},
    LineForm{Line::F5, "entities = model.entities", nullptr, ""},
    LineForm{Line::F6, "new_face = entities.add_face pt1, pt2, pt3, pt4", nullptr, ""},
    LineForm{Line::C1, "new_face.material = Sketchup::Color.new ", &LineFields::rgb, ""},
    LineForm{Line::C2, "new_face.back_material = ", &LineFields::rgb, ""},
};

constexpr bool InOrder() {
    for (std::size_t row = 0; row < kLineForms.size(); ++row) {
        if (static_cast<std::size_t>(kLineForms[row].line) != row) return false;
    }
    return true;
}
static_assert(InOrder(), "a line's form stands at the line's own place");

} // namespace

std::string TextOf(Line line, const LineFields& fields) {
    const LineForm& form = kLineForms[static_cast<std::size_t>(line)];
    return form.head + (form.field ? fields.*form.field : std::string()) + form.tail + "\r";
}

std::string EscapedPath(std::string_view path) {
    return Replace(path, "\\", "\\\\");
}

void RubyConsoleLink::CreateShell() {
    shell_ = console_.CreateObject("WScript.Shell");
}

void RubyConsoleLink::Send(Lines lines, const LineFields& fields) {
    std::string text;
    for (const Line line : lines)
        text += TextOf(line, fields);
    SendText(text);
}

void RubyConsoleLink::SendText(const std::string& text) {
    if (!shell_) throw RunTimeError(ErrorNumber::ObjectNotSet);
    shell_->SendKeys(text);
}

} // namespace mirelle
