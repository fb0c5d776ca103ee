// The figures of the window's look: every colour and every size, each written once. Widgets and painters take
// them from here; a bare number or a colour in their code is a mistake.
//
// Colours are 0xAARRGGBB and opaque. Sizes are logical pixels; the painters fit them to the device's.
#pragma once

#include <QRgb>

namespace mirelle::look {

// `share` parts of a hundred of `other` mixed into `base`, each channel rounded to nearest; opaque.
constexpr QRgb Mixed(QRgb base, QRgb other, int share) {
    const auto channel = [&](int shift) {
        const int from = static_cast<int>((base >> shift) & 0xff);
        const int to = static_cast<int>((other >> shift) & 0xff);
        return static_cast<QRgb>((from * (100 - share) + to * share + 50) / 100) << shift;
    };
    return 0xff000000u | channel(16) | channel(8) | channel(0);
}

// Grounds, from the back to the front.
inline constexpr QRgb kCanvas = 0xff404040; // neutral, so that it does not tint the judgement of colours
inline constexpr QRgb kCard = 0xff2b2b2b;
inline constexpr QRgb kCardEdge = 0xff1a1a1a;
inline constexpr QRgb kControl = 0xff3a3a3a;
inline constexpr QRgb kField = 0xff202020; // what one types or chooses in: text boxes, lists, grooves
inline constexpr QRgb kFieldEdge = 0xff4a4a4a;
inline constexpr QRgb kMarkEdge = 0xff767676; // around empty check boxes and hovered fields
inline constexpr QRgb kScrollHandleColour = 0xff5a5a5a;
inline constexpr QRgb kScrollHandleHovered = 0xff7c7c7c;

// Inks.
inline constexpr QRgb kText = 0xffe6e6e6;
inline constexpr QRgb kTextQuiet = 0xffa8a8a8; // captions and notes
inline constexpr QRgb kTextOff = 0xff757575;   // what cannot be used now
inline constexpr QRgb kTextStrong = 0xffffffff;
inline constexpr QRgb kTextOnAccent = 0xff14142e;

// What calls for attention.
inline constexpr QRgb kAccent = 0xff8080ff; // focus, ticks, progress
inline constexpr QRgb kAccentPressed = 0xff6c6cd9;
inline constexpr QRgb kAccentText = 0xffb4b4ff; // the accent as an ink
inline constexpr QRgb kSelection = 0xff4a4a90;  // selected rows and text, the default button
inline constexpr QRgb kSelectionIdle = 0xff46464f;
inline constexpr QRgb kWarning = 0xffe0a84a;

// What a control's ground turns into, whatever its own colour is.
constexpr QRgb Hovered(QRgb ground) {
    return Mixed(ground, kTextStrong, 7);
}
constexpr QRgb Pressed(QRgb ground) {
    return Mixed(ground, kCardEdge, 70);
}
constexpr QRgb Switched(QRgb ground) {
    return Mixed(ground, kAccent, 22);
} // a toggle that is on
constexpr QRgb Unavailable(QRgb ground) {
    return Mixed(ground, kCard, 60);
}

// Distances.
inline constexpr int kSpaceSmall = 4;
inline constexpr int kSpace = 8;
inline constexpr int kSpaceLarge = 12;

// Type, in pixels.
inline constexpr int kTypeSize = 13;
inline constexpr int kTypeSizeSmall = 11;
inline constexpr int kTypeSizeHeading = 16; // on the small windows beside the main one
inline constexpr int kTypeSizeTitle = 30;   // on the splash

// Shapes.
inline constexpr int kCardRadius = 6;
inline constexpr int kControlRadius = 4;
inline constexpr int kTickRadius = 3;
inline constexpr int kEdge = 1;
inline constexpr qreal kFocusRing = 1.5;

// Controls.
inline constexpr int kControlHeight = 24;
inline constexpr int kIconButton = 28;    // both sides
inline constexpr int kIcon = 20;          // both sides; the grid of the drawings
inline constexpr int kEffectPicture = 24; // both sides of the picture on an effect's button
inline constexpr int kEffectRadius = 3;
inline constexpr int kEffectOff = 40; // how much of a hundred such a picture keeps on a disabled button
inline constexpr qreal kIconStroke = 1.5;
inline constexpr int kTick = 16; // check boxes and radio buttons
inline constexpr qreal kTickStroke = 2;
inline constexpr int kRadioDot = 6;
inline constexpr int kTickInset = 3;  // room for the focus ring before a check box
inline constexpr int kTickRow = 20;   // the height of a check box or radio button with its text
inline constexpr int kFieldInset = 6; // between the edge of a text box and its text
inline constexpr int kRowHeight = 22;
inline constexpr int kScrollBar = 10;
inline constexpr int kScrollHandle = 6;
inline constexpr int kScrollHandleShortest = 24;
inline constexpr int kSliderGroove = 4;
inline constexpr int kSliderHandle = 12;
inline constexpr int kArrowWidth = 20;   // of a combo box or of spin arrows
inline constexpr int kDialogButton = 72; // the least width of a dialog's buttons
inline constexpr int kProgressLine = 3;
inline constexpr int kTipWidth = 320; // where the text of a tool tip breaks

} // namespace mirelle::look
