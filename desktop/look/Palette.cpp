#include "desktop/look/Palette.h"

#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

struct RoleRow {
    QPalette::ColorRole role;
    QRgb colour;
};

constexpr RoleRow kRoles[] = {
    {QPalette::Window, kCard},
    {QPalette::WindowText, kText},
    {QPalette::Base, kField},
    {QPalette::AlternateBase, kCard},
    {QPalette::Text, kText},
    {QPalette::PlaceholderText, kTextQuiet},
    {QPalette::Button, kControl},
    {QPalette::ButtonText, kText},
    {QPalette::BrightText, kWarning},
    {QPalette::ToolTipBase, kCardEdge},
    {QPalette::ToolTipText, kText},
    {QPalette::Highlight, kSelection},
    {QPalette::HighlightedText, kTextStrong},
    {QPalette::Link, kAccentText},
    {QPalette::LinkVisited, kAccentText},
    {QPalette::Light, kFieldEdge},
    {QPalette::Midlight, kControl},
    {QPalette::Mid, kCard},
    {QPalette::Dark, kCardEdge},
    {QPalette::Shadow, kCardEdge},
};

constexpr QPalette::ColorRole kInks[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                         QPalette::HighlightedText, QPalette::PlaceholderText};

} // namespace

QPalette MakePalette() {
    QPalette palette;
    for (const RoleRow& row : kRoles)
        palette.setColor(row.role, QColor(row.colour));
    for (const QPalette::ColorRole ink : kInks)
        palette.setColor(QPalette::Disabled, ink, QColor(kTextOff));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(kSelectionIdle));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(kControl));
    return palette;
}

} // namespace mirelle::look
