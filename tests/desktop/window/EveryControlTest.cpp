// Every control that is meant to be seen has its place, once.
#include "tests/desktop/window/OpenedWindow.h"

#include <gmock/gmock.h>

#include <set>

namespace mirelle::test {
namespace {

// What is never seen: surfaces that only hold pictures, storage, and controls that nothing shows or answers.
const std::set<std::string> kUnseen = {
    "PicImage",          // the working picture; the canvas shows a copy of it
    "picSmall2",         // twin of the Material Image
    "Picture7",          // a copy that nothing reads
    "Picture3",          // the undo picture
    "Pic1",              // source of the point effects
    "Picture1b",         // work surface of contrast
    "Picture4",          // size reference of the gradients
    "Picture5",          // holds a gradient image while another stands in
    "Picture6",          // the default gradient
    "PicSwap1",          // swaps the gradient's images
    "PicSwap2",          //
    "ListDirs",          // storage: the folders visited
    "ckFloorBar",        // nothing shows it
    "textProfileNamebk", // a second name box that nothing reads or sets
    "cmdListHigh",       // a button without a handler and without a tip
    "cmdGetCorvane(1)",  // likewise
};

TEST(EveryControl, IsBoundOnceOrIsNamedAsUnseen) {
    OpenedWindow opened;
    const auto& bound = opened.window->TheBinder().Bound();
    for (const Control* control : opened.form.Controls()) {
        const auto found = bound.find(control);
        const int times = found == bound.end() ? 0 : found->second;
        EXPECT_EQ(times, kUnseen.contains(control->FullName()) ? 0 : 1) << control->FullName();
    }
}

TEST(EveryControl, ThatTakesTheFocusHasAnAccessibleName) {
    OpenedWindow opened;
    for (const QWidget* widget : opened.window->findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
        if (widget->objectName().startsWith("qt_")) continue;
        if (!opened.form.Find(widget->objectName().section('(', 0, 0).toStdString()) &&
            !widget->objectName().contains('('))
            continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
}

} // namespace
} // namespace mirelle::test
