// Where the panels lie over the canvas, by anchors: the same relative places on any screen.
#pragma once

#include <QRect>
#include <QSize>

#include <functional>

namespace mirelle {

struct PanelPlaces {
    QRect material;   // the right column
    QRect sends;      // at the right edge
    QRect lower;      // along the bottom
    QRect strip;      // Image FX or Gradient FX, over the lower panel
    QRect superBatch; // over the upper part of the right column
    QRect free;       // what the panels that are shown leave of the canvas
};

struct PanelNeeds {
    QSize window;
    int lowerHeight = 0;
    int sendsWidth = 0;
    int upperPart = 0;                   // of the right column
    std::function<int(int)> stripHeight; // of the width
    bool rightShown = true;
    bool lowerShown = true;
};

PanelPlaces PlacePanels(const PanelNeeds& needs);

// The least client area in which everything can be reached.
constexpr QSize kLeastWindow{1000, 660};

} // namespace mirelle
