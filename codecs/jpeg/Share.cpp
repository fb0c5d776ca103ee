#include "codecs/jpeg/Share.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace mirelle::jpeg {
namespace {

constexpr std::size_t kMostThreads = 16;
constexpr std::size_t kMostSlices = 4 * kMostThreads;

std::size_t ThreadCount() {
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kMostThreads);
}

// The slices that are still to be done, and the first error.
class Queue {
public:
    Queue(std::size_t slices, const std::function<void(std::size_t)>& work) : slices_(slices), work_(work) {}

    void RunUntilEmpty() noexcept {
        for (std::size_t slice = next_++; slice < slices_; slice = next_++) {
            try {
                work_(slice);
            } catch (...) {
                const std::lock_guard lock(mutex_);
                if (!error_) error_ = std::current_exception();
                next_ = slices_;
            }
        }
    }

    void Rethrow() const {
        if (error_) std::rethrow_exception(error_);
    }

private:
    std::size_t slices_;
    const std::function<void(std::size_t)>& work_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::exception_ptr error_;
};

} // namespace

Slices::Slices(std::size_t count, std::size_t shortest)
    : count_(count), number_(std::clamp<std::size_t>(count / shortest, 1, kMostSlices)) {}

void RunShared(const Slices& slices, const std::function<void(std::size_t)>& work) {
    Queue queue(slices.Number(), work);
    {
        std::vector<std::jthread> threads;
        const std::size_t helpers = std::min(ThreadCount(), slices.Number()) - 1;
        // Where no thread or no memory for one is to be had, those that there are do the work of all.
        try {
            threads.reserve(helpers);
            while (threads.size() < helpers)
                threads.emplace_back([&queue] { queue.RunUntilEmpty(); });
        } catch (const std::system_error&) {
        } catch (const std::bad_alloc&) {
        }
        queue.RunUntilEmpty();
    }
    queue.Rethrow();
}

} // namespace mirelle::jpeg
