#pragma once

#include <atomic>
#include <cstddef>
#include <new>

namespace keltavlo {

// Steps of the operating system and of the memory. A large allocation takes 64 KiB or more.
enum class Step { read, write, shortWrite, flush, rename, allocation, largeAllocation };

// While it lives, one step of this thread fails the `first`-th time, and each later time too when it lasts.
class Fault {
public:
    Fault(Step failingStep, unsigned firstTime, bool lasts)
        : step(failingStep), first(firstTime), lasting(lasts) {
        current = this;
    }
    ~Fault() { current = nullptr; }

    static bool Hits(Step step) noexcept;
    bool HasHit() const { return count >= first; }
    unsigned GetCount() const { return count; } // of such steps so far

private:
    static inline thread_local Fault* current = nullptr;
    Step step;
    unsigned first;
    bool lasting;
    unsigned count = 0;
};

struct FaultOutcome {
    bool wasHit, ranOutOfMemory;
};

// Whether the action met the fault and left by an exception.
template <class Action>
FaultOutcome RunWithFault(Step step, unsigned first, bool lasting, Action action) {
    const Fault fault(step, first, lasting);
    try {
        action();
    } catch (const std::bad_alloc&) {
        return {fault.HasHit(), true};
    }
    return {fault.HasHit(), false};
}

// AddressSanitizer's allocations cannot fail.
#ifdef __SANITIZE_ADDRESS__
inline constexpr bool allocationsCanFail = false;
#else
inline constexpr bool allocationsCanFail = true;
#endif

extern std::atomic<std::ptrdiff_t> liveAllocations;

} // namespace keltavlo
