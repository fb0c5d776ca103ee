// Commands for the picture holders.
#include "tests/driver/Commands.h"
#include "tests/driver/Dump.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Holders.h"
#include "tests/driver/Json.h"
#include "tests/driver/Values.h"

#include <array>

namespace mirelle::driver {
namespace {

std::string Load(Session& session, Words words) {
    WithHolder(session, ReferenceIn(words[0]),
               [&](auto& holder) { holder.Picture = session.ReadPicture(words[1]); });
    return {};
}

std::string Dump(Session& session, Words words) {
    const PropertyReference layer = PropertyReferenceIn(words[0]);
    return WithHolder(session, layer.owner, [&](auto& holder) {
        if (layer.property.name == "Picture") return DumpPicture(holder.Picture(), words[1]);
        if constexpr (requires { holder.Image(); }) {
            if (layer.property.name == "Image") return DumpPicture(holder.Image(), words[1]);
        }
        throw UsageError(JsonString(words[0]) + " is no layer of a picture");
    });
}

std::string Point(Session& session, Words words) {
    const auto x = Read<float>(words[1]);
    const auto y = Read<float>(words[2]);
    return WithHolder(session, ReferenceIn(words[0]), [&](auto& holder) -> std::string {
        if constexpr (requires { holder.Point(x, y); })
            return JsonNumber(holder.Point(x, y));
        else
            throw UsageError(JsonString(words[0]) + " has no surface");
    });
}

constexpr std::array kCommands = {
    Command{"load", "HOLDER FILE", 2, 2, Load},
    Command{"dump", "HOLDER.Picture|Image FILE", 2, 2, Dump},
    Command{"point", "HOLDER X Y", 3, 3, Point},
};

} // namespace

std::span<const Command> PictureCommands() {
    return kCommands;
}

} // namespace mirelle::driver
