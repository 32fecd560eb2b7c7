#include "image/picture/HalfSize.h"

#include <algorithm>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace keltavlo {

namespace {

#if defined(__x86_64__)

// For all vectors: the processor's average of two bytes rounds up. The average of the averages is one too
// large exactly if any of the three was rounded, which the lowest bits of the differences show.

__m128i FloorOfMean(__m128i first, __m128i second, __m128i third, __m128i fourth) {
    const __m128i upper = _mm_avg_epu8(first, second);
    const __m128i lower = _mm_avg_epu8(third, fourth);
    const __m128i halves = _mm_or_si128(_mm_xor_si128(first, second), _mm_xor_si128(third, fourth));
    const __m128i differences = _mm_or_si128(halves, _mm_xor_si128(upper, lower));
    return _mm_sub_epi8(_mm_avg_epu8(upper, lower), _mm_and_si128(differences, _mm_set1_epi8(1)));
}

[[gnu::target("avx2")]] inline __m256i FloorOfMean(__m256i first, __m256i second, __m256i third,
                                                   __m256i fourth) {
    const __m256i upper = _mm256_avg_epu8(first, second);
    const __m256i lower = _mm256_avg_epu8(third, fourth);
    const __m256i halves = _mm256_or_si256(_mm256_xor_si256(first, second), _mm256_xor_si256(third, fourth));
    const __m256i differences = _mm256_or_si256(halves, _mm256_xor_si256(upper, lower));
    return _mm256_sub_epi8(_mm256_avg_epu8(upper, lower), _mm256_and_si256(differences, _mm256_set1_epi8(1)));
}

[[gnu::target("avx512f,avx512bw")]] inline __m512i FloorOfMean(__m512i first, __m512i second, __m512i third,
                                                               __m512i fourth) {
    constexpr int orDifference = 0xF6; // the first or the difference of the others
    const __m512i upper = _mm512_avg_epu8(first, second);
    const __m512i lower = _mm512_avg_epu8(third, fourth);
    const __m512i halves =
        _mm512_ternarylogic_epi32(_mm512_xor_si512(first, second), third, fourth, orDifference);
    const __m512i differences = _mm512_ternarylogic_epi32(halves, upper, lower, orDifference);
    return _mm512_sub_epi8(_mm512_avg_epu8(upper, lower), _mm512_and_si512(differences, _mm512_set1_epi8(1)));
}

// The even and odd columns of eight pixels.
struct Columns {
    explicit Columns(const Color* pixels) {
        const __m128 left = _mm_loadu_ps(reinterpret_cast<const float*>(pixels));
        const __m128 right = _mm_loadu_ps(reinterpret_cast<const float*>(pixels + 4));
        even = _mm_castps_si128(_mm_shuffle_ps(left, right, _MM_SHUFFLE(2, 0, 2, 0)));
        odd = _mm_castps_si128(_mm_shuffle_ps(left, right, _MM_SHUFFLE(3, 1, 3, 1)));
    }

    __m128i even;
    __m128i odd;
};

// The even and odd columns of sixteen pixels, in the order 0 to 3, 8 to 11, 4 to 7, 12 to 15.
struct WideColumns {
    [[gnu::target("avx2")]] explicit WideColumns(const Color* pixels) {
        const __m256 left = _mm256_loadu_ps(reinterpret_cast<const float*>(pixels));
        const __m256 right = _mm256_loadu_ps(reinterpret_cast<const float*>(pixels + 8));
        even = _mm256_castps_si256(_mm256_shuffle_ps(left, right, _MM_SHUFFLE(2, 0, 2, 0)));
        odd = _mm256_castps_si256(_mm256_shuffle_ps(left, right, _MM_SHUFFLE(3, 1, 3, 1)));
    }

    __m256i even;
    __m256i odd;
};

// The even and odd columns of 32 pixels.
struct WidestColumns {
    [[gnu::target("avx512f,avx512bw")]] explicit WidestColumns(const Color* pixels) {
        const __m512i left = _mm512_loadu_si512(pixels);
        const __m512i right = _mm512_loadu_si512(pixels + 16);
        const __m512i evens = _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
        even = _mm512_permutex2var_epi32(left, evens, right);
        odd = _mm512_permutex2var_epi32(left, _mm512_add_epi32(evens, _mm512_set1_epi32(1)), right);
    }

    __m512i even;
    __m512i odd;
};

// These functions fill the output columns of all rows as far as whole vectors reach and return the column
// they stopped at.

std::size_t HalveByEights(const RowPairs& rows, std::size_t firstColumn) {
    const std::size_t end = rows.width / 8 * 4;
    for (std::size_t pair = 0; firstColumn < end && pair < rows.count; ++pair) {
        const Color* upper = rows.Upper(pair);
        const Color* lower = rows.Lower(pair);
        Color* output = rows.Output(pair);
        for (std::size_t i = firstColumn; i < end; i += 4) {
            const Columns above(upper + 2 * i);
            const Columns below(lower + 2 * i);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(output + i),
                             FloorOfMean(above.even, above.odd, below.even, below.odd));
        }
    }
    return end;
}

[[gnu::target("avx2")]] std::size_t HalveBySixteens(const RowPairs& rows) {
    const std::size_t end = rows.width / 16 * 8;
    for (std::size_t pair = 0; pair < rows.count; ++pair) {
        const Color* upper = rows.Upper(pair);
        const Color* lower = rows.Lower(pair);
        Color* output = rows.Output(pair);
        for (std::size_t i = 0; i < end; i += 8) {
            const WideColumns above(upper + 2 * i);
            const WideColumns below(lower + 2 * i);
            const __m256i means = FloorOfMean(above.even, above.odd, below.even, below.odd);
            _mm256_storeu_si256(reinterpret_cast<__m256i*>(output + i),
                                _mm256_permute4x64_epi64(means, _MM_SHUFFLE(3, 1, 2, 0)));
        }
    }
    return end;
}

// Returns after how many output columns, at least 1, the row's input reaches the next cache line. Loads that
// cross lines would make these vectors slower than the narrower ones.
std::size_t ColumnsToAlignment(const Color* row) {
    constexpr std::size_t linePixels = 16;
    return (linePixels - reinterpret_cast<std::uintptr_t>(row) / sizeof(Color) % linePixels + 1) / 2;
}

// The second vector and the last one overlap those before them.
[[gnu::target("avx512f,avx512bw")]] std::size_t HalveByThirtyTwos(const RowPairs& rows) {
    constexpr std::size_t step = 16;
    const std::size_t end = rows.width / 2;
    if (end < step) return 0;
    for (std::size_t pair = 0; pair < rows.count; ++pair) {
        const Color* upper = rows.Upper(pair);
        const Color* lower = rows.Lower(pair);
        std::size_t next = ColumnsToAlignment(upper);
        for (std::size_t column = 0; column < end; column = next, next += step) {
            const std::size_t i = std::min(column, end - step);
            const WidestColumns above(upper + 2 * i);
            const WidestColumns below(lower + 2 * i);
            _mm512_storeu_si512(rows.Output(pair) + i,
                                FloorOfMean(above.even, above.odd, below.even, below.odd));
        }
    }
    return end;
}

constexpr HalfSizeKernels narrowKernels{ProcessorFeature::none,
                                        [](const RowPairs& rows) { return HalveByEights(rows, 0); }};
// The narrow vectors fill the columns that wider ones leave.
constexpr HalfSizeKernels wideKernels{
    ProcessorFeature::avx2, [](const RowPairs& rows) { return HalveByEights(rows, HalveBySixteens(rows)); }};
constexpr HalfSizeKernels widestKernels{ProcessorFeature::avx512Vbmi, [](const RowPairs& rows) {
                                            return HalveByEights(rows, HalveByThirtyTwos(rows));
                                        }};

#else

constexpr HalfSizeKernels singleKernels{ProcessorFeature::none,
                                        [](const RowPairs&) { return std::size_t{0}; }};

#endif

// Fills the rest pixel by pixel, starting with the given output column.
void HalveSingly(const RowPairs& rows, std::size_t firstColumn) {
    const std::size_t blocks = rows.width / 2;
    const bool isOdd = rows.width % 2 != 0;
    for (std::size_t pair = 0; (firstColumn < blocks || isOdd) && pair < rows.count; ++pair) {
        const Color* upper = rows.Upper(pair);
        const Color* lower = rows.Lower(pair);
        Color* output = rows.Output(pair);
        for (std::size_t i = firstColumn; i < blocks; ++i) {
            output[i] = Average4(upper[2 * i], upper[2 * i + 1], lower[2 * i], lower[2 * i + 1]);
        }
        if (isOdd) output[blocks] = Average2(upper[rows.width - 1], lower[rows.width - 1]);
    }
}

} // namespace

std::vector<const HalfSizeKernels*> HalfSizeKernels::All() {
#if defined(__x86_64__)
    return {&narrowKernels, &wideKernels, &widestKernels};
#else
    return {&singleKernels};
#endif
}

void HalveRowPairs(const RowPairs& rows, const HalfSizeKernels& kernels) {
    HalveSingly(rows, kernels.halve(rows));
}

} // namespace keltavlo
