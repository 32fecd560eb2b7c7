#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace keltavlo {

// The number of threads for `jobs`, where 0 means one on each core.
unsigned ThreadCount(unsigned jobs);

// Spreads work over threads and takes its results in order: `work` runs for the numbers from 0 to `count` - 1
// in up to `threadCount` threads, `take` in the calling thread for each result, in the order of the numbers.
// At most `window` results wait at a time. When `take` returns false, no further work begins. With a single
// thread everything runs in the calling one. Otherwise `pause` runs in the calling thread each time that it
// would wait for the next result. Throws what a function throws, after all threads ended.
template <class Result>
class OrderedWork {
public:
    using Work = std::function<Result(std::size_t)>;
    using Take = std::function<bool(std::size_t, Result)>;
    using Pause = std::function<void()>;

    OrderedWork(std::size_t workCount, std::size_t windowSize, Work workFunction)
        : count(workCount), window(std::max<std::size_t>(1, std::min(workCount, windowSize))),
          work(std::move(workFunction)), results(window) {}

    void Run(unsigned threadCount, const Take& take, const Pause& pause = [] {}) {
        if (threadCount <= 1 || count <= 1) {
            for (std::size_t i = 0; i < count && take(i, work(i));) ++i;
            return;
        }
        std::vector<std::jthread> threads;
        const Ending ending{*this}; // before the threads are joined
        for (unsigned i = 0; i < threadCount && i < count; ++i) threads.emplace_back([this] { WorkOn(); });
        for (std::size_t i = 0; i < count && take(i, Await(i, pause));) ++i;
    }

private:
    // Lets the threads end, whatever happens.
    struct Ending {
        OrderedWork& owner;
        ~Ending() {
            const std::lock_guard lock(owner.mutex);
            owner.ended = true;
            owner.changed.notify_all();
        }
    };
    struct Slot {
        std::optional<Result> result;
        std::exception_ptr failure;
    };

    void WorkOn() {
        for (;;) {
            std::unique_lock lock(mutex);
            changed.wait(lock, [this] { return ended || next == count || next < taken + window; });
            if (ended || next == count) return;
            const std::size_t i = next++;
            lock.unlock();
            std::optional<Result> result;
            std::exception_ptr failure;
            try {
                result.emplace(work(i));
            } catch (...) {
                failure = std::current_exception();
            }
            lock.lock();
            Slot& slot = results[i % window];
            if (result) slot.result.emplace(std::move(*result));
            slot.failure = failure;
            if (i == taken) changed.notify_all();
        }
    }

    Result Await(std::size_t i, const Pause& pause) {
        std::unique_lock lock(mutex);
        Slot& slot = results[i % window];
        const auto isThere = [&] { return slot.result || slot.failure; };
        if (!isThere()) {
            lock.unlock();
            pause();
            lock.lock();
        }
        changed.wait(lock, isThere);
        if (slot.failure) std::rethrow_exception(slot.failure);
        Result result(std::move(*slot.result));
        slot.result.reset();
        taken = i + 1;
        changed.notify_all();
        return result;
    }

    const std::size_t count, window;
    const Work work;
    std::mutex mutex; // of all below
    std::condition_variable changed;
    std::vector<Slot> results; // of number i at i % window
    std::size_t next = 0;      // number that no thread has begun
    std::size_t taken = 0;     // results taken
    bool ended = false;
};

} // namespace keltavlo
