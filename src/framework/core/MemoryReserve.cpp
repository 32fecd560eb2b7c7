#include "framework/core/MemoryReserve.h"

#include <atomic>
#include <new>
#include <sys/mman.h>

namespace keltavlo {

namespace {

constexpr std::size_t reserveSize = 16 << 20; // bytes; untouched memory costs nothing

std::atomic<void*> reserve = nullptr; // Qt has threads that also allocate

void GiveUpReserve() {
    void* const memory = reserve.exchange(nullptr);
    if (!memory) throw std::bad_alloc();
    munmap(memory, reserveSize);
}

} // namespace

// mmap instead of malloc, because munmap returns the memory to the system at once.
void KeepMemoryReserve() noexcept {
    std::set_new_handler(GiveUpReserve);
    if (reserve) return;
    void* const memory =
        mmap(nullptr, reserveSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory != MAP_FAILED) reserve = memory;
}

} // namespace keltavlo
