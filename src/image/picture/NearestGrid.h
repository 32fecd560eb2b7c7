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

// Eight entries of a list that may be the nearest to some color in a box of the color cube, in the list's
// order. Lanes without an entry are farther away than any entry.
struct alignas(32) NearestCandidates {
    static constexpr std::size_t laneCount = 8;
    static constexpr std::int32_t far = 1 << 29;
    static constexpr std::uint32_t allLanes = 0xFF;

    NearestCandidates() { alphaDistances.fill(far); }

    std::array<Color, laneCount> colors{};
    std::array<std::uint32_t, laneCount> indices{};
    // The part of every distance that comes from the entry's alpha.
    std::array<std::int32_t, laneCount> alphaDistances;
    // Distances from the middle of the box that is being pruned.
    std::array<std::int32_t, laneCount> distances{};
    // A bit for each lane that remains.
    std::uint32_t left = 0;
};

// Eight candidates of a cell, arranged for scoring. An entry's score for a color is its base minus twice the
// sum of the products of its channels and the color's offsets in the cell. That equals the distance less a
// number that all entries share. It fits 16 bits, and the first of the lowest scores wins.
struct alignas(64) NearestBlock {
    static constexpr int channelShift = 128;

    // Alternately blue and green, each less channelShift.
    std::array<std::int8_t, 16> blueGreen;
    // Alternately red less channelShift and 0.
    std::array<std::int8_t, 16> red;
    std::array<std::uint16_t, 8> bases;
    std::array<std::uint16_t, 8> indices;

    // Lanes without an entry lose against any entry.
    static NearestBlock Empty();
};
static_assert(sizeof(NearestBlock) == 64, "one cache line");

// The color cube in 16 x 16 x 16 cells, each with the entries of a list that are nearest to some color in it.
// Cells are filled on first use, because a picture with few colors needs few cells.
class NearestGrid {
public:
    static constexpr std::size_t cellCount = 4096;
    // A block has 16 bits for an index.
    static constexpr std::size_t maximumColors = 65536;

    // The grid serves colors of this alpha. If all entries have the same alpha, it makes no difference and
    // the grid serves any color. The list has 1 to maximumColors entries.
    NearestGrid(std::span<const Color> list, std::uint32_t alpha, const NearestKernels& useKernels);

    // Combines the upper halves of red, blue and green, in this order, so that two of them keep
    // their distance.
    static std::size_t CellOf(Color color) { return (color & 0xF0) | (color >> 12 & 0xF0F); }
    // Returns the doubled offsets of the channels in the cell, 8 bits each.
    static std::uint32_t DoubledOffsets(Color color) { return (color & 0x0F0F0F) << 1; }

    // Returns whether the cell is filled and has only its first block.
    bool HasOneBlock(std::size_t cell) const { return blockCounts[cell] == 1; }
    const NearestBlock& FirstBlock(std::size_t cell) const { return firstBlocks[cell]; }
    // Returns the blocks after the first. Fills the cell if necessary. Valid until another cell is filled.
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
    // The candidates of 2 x 2 x 2 cells, so that a cell does not search the whole list.
    std::array<std::vector<NearestCandidates>, cellCount / 8> regions;
    std::vector<NearestCandidates> cellSurvivors;
    // 0 for a cell that is not filled yet.
    std::array<std::uint16_t, cellCount> blockCounts{};
    std::array<std::uint32_t, cellCount> furtherStarts;
    std::unique_ptr<NearestBlock[]> firstBlocks;
    std::vector<NearestBlock> furtherBlocks;
};

} // namespace keltavlo
