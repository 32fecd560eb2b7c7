#include "image/picture/PixelVector.h"

#include <sys/mman.h>

namespace keltavlo {

namespace {

constexpr std::size_t pageSize = 4096;
constexpr std::size_t largeMemory = 4 << 20; // two of the processor's large pages

} // namespace

void PreferLargePages(void* memory, std::size_t bytes) noexcept {
    if (bytes < largeMemory || !std::align(pageSize, pageSize, memory, bytes)) return;
    // This is only advice; a system that does not support it works as before.
    static_cast<void>(madvise(memory, bytes, MADV_HUGEPAGE));
}

} // namespace keltavlo
