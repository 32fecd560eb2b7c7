#include "framework/core/MemoryReserve.h"

#include <atomic>
#include <new>
#include <sys/mman.h>

namespace keltavlo {

namespace {

constexpr std::size_t reserveSize = 16 << 20; // bytes

std::atomic<void*> reserve = nullptr; // the toolkit has threads that allocate too

void GiveUpReserve() {
    void* const memory = reserve.exchange(nullptr);
    if (!memory) throw std::bad_alloc();
    munmap(memory, reserveSize);
}

} // namespace

// Straight from the system, which gets it back at once for whatever asks next. Memory never touched costs
// nothing.
void KeepMemoryReserve() noexcept {
    std::set_new_handler(GiveUpReserve);
    if (reserve) return;
    void* const memory =
        mmap(nullptr, reserveSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory != MAP_FAILED) reserve = memory;
}

} // namespace keltavlo
