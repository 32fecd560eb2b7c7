#include "image/picture/NearestKernels.h"

#if defined(__x86_64__)

#include "image/picture/NearestTables.h"

#include <algorithm>
#include <immintrin.h>
#include <limits>

#endif

namespace keltavlo {

#if defined(__x86_64__)

namespace {

template <typename Lanes>
[[gnu::target("avx2")]] inline __m256i Load(const Lanes& lanes) {
    return _mm256_load_si256(reinterpret_cast<const __m256i*>(lanes.data()));
}

[[gnu::target("avx2")]] inline std::int32_t Least(__m256i values) {
    __m128i least = _mm_min_epi32(_mm256_castsi256_si128(values), _mm256_extracti128_si256(values, 1));
    least = _mm_min_epi32(least, _mm_shuffle_epi32(least, _MM_SHUFFLE(1, 0, 3, 2)));
    least = _mm_min_epi32(least, _mm_shuffle_epi32(least, _MM_SHUFFLE(2, 3, 0, 1)));
    return _mm_cvtsi128_si32(least);
}

// The differences of eight colors from another one, 16 bits per channel.
struct Differences {
    __m256i blueRed;
    // Every second value is zero.
    __m256i green;

    [[gnu::target("avx2")]] Differences(const NearestCandidates& candidates, Color color) {
        const __m256i colors = Load(candidates.colors);
        const __m256i other = _mm256_set1_epi32(static_cast<int>(color));
        blueRed = _mm256_sub_epi16(BlueRed(colors), BlueRed(other));
        green = _mm256_sub_epi16(Green(colors), Green(other));
    }

private:
    [[gnu::target("avx2")]] static __m256i BlueRed(__m256i colors) {
        return _mm256_and_si256(colors, _mm256_set1_epi32(0x00FF00FF));
    }
    [[gnu::target("avx2")]] static __m256i Green(__m256i colors) {
        return _mm256_and_si256(_mm256_srli_epi32(colors, 8), _mm256_set1_epi32(0xFF));
    }
};

[[gnu::target("avx2")]] std::size_t Measure(std::span<NearestCandidates> candidates, Color middle) {
    __m256i nearest = _mm256_set1_epi32(NearestCandidates::far);
    __m256i places = _mm256_setzero_si256();
    __m256i place = _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7);
    for (NearestCandidates& group : candidates) {
        const Differences from(group, middle);
        const __m256i squares = _mm256_add_epi32(_mm256_madd_epi16(from.blueRed, from.blueRed),
                                                 _mm256_madd_epi16(from.green, from.green));
        const __m256i distances = _mm256_add_epi32(squares, Load(group.alphaDistances));
        _mm256_store_si256(reinterpret_cast<__m256i*>(group.distances.data()), distances);
        group.left = NearestCandidates::allLanes;
        places = _mm256_blendv_epi8(places, place, _mm256_cmpgt_epi32(nearest, distances));
        nearest = _mm256_min_epi32(nearest, distances);
        place = _mm256_add_epi32(place, _mm256_set1_epi32(NearestCandidates::laneCount));
    }
    const __m256i isNearest = _mm256_cmpeq_epi32(nearest, _mm256_set1_epi32(Least(nearest)));
    const __m256i none = _mm256_set1_epi32(std::numeric_limits<std::int32_t>::max());
    return static_cast<std::size_t>(Least(_mm256_blendv_epi8(none, places, isNearest)));
}

[[gnu::target("avx2")]] void TakeOutBeaten(std::span<NearestCandidates> candidates, std::size_t place,
                                           int half) {
    const NearestCandidates& winners = candidates[place / NearestCandidates::laneCount];
    const std::size_t lane = place % NearestCandidates::laneCount;
    const Color color = winners.colors[lane];
    const __m256i distance = _mm256_set1_epi32(winners.distances[lane]);
    const __m256i index = _mm256_set1_epi32(static_cast<int>(winners.indices[lane]));
    const __m256i up = _mm256_set1_epi16(static_cast<short>(2 * (half - 1)));
    const __m256i down = _mm256_set1_epi16(static_cast<short>(-2 * half));
    const auto largestGain = [=](__m256i differences) __attribute__((target("avx2"))) {
        return _mm256_max_epi16(_mm256_mullo_epi16(differences, up), _mm256_mullo_epi16(differences, down));
    };
    for (NearestCandidates& group : candidates) {
        const Differences from(group, color);
        const __m256i gains = _mm256_add_epi16(largestGain(from.blueRed), largestGain(from.green));
        const __m256i reach = _mm256_add_epi32(distance, _mm256_madd_epi16(gains, _mm256_set1_epi16(1)));
        // -1 if a tie goes to the other entry.
        const __m256i isLater = _mm256_cmpgt_epi32(Load(group.indices), index);
        const __m256i isBeaten = _mm256_cmpgt_epi32(Load(group.distances), _mm256_add_epi32(reach, isLater));
        group.left &= ~static_cast<std::uint32_t>(_mm256_movemask_ps(_mm256_castsi256_ps(isBeaten)));
    }
}

// A color's doubled offsets, eight times.
struct Offsets {
    __m128i blueGreen;
    __m128i red;

    [[gnu::target("avx2")]] explicit Offsets(Color color) {
        const __m128i offsets = _mm_cvtsi32_si128(static_cast<int>(NearestGrid::DoubledOffsets(color)));
        blueGreen = _mm_broadcastw_epi16(offsets);
        red = _mm_shuffle_epi8(offsets, _mm_set1_epi16(static_cast<short>(0xFF02)));
    }
};

// Returns the lowest score of a block in the low 16 bits and the first lane with that score above them.
[[gnu::target("avx2")]] inline std::uint32_t BestLane(const NearestBlock& block, const Offsets& offsets) {
    const auto load = [](const auto& lanes) __attribute__((target("avx2"))) {
        return _mm_load_si128(reinterpret_cast<const __m128i*>(lanes.data()));
    };
    const __m128i blueGreen = _mm_maddubs_epi16(offsets.blueGreen, load(block.blueGreen));
    const __m128i red = _mm_maddubs_epi16(offsets.red, load(block.red));
    const __m128i scores = _mm_sub_epi16(load(block.bases), _mm_add_epi16(blueGreen, red));
    return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_minpos_epu16(scores)));
}

// For cells that are not filled or have several blocks.
[[gnu::target("avx2"), gnu::noinline]] std::size_t FindInBlocks(NearestGrid& grid, Color color) {
    const Offsets offsets(color);
    const std::size_t cell = NearestGrid::CellOf(color);
    const std::span<const NearestBlock> further = grid.FurtherBlocks(cell);
    const NearestBlock* bestBlock = &grid.FirstBlock(cell);
    std::uint32_t best = BestLane(*bestBlock, offsets);
    for (const NearestBlock& block : further) {
        const std::uint32_t lane = BestLane(block, offsets);
        if ((lane & 0xFFFF) >= (best & 0xFFFF)) continue;
        best = lane;
        bestBlock = &block;
    }
    return bestBlock->indices[best >> 16];
}

// Returns the lowest sum of a base and the products of a color with its group.
[[gnu::target("avx2")]] inline std::int32_t ScanRun(std::span<const NearestScanGroup> groups,
                                                    __m256i blueGreen, __m256i redAlpha) {
    __m256i least = _mm256_set1_epi32(std::numeric_limits<std::int32_t>::max());
#pragma GCC unroll 4
    for (const NearestScanGroup& group : groups) {
        const __m256i products = _mm256_add_epi32(_mm256_madd_epi16(blueGreen, Load(group.blueGreen)),
                                                  _mm256_madd_epi16(redAlpha, Load(group.redAlpha)));
        least = _mm256_min_epi32(least, _mm256_add_epi32(products, Load(group.bases)));
    }
    return Least(least);
}

// Compares a color with the whole list.
[[gnu::target("avx2"), gnu::noinline]] std::size_t Scan(const NearestTables& tables, Color color) {
    constexpr std::size_t groupsInRun = NearestScanGroup::scale / 8;
    constexpr std::int32_t numberMask = NearestScanGroup::scale - 1;
    const auto pair = [color](int lowShift, int highShift) {
        const Color channels = (color >> lowShift & 0xFF) | (color >> highShift & 0xFF) << 16;
        return static_cast<int>(channels * NearestScanGroup::colorScale);
    };
    const __m256i blueGreen = _mm256_set1_epi32(pair(0, 8));
    const __m256i redAlpha = _mm256_set1_epi32(pair(16, 24));
    std::span<const NearestScanGroup> groups = tables.scanGroups;
    std::int32_t best = std::numeric_limits<std::int32_t>::max();
    std::size_t index = 0;
    for (std::size_t first = 0; !groups.empty(); first += NearestScanGroup::scale) {
        const auto run = groups.first(std::min(groupsInRun, groups.size()));
        groups = groups.subspan(run.size());
        const std::int32_t runBest = ScanRun(run, blueGreen, redAlpha);
        // Ignores the numbers in the low bits, because they start again with every run.
        if ((runBest | numberMask) >= (best | numberMask)) continue;
        best = runBest;
        index = first + static_cast<std::size_t>(runBest & numberMask);
    }
    return index;
}

[[gnu::target("avx2")]] inline std::size_t FindIndex(NearestTables& tables, Color color) {
    if (!tables.IsInGrid(color)) return Scan(tables, color);
    const std::size_t cell = NearestGrid::CellOf(color);
    if (!tables.grid.HasOneBlock(cell)) [[unlikely]]
        return FindInBlocks(tables.grid, color);
    const NearestBlock& block = tables.grid.FirstBlock(cell);
    return block.indices[BestLane(block, Offsets(color)) >> 16];
}

[[gnu::target("avx2")]] void FindIndices(NearestTables& tables, std::span<const Color> pixels,
                                         std::uint8_t* indices) {
    for (const Color color : pixels) *indices++ = static_cast<std::uint8_t>(FindIndex(tables, color));
}

[[gnu::target("avx2")]] void Replace(NearestTables& tables, std::span<Color> pixels) {
    const Color* const colors = tables.list.Colors().data();
    for (Color& pixel : pixels) pixel = colors[FindIndex(tables, pixel)];
}

// The number of rows that are diffused side by side: a pixel depends on the one before it but not on
// other rows.
constexpr std::size_t rowsAtOnce = 6;

[[gnu::target("avx2")]] inline __m128i Channels(Color color) {
    return _mm_cvtepu8_epi32(_mm_cvtsi32_si128(static_cast<int>(color)));
}

template <std::size_t rowCount>
[[gnu::target("avx2")]] void DiffuseRows(NearestTables& tables, Color* pixels, std::size_t width) {
    const Color* const colors = tables.list.Colors().data();
    const __m128i carried = _mm_setr_epi32(-1, -1, -1, 0);
    __m128i errors[rowCount];
    for (__m128i& error : errors) error = _mm_setzero_si128();
    for (Color* const end = pixels + width; pixels != end; ++pixels) {
        for (std::size_t row = 0; row < rowCount; ++row) {
            Color& pixel = pixels[row * width];
            const __m128i wanted = _mm_add_epi32(Channels(pixel), errors[row]);
            // Packing clamps the values, first to 16 and then to 8 bits.
            const __m128i words = _mm_packs_epi32(wanted, wanted);
            const int sought = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
            pixel = colors[FindIndex(tables, static_cast<Color>(sought))];
            errors[row] = _mm_and_si128(_mm_sub_epi32(wanted, Channels(pixel)), carried);
        }
    }
}

[[gnu::target("avx2")]] void Diffuse(NearestTables& tables, std::span<Color> pixels, std::size_t width) {
    for (; pixels.size() >= rowsAtOnce * width; pixels = pixels.subspan(rowsAtOnce * width)) {
        DiffuseRows<rowsAtOnce>(tables, pixels.data(), width);
    }
    for (; !pixels.empty(); pixels = pixels.subspan(width)) DiffuseRows<1>(tables, pixels.data(), width);
}

constexpr NearestKernels vectorKernels{
    ProcessorFeature::avx2, Measure, TakeOutBeaten, FindIndex, FindIndices, Replace, Diffuse};

} // namespace

std::vector<const NearestKernels*> NearestKernels::All() {
    return {&portableNearestKernels, &vectorKernels};
}

#else

std::vector<const NearestKernels*> NearestKernels::All() {
    return {&portableNearestKernels};
}

#endif

} // namespace keltavlo
