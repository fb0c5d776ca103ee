// Showing once for each turn of the event loop.
#include "desktop/binding/Updater.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace mirelle::test {
namespace {

struct Thing : Watched {
    Property<int> value{*this, 0};
};

TEST(Updater, ShowsAtOnceAndThenOnceForManyChanges) {
    Thing thing;
    QObject owner;
    int shown = 0;
    ShowWhenChanged(thing, &owner, [&] { ++shown; });
    EXPECT_EQ(shown, 1);
    for (int value = 1; value <= 1000; ++value)
        thing.value = value;
    EXPECT_EQ(shown, 1) << "nothing is shown in the middle of a handler";
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, 2);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, 2);
}

TEST(Updater, ShowsAChangeThatComesWhileItShows) {
    Thing thing;
    QObject owner;
    int shown = 0;
    ShowWhenChanged(thing, &owner, [&] {
        ++shown;
        if (thing.value == 1) thing.value = 2;
    });
    thing.value = 1;
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(shown, 3);
}

TEST(Updater, EndsWithItsOwner) {
    Thing thing;
    int shown = 0;
    {
        QObject owner;
        ShowWhenChanged(thing, &owner, [&] { ++shown; });
        thing.value = 1;
    }
    thing.value = 2;
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, 1);
}

} // namespace
} // namespace mirelle::test
