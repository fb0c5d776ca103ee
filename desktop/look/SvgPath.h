// The path data of SVG (SVG 1.1, chapter 8.3) as a painter path: M L H V C Q A Z, absolute and relative. The
// short curve commands S and T are not read; the drawings of the window do without them.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include <QPainterPath>

namespace mirelle::look {

// Empty where the text is not path data of these commands, or holds a number beyond a million.
std::optional<QPainterPath> ReadPathData(std::string_view text);

// Numbers parted by blanks and commas, as "points" and "viewBox" hold them; empty where there is anything
// else.
std::optional<std::vector<double>> ReadNumbers(std::string_view text);

// Ends the path's last subpath with an elliptical arc (SVG 1.1, appendix F.6): `radii` are made larger where
// they are too small to reach, and radius 0 gives a straight line. `turn` is in degrees.
struct Arc {
    QPointF radii;
    double turn = 0;
    bool large = false;
    bool sweep = false; // the angle grows: clockwise as seen, for y goes down
    QPointF end;
};
void AddArc(QPainterPath& path, const Arc& arc);

} // namespace mirelle::look
