// From a list of events that fails to a short one that fails in the same way.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace mirelle::driver {

using EventList = std::vector<std::string>;

// Takes out ever smaller pieces as long as what is left still fails, until no single event can be spared or
// `attempts` lists were tried. `fails` tells whether a list does.
inline EventList ShortestFailing(EventList events, const std::function<bool(const EventList&)>& fails,
                                 int attempts) {
    for (std::size_t length = (events.size() + 1) / 2; length > 0;) {
        bool shortened = false;
        for (std::size_t start = 0; start < events.size() && attempts > 0;) {
            const std::size_t end = std::min(start + length, events.size());
            EventList fewer(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(start));
            fewer.insert(fewer.end(), events.begin() + static_cast<std::ptrdiff_t>(end), events.end());
            --attempts;
            if (fails(fewer)) {
                events = std::move(fewer);
                shortened = true;
            } else {
                start = end;
            }
        }
        if (attempts <= 0) break;
        if (!shortened || length > 1) {
            if (length == 1) break;
            length = (length + 1) / 2;
        }
    }
    return events;
}

} // namespace mirelle::driver
