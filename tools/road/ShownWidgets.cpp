#include "tools/road/ShownWidgets.h"

#include "tools/road/Await.h"

#include <utility>

namespace mirelle::road {

ShownWidgets::ShownWidgets(std::string program, std::unique_ptr<WidgetSource> source)
    : program_(std::move(program)), source_(std::move(source)) {}

std::vector<Widget> ShownWidgets::In(const Widget& widget) const {
    return source_->Children(widget.object);
}

std::optional<Widget> ShownWidgets::Find(const std::function<bool(const Widget&)>& fits) const {
    const std::function<std::optional<Widget>(const Widget&)> look = [&](const Widget& around) {
        for (const Widget& widget : In(around)) {
            if (fits(widget)) return std::optional(widget);
            if (auto inner = look(widget)) return inner;
        }
        return std::optional<Widget>();
    };
    const std::string program = source_->Program(program_);
    if (program.empty()) return std::nullopt;
    return look({program, {}, {}, {}});
}

std::optional<Widget> ShownWidgets::Find(const std::string& role, const std::string& name) const {
    return Find([&](const Widget& widget) { return widget.role == role && widget.name == name; });
}

Widget ShownWidgets::Await(const std::string& role, const std::string& name) const {
    std::optional<Widget> found;
    road::Await("the " + role + " \"" + name + '"', [&] { return (found = Find(role, name)).has_value(); });
    return *found;
}

std::string ShownWidgets::TextOf(const Widget& field) const {
    return source_->Text(field.object);
}

bool ShownWidgets::IsChecked(const Widget& box) const {
    return source_->IsChecked(box.object);
}

void ShownWidgets::AwaitCopiedPicture() const {
    road::Await("the copied picture", [&] { return source_->SeesCopiedPicture(); });
}

} // namespace mirelle::road
