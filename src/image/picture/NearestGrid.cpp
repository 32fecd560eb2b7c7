#include "image/picture/NearestGrid.h"

#include "image/picture/ColorList.h"
#include "image/picture/NearestKernels.h"

#include <algorithm>
#include <bit>

namespace keltavlo {

namespace {

constexpr std::size_t laneCount = NearestCandidates::laneCount;

// Calls `use` for every remaining candidate.
template <typename Use>
void ForEachLeft(const std::vector<NearestCandidates>& candidates, Use&& use) {
    for (const NearestCandidates& group : candidates) {
        for (std::uint32_t left = group.left; left != 0; left &= left - 1) {
            use(group, static_cast<std::size_t>(std::countr_zero(left)));
        }
    }
}

// Copies the remaining candidates and returns their number.
std::size_t CopyLeft(const std::vector<NearestCandidates>& candidates,
                     std::vector<NearestCandidates>& survivors) {
    std::size_t count = 0;
    survivors.clear();
    ForEachLeft(candidates, [&](const NearestCandidates& source, std::size_t sourceLane) {
        const std::size_t lane = count++ % laneCount;
        if (lane == 0) survivors.emplace_back();
        NearestCandidates& target = survivors.back();
        target.colors[lane] = source.colors[sourceLane];
        target.indices[lane] = source.indices[sourceLane];
        target.alphaDistances[lane] = source.alphaDistances[sourceLane];
        target.distances[lane] = source.distances[sourceLane];
        target.left |= 1U << lane;
    });
    return count;
}

constexpr int channelShifts[] = {0, 8, 16};

int Channel(Color color, int shift) {
    return static_cast<int>(color >> shift & 0xFF);
}

// Writes the candidates of a cell into one block after another.
class BlockWriter {
public:
    BlockWriter(NearestBlock& firstBlock, std::vector<NearestBlock>& furtherBlocks)
        : block(&firstBlock), further(furtherBlocks) {
        *block = NearestBlock::Empty();
    }

    void Add(Color color, std::uint32_t index, std::int32_t base) {
        if (lane == laneCount) NextBlock();
        block->blueGreen[2 * lane] = Shifted(color, 0);
        block->blueGreen[2 * lane + 1] = Shifted(color, 8);
        block->red[2 * lane] = Shifted(color, 16);
        block->bases[lane] = static_cast<std::uint16_t>(base);
        block->indices[lane] = static_cast<std::uint16_t>(index);
        ++lane;
    }

    std::uint16_t GetBlockCount() const { return blockCount; }

private:
    static std::int8_t Shifted(Color color, int shift) {
        return static_cast<std::int8_t>(Channel(color, shift) - NearestBlock::channelShift);
    }

    void NextBlock() {
        block = &further.emplace_back(NearestBlock::Empty());
        lane = 0;
        ++blockCount;
    }

    NearestBlock* block;
    std::vector<NearestBlock>& further;
    std::size_t lane = 0;
    std::uint16_t blockCount = 1;
};

// Half a bound for the difference between the scores of two candidates of a cell. At the middle, none is
// nearer than the chosen one. A corner is eight steps away in each of three channels, over which the
// difference of two squared distances changes by at most this.
constexpr std::int32_t scoreReach = 2 * 8 * 3 * 255;

// Returns a candidate's score for a cell's origin, less a number that all of the cell's candidates share.
std::int32_t ScoreAtOrigin(Color color, Color origin, std::int32_t alphaDistance) {
    return static_cast<std::int32_t>(ColorDistance(color & ~alphaMask, origin)) + alphaDistance;
}

// Returns the lowest score of a candidate for any color of the cell.
std::int32_t LowestScore(Color color, Color origin, std::int32_t alphaDistance) {
    std::int32_t score = ScoreAtOrigin(color, origin, alphaDistance);
    for (const int shift : channelShifts) {
        score -= 2 * 15 * std::max(0, Channel(color, shift) - NearestBlock::channelShift);
    }
    return score;
}

} // namespace

NearestBlock NearestBlock::Empty() {
    NearestBlock block{};
    block.bases.fill(0xFFFF);
    return block;
}

// A part of the color cube. Half of its side is a power of two.
struct NearestGrid::Box {
    Color origin;
    int half;

    Color Middle() const { return origin + static_cast<Color>(half) * 0x010101; }
    static Box OfCell(std::size_t cell) { return {OriginOf(cell), 8}; }
    static Box OfRegion(std::size_t cell) { return {OriginOf(cell & ~std::size_t{0x111}), 16}; }

private:
    static Color OriginOf(std::size_t cell) {
        const auto bits = static_cast<Color>(cell);
        return (bits & 0xF0) | (bits & 0xF0F) << 12;
    }
};

NearestGrid::NearestGrid(std::span<const Color> list, std::uint32_t alpha, const NearestKernels& useKernels)
    : kernels(useKernels), all((list.size() + laneCount - 1) / laneCount),
      firstBlocks(std::make_unique_for_overwrite<NearestBlock[]>(cellCount)) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        NearestCandidates& group = all[i / laneCount];
        group.colors[i % laneCount] = list[i];
        group.indices[i % laneCount] = static_cast<std::uint32_t>(i);
        group.alphaDistances[i % laneCount] =
            static_cast<std::int32_t>(ColorDistance(list[i] & alphaMask, alpha << 24));
    }
}

std::vector<NearestCandidates>& NearestGrid::RegionOf(std::size_t cell) {
    const std::size_t number = (cell >> 3 & 0x1C0) | (cell >> 2 & 0x38) | (cell >> 1 & 0x7);
    std::vector<NearestCandidates>& region = regions[number];
    if (region.empty()) Prune(all, Box::OfRegion(cell), region);
    return region;
}

// Returns the number of survivors.
std::size_t NearestGrid::Prune(std::vector<NearestCandidates>& candidates, const Box& box,
                               std::vector<NearestCandidates>& survivors) {
    kernels.takeOutBeaten(candidates, kernels.measure(candidates, box.Middle()), box.half);
    return CopyLeft(candidates, survivors);
}

void NearestGrid::PruneByEach(std::vector<NearestCandidates>& candidates, std::size_t count,
                              const Box& box) const {
    for (std::size_t place = 0; place < count; ++place) {
        if ((candidates[place / laneCount].left >> place % laneCount & 1) != 0)
            kernels.takeOutBeaten(candidates, place, box.half);
    }
}

void NearestGrid::Fill(std::size_t cell) {
    const Box box = Box::OfCell(cell);
    const std::size_t count = Prune(RegionOf(cell), box, cellSurvivors);
    if (count > laneCount) PruneByEach(cellSurvivors, count, box);
    StoreBlocks(cell, box);
}

void NearestGrid::StoreBlocks(std::size_t cell, const Box& box) {
    std::int32_t nearest = NearestCandidates::far;
    std::int32_t zero = 0;
    ForEachLeft(cellSurvivors, [&](const NearestCandidates& group, std::size_t lane) {
        if (group.distances[lane] >= nearest) return;
        nearest = group.distances[lane];
        zero = LowestScore(group.colors[lane], box.origin, group.alphaDistances[lane]) - scoreReach;
    });
    furtherStarts[cell] = static_cast<std::uint32_t>(furtherBlocks.size());
    BlockWriter writer(firstBlocks[cell], furtherBlocks);
    ForEachLeft(cellSurvivors, [&](const NearestCandidates& group, std::size_t lane) {
        const Color color = group.colors[lane];
        const std::int32_t score = ScoreAtOrigin(color, box.origin, group.alphaDistances[lane]);
        writer.Add(color, group.indices[lane], score - zero);
    });
    blockCounts[cell] = writer.GetBlockCount();
}

} // namespace keltavlo
