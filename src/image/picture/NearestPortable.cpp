#include "image/picture/NearestKernels.h"
#include "image/picture/NearestTables.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr std::size_t laneCount = NearestCandidates::laneCount;
constexpr int channelShifts[] = {0, 8, 16};

int ChannelDifference(Color left, Color right, int shift) {
    return static_cast<int>(left >> shift & 0xFF) - static_cast<int>(right >> shift & 0xFF);
}

std::size_t Measure(std::span<NearestCandidates> candidates, Color middle) {
    std::int32_t nearest = NearestCandidates::far;
    std::size_t nearestPlace = 0;
    for (std::size_t place = 0; place < candidates.size() * laneCount; ++place) {
        NearestCandidates& group = candidates[place / laneCount];
        const std::size_t lane = place % laneCount;
        std::int32_t distance = group.alphaDistances[lane];
        for (const int shift : channelShifts) {
            const int difference = ChannelDifference(group.colors[lane], middle, shift);
            distance += difference * difference;
        }
        group.distances[lane] = distance;
        group.left = NearestCandidates::allLanes;
        if (distance >= nearest) continue;
        nearest = distance;
        nearestPlace = place;
    }
    return nearestPlace;
}

// Returns by how much, at most, one entry's distance less another's falls between the middle of the box and
// its sides. `difference` is that of the two entries in one channel.
int LargestGain(int difference, int half) {
    return std::max(2 * (half - 1) * difference, -2 * half * difference);
}

void TakeOutBeaten(std::span<NearestCandidates> candidates, std::size_t place, int half) {
    const NearestCandidates& winners = candidates[place / laneCount];
    const std::size_t winner = place % laneCount;
    for (NearestCandidates& group : candidates) {
        for (std::size_t lane = 0; lane < laneCount; ++lane) {
            std::int32_t reach = winners.distances[winner];
            for (const int shift : channelShifts) {
                reach +=
                    LargestGain(ChannelDifference(group.colors[lane], winners.colors[winner], shift), half);
            }
            // If both are equally near, the earlier one wins.
            const bool isLater = group.indices[lane] > winners.indices[winner];
            if (group.distances[lane] > reach || (group.distances[lane] == reach && isLater))
                group.left &= ~(1U << lane);
        }
    }
}

// The best lane so far.
struct Best {
    int score = 0x10000;
    std::size_t index = 0;

    void Look(const NearestBlock& block, std::uint32_t offsets) {
        const int blue = static_cast<int>(Blue(offsets));
        const int green = static_cast<int>(Green(offsets));
        const int red = static_cast<int>(Red(offsets));
        for (std::size_t lane = 0; lane < block.bases.size(); ++lane) {
            const int products = blue * block.blueGreen[2 * lane] + green * block.blueGreen[2 * lane + 1] +
                                 red * block.red[2 * lane];
            const int laneScore = block.bases[lane] - products;
            if (laneScore >= score) continue;
            score = laneScore;
            index = block.indices[lane];
        }
    }
};

std::size_t FindIndex(NearestTables& tables, Color color) {
    if (!tables.IsInGrid(color)) return tables.list.FindNearestIndex(color);
    const std::size_t cell = NearestGrid::CellOf(color);
    const std::uint32_t offsets = NearestGrid::DoubledOffsets(color);
    const std::span<const NearestBlock> further = tables.grid.FurtherBlocks(cell);
    Best best;
    best.Look(tables.grid.FirstBlock(cell), offsets);
    for (const NearestBlock& block : further) best.Look(block, offsets);
    return best.index;
}

void FindIndices(NearestTables& tables, std::span<const Color> pixels, std::uint8_t* indices) {
    std::ranges::transform(pixels, indices,
                           [&](Color color) { return static_cast<std::uint8_t>(FindIndex(tables, color)); });
}

void Replace(NearestTables& tables, std::span<Color> pixels) {
    for (Color& pixel : pixels) pixel = tables.list.Colors()[FindIndex(tables, pixel)];
}

// One channel along a row: the wanted value of the pixel, unclamped, and the error of the last pixel.
struct ChannelError {
    int wanted = 0;
    int error = 0;

    std::uint32_t Add(std::uint32_t channel) {
        wanted = static_cast<int>(channel) + error;
        return static_cast<std::uint32_t>(std::clamp(wanted, 0, 255));
    }

    // Carries on what exceeds the range from 0 to 255 as well.
    void Take(std::uint32_t channel) { error = wanted - static_cast<int>(channel); }
};

void DiffuseRow(NearestTables& tables, std::span<Color> row) {
    ChannelError red;
    ChannelError green;
    ChannelError blue;
    for (Color& pixel : row) {
        const Color sought =
            Compose(red.Add(Red(pixel)), green.Add(Green(pixel)), blue.Add(Blue(pixel)), Alpha(pixel));
        pixel = tables.list.Colors()[FindIndex(tables, sought)];
        red.Take(Red(pixel));
        green.Take(Green(pixel));
        blue.Take(Blue(pixel));
    }
}

void Diffuse(NearestTables& tables, std::span<Color> pixels, std::size_t width) {
    for (; !pixels.empty(); pixels = pixels.subspan(width)) DiffuseRow(tables, pixels.first(width));
}

} // namespace

const NearestKernels portableNearestKernels{
    ProcessorFeature::none, Measure, TakeOutBeaten, FindIndex, FindIndices, Replace, Diffuse};

} // namespace keltavlo
