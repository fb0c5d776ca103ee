// An event of a control: handlers connect to it, and calling it runs them in the order of connecting.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace mirelle {

template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }

    void operator()(Args... args) const {
        for (const Handler& handler : handlers_)
            handler(args...);
    }

private:
    std::vector<Handler> handlers_;
};

// What a mouse event tells. Button is 0 for none, 1 left, 2 right; x and y are in the scale of the control.
struct MouseArgs {
    int button = 0;
    int shift = 0;
    float x = 0;
    float y = 0;
};

} // namespace mirelle
