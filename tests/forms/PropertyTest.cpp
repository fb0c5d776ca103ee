// Properties and events: when who is told.
#include "forms/Property.h"

#include "forms/Event.h"
#include "tests/support/ErrorOf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace mirelle {
namespace {

using test::ErrorOf;
using testing::ElementsAre;

struct Owner : Watched {
    Property<int> Size{*this, 1};
    Property<int> Other{*this, 7};
};

struct PropertyTest : testing::Test {
    Owner owner;
    std::vector<std::string> told;

    void SetUp() override {
        owner.Watch([this] { told.push_back("watcher sees " + std::to_string(owner.Size())); });
        owner.Size.OnChange([this] { told.push_back("reaction"); });
    }
};

TEST_F(PropertyTest, AnotherValueTellsTheWatchersAndThenRunsTheReaction) {
    owner.Size = 2;
    EXPECT_EQ(owner.Size(), 2);
    EXPECT_THAT(told, ElementsAre("watcher sees 2", "reaction"));
}

TEST_F(PropertyTest, TheSameValueTellsNobody) {
    owner.Size = 1;
    EXPECT_TRUE(told.empty());
}

TEST_F(PropertyTest, AssigningAPropertyTakesItsValue) {
    owner.Size = owner.Other;
    EXPECT_EQ(owner.Size(), 7);
    EXPECT_THAT(told, ElementsAre("watcher sees 7", "reaction"));
}

TEST_F(PropertyTest, AQuietChangeRunsNoReaction) {
    EXPECT_TRUE(owner.Size.SetQuietly(2));
    EXPECT_FALSE(owner.Size.SetQuietly(2));
    EXPECT_THAT(told, ElementsAre("watcher sees 2"));
}

TEST_F(PropertyTest, ARefusedValueChangesNothing) {
    owner.Size.SetGuard([](int size) {
        if (size < 0) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    });
    EXPECT_EQ(ErrorOf([&] { owner.Size = -1; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { owner.Size.SetQuietly(-1); }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(owner.Size(), 1);
    EXPECT_TRUE(told.empty());
}

TEST_F(PropertyTest, AReactionMayAssignAgain) {
    owner.Size.OnChange([this] {
        if (owner.Size < 3) owner.Size = owner.Size + 1;
    });
    owner.Size = 2;
    EXPECT_EQ(owner.Size(), 3);
}

TEST(EventTest, RunsItsHandlersInTheOrderOfConnecting) {
    Event<int> event;
    std::vector<int> seen;
    event.Connect([&](int value) { seen.push_back(value); });
    event.Connect([&](int value) { seen.push_back(value * 10); });
    event(3);
    EXPECT_THAT(seen, ElementsAre(3, 30));
}

TEST(EventTest, AnErrorInAHandlerReachesTheCallerAndKeepsLaterOnesFromRunning) {
    Event<> event;
    bool later = false;
    event.Connect([] { throw RunTimeError(ErrorNumber::Overflow); });
    event.Connect([&] { later = true; });
    EXPECT_EQ(ErrorOf([&] { event(); }), ErrorNumber::Overflow);
    EXPECT_FALSE(later);
}

} // namespace
} // namespace mirelle
