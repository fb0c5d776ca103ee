// Which drawing stands on which button. One row for each picture button, under the control's own name; an
// element of a control array is named with its index.
#pragma once

#include <string_view>

namespace mirelle::look {

struct IconRow {
    std::string_view control;
    std::string_view icon; // the drawing icons/`icon`.svg
};

inline constexpr IconRow kIconTable[] = {
    // Canvas and clipboard
    {"Command23", "open-image"},
    {"Command5", "paste"},
    {"Command8", "clear-clipboard"},
    {"Command12", "copy-material"},
    {"cmdHideFrame(0)", "hide-right"},
    {"cmdHideFrame(1)", "hide-all"},
    {"cmdShowFrames", "show-all"},
    {"cmdFullScreen", "full-screen"},
    {"Command18(0)", "on-top"},
    {"Command18(1)", "not-on-top"},
    {"cmdGetCorvane(0)", "user-manual"},
    {"cmdColorDialog(0)", "hairline-colour"},
    {"cmdColorDialog(1)", "canvas-colour"},
    {"cmdColorDialog(2)", "image-fx"},
    {"cmdColorDialog(3)", "gradient-fx"},
    {"cmdColorDialog(4)", "gradient-colour"},

    // Library and names
    {"Command3", "fast-save"},
    {"cmdBackDir", "back-to-library"},
    {"cmdRefreshFile", "refresh-files"},
    {"cmdOpen2Combo", "read-prefixes"},
    {"cmdResetfCnt", "reset-counter"},
    {"Command2", "file-extensions"},
    {"cmdMatDirs(0)", "library-art"},
    {"cmdMatDirs(1)", "library-fractal"},
    {"cmdMatDirs(2)", "library-graffiti"},
    {"cmdMatDirs(3)", "library-metal"},
    {"cmdMatDirs(4)", "library-color"},
    {"cmdMatDirs(5)", "library-gradient"},
    {"cmdMatDirs(6)", "library-bio"},
    {"cmdMatDirs(7)", "library-architecture"},
    {"cmdMatDirs(8)", "library-industrial"},
    {"cmdMatDirs(9)", "library-misc"},

    // Sends and the palette
    {"Command6", "send-material"},
    {"Command7", "change-texture"},
    {"cmdReMat", "re-texture"},
    {"Command10", "batch-send"},
    {"Command13", "super-batch-send"},
    {"Command14", "super-batch-panel"},
    {"Command15", "clear-list"},
    {"cmdColorPick", "pixel-sampler"},
    {"Command67", "send-colour"},
    {"cmdMat2Corvane", "send-name"},
    {"Command1x", "bare-face"},
    {"Command4", "clear-palette"},

    // Image FX
    {"cmdSetMain", "retain"},
    {"cmdSetMain2", "retain-rgb"},
    {"cmdRGBUndo", "undo"},
    {"cmdCopy", "revert"},
    {"cmdResetRGBSlider", "reset-sliders"},

    // Gradient FX
    {"cmdGradV(0)", "gradient-horizontal"},
    {"cmdGradV(1)", "gradient-vertical"},
    {"cmdSwapPic(0)", "swap-images"},
    {"cmdSwapPic(1)", "material-to-canvas"},
    {"cmdSwapPic(2)", "material-to-gradient"},
    {"cmdGradReset", "reset-gradient"},
};

// cmdFullScreen while the window is maximised.
inline constexpr std::string_view kNormalSizeIcon = "normal-size";
// The two halves of the spinner UpDown4; combo boxes open with the second.
inline constexpr std::string_view kSpinUpIcon = "spin-up";
inline constexpr std::string_view kSpinDownIcon = "spin-down";

// The drawing's name, empty for a control that is no picture button.
constexpr std::string_view IconOf(std::string_view control) {
    for (const IconRow& row : kIconTable) {
        if (row.control == control) return row.icon;
    }
    return {};
}

} // namespace mirelle::look
