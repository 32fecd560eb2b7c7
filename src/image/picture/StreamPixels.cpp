#include "image/picture/StreamPixels.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>

#endif

namespace keltavlo {

#ifdef __SSE2__

namespace {

constexpr std::size_t vectorPixels = 4;
constexpr std::size_t lineVectors = 4; // a cache line is written as a whole

std::size_t PixelsToAlignment(const Color* target) {
    const auto misaligned =
        reinterpret_cast<std::uintptr_t>(target) / sizeof(Color) % (vectorPixels * lineVectors);
    return misaligned == 0 ? 0 : vectorPixels * lineVectors - misaligned;
}

} // namespace

void StreamPixels(const Color* source, Color* target, std::size_t count) {
    const std::size_t head = std::min(PixelsToAlignment(target), count);
    std::copy_n(source, head, target);
    std::size_t done = head;
    for (; done + vectorPixels * lineVectors <= count; done += vectorPixels * lineVectors) {
        const auto* from = reinterpret_cast<const __m128i*>(source + done);
        auto* to = reinterpret_cast<__m128i*>(target + done);
        for (std::size_t i = 0; i < lineVectors; ++i) _mm_stream_si128(to + i, _mm_loadu_si128(from + i));
    }
    std::copy(source + done, source + count, target + done);
}

#else

void StreamPixels(const Color* source, Color* target, std::size_t count) {
    std::copy_n(source, count, target);
}

#endif

} // namespace keltavlo
