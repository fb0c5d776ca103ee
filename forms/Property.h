// A property of a control: a value that tells the control when it changes.
//
// Assigning first asks the guard (which raises error 380 for a value that the property refuses), then, if the
// value is another one than before, stores it, tells the control's watchers and runs the reaction (the
// control's own event).
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace mirelle {

// Whoever is told that something to be seen has changed.
class Watched {
public:
    Watched() = default;
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    virtual ~Watched() = default;

    void Watch(std::function<void()> watcher) { watchers_.push_back(std::move(watcher)); }
    void TellWatchers() const {
        for (const auto& watcher : watchers_)
            watcher();
    }

private:
    std::vector<std::function<void()>> watchers_;
};

template <class T>
class Property {
public:
    using Guard = std::function<void(const T&)>;

    explicit Property(Watched& owner, T initial = {}, Guard guard = {})
        : owner_(owner), value_(std::move(initial)), guard_(std::move(guard)) {}
    Property(const Property&) = delete;

    const T& operator()() const { return value_; }
    operator const T&() const { return value_; } // NOLINT(google-explicit-constructor)

    Property& operator=(T value) {
        if (SetQuietly(std::move(value)) && reaction_) reaction_();
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.value_; } // NOLINT(cert-oop54-cpp)

    // Stores and tells the watchers, but runs no reaction. Returns whether the value changed.
    bool SetQuietly(T value) {
        if (guard_) guard_(value);
        if (value == value_) return false;
        value_ = std::move(value);
        owner_.TellWatchers();
        return true;
    }
    void SetGuard(Guard guard) { guard_ = std::move(guard); }
    void OnChange(std::function<void()> reaction) { reaction_ = std::move(reaction); }

private:
    Watched& owner_;
    T value_;
    Guard guard_;
    std::function<void()> reaction_;
};

} // namespace mirelle
