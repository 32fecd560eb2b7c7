#pragma once

#include <atomic>
#include <cstddef>
#include <new>

namespace keltavlo {

// Steps that can fail. A large allocation takes 64 KiB or more.
// The program's own are those that no other library asks for, except the standard library.
enum class Step { read, write, shortWrite, flush, rename, allocation, largeAllocation, ownAllocation };

// While it lives, makes a step fail in any thread the `first`-th time and, if lasting, each later time.
class Fault {
public:
    Fault(Step failingStep, unsigned firstTime, bool lasts)
        : step(failingStep), first(firstTime), lasting(lasts) {
        current = this;
    }
    ~Fault() { current = nullptr; }

    static bool Watches(Step step) noexcept;
    static bool Hits(Step step) noexcept;
    bool HasHit() const { return count >= first; }
    unsigned GetCount() const { return count; } // of such steps so far

private:
    friend class FaultPause;

    static inline std::atomic<Fault*> current = nullptr;
    Step step;
    unsigned first;
    bool lasting;
    std::atomic<unsigned> count = 0;
};

// While it lives, no step fails or is counted.
class FaultPause {
public:
    FaultPause() : paused(Fault::current.exchange(nullptr)) {}
    ~FaultPause() { Fault::current = paused; }

private:
    Fault* paused;
};

struct FaultOutcome {
    bool wasHit, ranOutOfMemory;
};

// Returns whether the action met the fault and whether it threw std::bad_alloc.
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
