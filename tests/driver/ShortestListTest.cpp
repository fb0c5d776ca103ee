#include "tests/driver/random/ShortestList.h"

#include <gmock/gmock.h>

namespace mirelle::driver {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

EventList Numbers(int count) {
    EventList events;
    for (int i = 0; i < count; ++i)
        events.push_back(std::to_string(i));
    return events;
}

bool Has(const EventList& events, const std::string& event) {
    return std::ranges::find(events, event) != events.end();
}

TEST(ShortestFailing, KeepsWhatIsNeededInItsOrder) {
    const auto fails = [](const EventList& events) { return Has(events, "3") && Has(events, "77"); };
    EXPECT_THAT(ShortestFailing(Numbers(100), fails, 1000), ElementsAre("3", "77"));
}

TEST(ShortestFailing, FindsASingleEventAtEitherEnd) {
    EXPECT_THAT(ShortestFailing(
                    Numbers(37), [](const EventList& e) { return Has(e, "0"); }, 1000),
                ElementsAre("0"));
    EXPECT_THAT(ShortestFailing(
                    Numbers(37), [](const EventList& e) { return Has(e, "36"); }, 1000),
                ElementsAre("36"));
}

TEST(ShortestFailing, MayFindThatNoEventIsNeeded) {
    EXPECT_THAT(ShortestFailing(
                    Numbers(9), [](const EventList&) { return true; }, 1000),
                IsEmpty());
}

TEST(ShortestFailing, LeavesAListOfWhichAllIsNeeded) {
    EXPECT_THAT(ShortestFailing(
                    Numbers(6), [](const EventList& e) { return e.size() == 6; }, 1000),
                SizeIs(6));
}

TEST(ShortestFailing, StopsAfterItsAttemptsWithAListThatFails) {
    int attempts = 0;
    const auto fails = [&](const EventList& events) {
        ++attempts;
        return Has(events, "50");
    };
    const EventList shortened = ShortestFailing(Numbers(100), fails, 3);
    EXPECT_EQ(attempts, 3);
    EXPECT_TRUE(Has(shortened, "50"));
}

} // namespace
} // namespace mirelle::driver
