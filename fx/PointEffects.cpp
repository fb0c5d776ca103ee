#include "fx/PointEffects.h"

#include "app/FrmPicX.h"
#include "fx/FXBits.h"

#include <string>

namespace mirelle {

PointEffects::PointEffects(FrmPicX& form) : form_(form) {
    for (const PointButton& button : kPointButtons) {
        form_.Find(std::string(button.control))->Click.Connect([this, &button] {
            Run(button.effect, button.arguments);
        });
    }
    form_.HSColorShift.ForEach(
        [this](ScrollBar& slider) { slider.Change.Connect([this] { ShiftColors(); }); });
}

void PointEffects::Run(PointEffect effect, const PointArguments& arguments) {
    ResumeNext([&] {
        GetFXBits(form_);
        (ChosenPoints().*effect)(form_.FXSource, form_.FXDest, arguments);
        PutFXBits(form_);
    });
}

// Whichever slider moved, all three values are added to the picture that holds the earlier shifts already.
void PointEffects::ShiftColors() {
    PointArguments arguments;
    for (int channel = 0; channel < 3; ++channel) {
        arguments.shifts[static_cast<std::size_t>(channel)] = form_.HSColorShift(channel).Value;
    }
    Run(&PointSet::ShiftColors, arguments);
}

} // namespace mirelle
