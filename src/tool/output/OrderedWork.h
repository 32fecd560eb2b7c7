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

// Returns the number of threads for `jobs`, where 0 means one per core.
unsigned ThreadCount(unsigned jobs);

// Spreads work over threads and takes the results in order. Calls `work` for the numbers from 0 to `count` -
// 1 in up to `threadCount` threads, and `take` for each result, in order, in the calling thread. At most
// `window` results wait at a time. If `take` returns false, no further work begins. With a single thread,
// everything runs in the calling one; otherwise, `pause`, if given, runs there each time that it would wait
// for the next result. Throws what a function throws, after all threads have ended.
template <class Result>
class OrderedWork {
public:
    using Work = std::function<Result(std::size_t)>;
    using Take = std::function<bool(std::size_t, Result)>;
    using Pause = std::function<void()>;

    OrderedWork(std::size_t workCount, std::size_t windowSize, Work workFunction)
        : count(workCount), window(std::max<std::size_t>(1, std::min(workCount, windowSize))),
          work(std::move(workFunction)), results(window) {}

    void Run(unsigned threadCount, const Take& take, const Pause& pause = nullptr) {
        if (threadCount <= 1 || count <= 1) {
            for (std::size_t i = 0; i < count && take(i, work(i));) ++i;
            return;
        }
        std::vector<std::jthread> threads;
        const Ending ending{*this}; // destroyed before the threads are joined
        for (unsigned i = 0; i < threadCount && i < count; ++i) threads.emplace_back([this] { WorkOn(); });
        for (std::size_t i = 0; i < count && take(i, Await(i, pause));) ++i;
    }

private:
    // Ends the threads even if an exception is thrown.
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
        if (pause && !isThere()) {
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
    std::mutex mutex; // for all members below
    std::condition_variable changed;
    std::vector<Slot> results; // the result of number i is at i % window
    std::size_t next = 0;      // first number that no thread has begun
    std::size_t taken = 0;     // number of results taken
    bool ended = false;
};

} // namespace keltavlo
