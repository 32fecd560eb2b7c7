#include "image/picture/PixelVector.h"

#include <cstdint>
#include <sys/mman.h>

namespace {

constexpr std::uintptr_t pageSize = 4096;
constexpr std::size_t largeMemory = 4 << 20; // two of the processor's large pages

} // namespace

void PreferLargePages(void* memory, std::size_t bytes) noexcept {
    if (bytes < largeMemory) return;
    const std::uintptr_t begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t firstPage = (begin + pageSize - 1) / pageSize * pageSize;
    const std::uintptr_t end = (begin + bytes) / pageSize * pageSize;
    // No more than advice: a system that does not know it goes on as ever.
    static_cast<void>(madvise(reinterpret_cast<void*>(firstPage), end - firstPage, MADV_HUGEPAGE));
}
