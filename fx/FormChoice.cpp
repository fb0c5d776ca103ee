#include "fx/FormChoice.h"

#include "fx/KernelSet.h"
#include "fx/PointSet.h"

#include <cstdlib>
#include <string_view>

namespace mirelle {

FXForm ChosenFXForm() {
    static const FXForm chosen = [] {
        const char* const wish = std::getenv("MIRELLE_PLAIN_FX");
        const bool plain = wish != nullptr && *wish != '\0' && std::string_view(wish) != "0";
        return plain ? FXForm::Plain : FXForm::Fast;
    }();
    return chosen;
}

const KernelSet& ChosenKernels() {
    return ChosenFXForm() == FXForm::Plain ? kPlainKernels : kFastKernels;
}

const PointSet& ChosenPoints() {
    return ChosenFXForm() == FXForm::Plain ? kPlainPoints : kFastPoints;
}

} // namespace mirelle
