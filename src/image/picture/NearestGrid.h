#pragma once

#include "image/picture/Color.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace keltavlo {

struct NearestKernels;

// Eight entries of a list that may be nearest somewhere in a box of the color cube, in the list's order.
// Lanes without an entry are farther than any.
struct alignas(32) NearestCandidates {
    static constexpr std::size_t laneCount = 8;
    static constexpr std::int32_t far = 1 << 29;
    static constexpr std::uint32_t allLanes = 0xFF;

    NearestCandidates() { alphaDistances.fill(far); }

    std::array<Color, laneCount> colors{};
    std::array<std::uint32_t, laneCount> indices{};
    // What the entry's alpha adds to every distance.
    std::array<std::int32_t, laneCount> alphaDistances;
    // From the middle of the box being pruned.
    std::array<std::int32_t, laneCount> distances{};
    // A bit for each lane that has not been taken out.
    std::uint32_t left = 0;
};

// Eight candidates of a cell as they are scored: an entry's score for a color is its base minus twice the
// sum of the products of its channels and the color's offsets in the cell. For every color that is the
// distance less a number that all entries share; it fits 16 bits, and the first lowest score wins.
struct alignas(64) NearestBlock {
    static constexpr int channelShift = 128;

    // Blue and green in turn, each less channelShift.
    std::array<std::int8_t, 16> blueGreen;
    // Red less channelShift and 0 in turn.
    std::array<std::int8_t, 16> red;
    std::array<std::uint16_t, 8> bases;
    std::array<std::uint16_t, 8> indices;

    // Lanes without an entry lose against any.
    static NearestBlock Empty();
};
static_assert(sizeof(NearestBlock) == 64, "one cache line");

// The color cube in 16 x 16 x 16 cells, each with the entries of a list that are nearest to some color in
// it. Cells are filled when they are first asked for: few colors need few.
class NearestGrid {
public:
    static constexpr std::size_t cellCount = 4096;
    // Blocks have 16 bits for an index.
    static constexpr std::size_t maximumColors = 65536;

    // For colors of that alpha; where all entries have the same one, it tells nothing and any color will
    // do. The list has 1 to maximumColors entries.
    NearestGrid(std::span<const Color> list, std::uint32_t alpha, const NearestKernels& useKernels);

    // The upper halves of red, blue and green, in this order: two of them keep their distance.
    static std::size_t CellOf(Color color) { return (color & 0xF0) | (color >> 12 & 0xF0F); }
    // The channels' offsets in the cell, doubled, 8 bits each.
    static std::uint32_t DoubledOffsets(Color color) { return (color & 0x0F0F0F) << 1; }

    // Whether the cell is filled and has one block, its first.
    bool HasOneBlock(std::size_t cell) const { return blockCounts[cell] == 1; }
    const NearestBlock& FirstBlock(std::size_t cell) const { return firstBlocks[cell]; }
    // The others. Fills the cell if need be; valid until another one is filled.
    std::span<const NearestBlock> FurtherBlocks(std::size_t cell) {
        if (blockCounts[cell] == 0) Fill(cell);
        return std::span(furtherBlocks).subspan(furtherStarts[cell], blockCounts[cell] - std::size_t{1});
    }

private:
    struct Box;

    void Fill(std::size_t cell);
    std::vector<NearestCandidates>& RegionOf(std::size_t cell);
    std::size_t Prune(std::vector<NearestCandidates>& candidates, const Box& box,
                      std::vector<NearestCandidates>& survivors);
    void PruneByEach(std::vector<NearestCandidates>& candidates, std::size_t count, const Box& box) const;
    void StoreBlocks(std::size_t cell, const Box& box);

    const NearestKernels& kernels;
    std::vector<NearestCandidates> all;
    // Of 2 x 2 x 2 cells each, so that a cell need not look through the whole list.
    std::array<std::vector<NearestCandidates>, cellCount / 8> regions;
    std::vector<NearestCandidates> cellSurvivors;
    // 0 for a cell that is not filled.
    std::array<std::uint16_t, cellCount> blockCounts{};
    std::array<std::uint32_t, cellCount> furtherStarts;
    std::unique_ptr<NearestBlock[]> firstBlocks;
    std::vector<NearestBlock> furtherBlocks;
};

} // namespace keltavlo
