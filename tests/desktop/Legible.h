// Whether what a window says can be read: that nothing is cut off, nothing lies over something else, and ink
// stands out from its ground. Each function tells the faults that it finds, in words.
#pragma once

#include <QImage>

#include <string>
#include <vector>

class QWidget;

namespace mirelle::test {

// Controls that lie partly outside of what they lie in, have less room than they need, or lie over each
// other.
std::vector<std::string> CutOffControls(const QWidget& window);

enum class Texts { OfTheProgram, AlsoLongOnes };
// Labels, captions, and texts on buttons and in fields that are shown in part only. Long texts of the user's
// own, as AlsoLongOnes says are there, may be cut in lists and fields.
std::vector<std::string> CutOffTexts(const QWidget& window, Texts texts);

// Texts below 4.5 to 1 and drawings on buttons below 3 to 1, by the pixels that are painted. What is disabled
// may be faint, and so may what an effect makes of its picture.
std::vector<std::string> FaintInks(QWidget& window);

} // namespace mirelle::test
