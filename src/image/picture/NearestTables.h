#pragma once

#include "image/picture/ColorList.h"
#include "image/picture/NearestGrid.h"

namespace keltavlo {

// Eight entries of a list for the comparison with any color: the products of the channels and their
// coefficients, added to the base, are `scale` times the distance less what all entries share, plus the
// entry's number in its run.
struct alignas(32) NearestScanGroup {
    static constexpr int scale = 2048;
    // The color's channels are multiplied by that, and the coefficients so much less: both have 16 bits.
    static constexpr int colorScale = 128;

    // Of blue and green in turn.
    std::array<std::int16_t, 16> blueGreen;
    // Of red and alpha in turn.
    std::array<std::int16_t, 16> redAlpha;
    std::array<std::int32_t, 8> bases;
};

// What a search looks into: the list, a grid for the colors of one alpha, and the list arranged for
// vectors.
struct NearestTables {
    NearestTables(const ColorList& searchedList, std::uint32_t usualAlpha, const NearestKernels& kernels);

    bool IsInGrid(Color color) const { return (color & gridMask) == gridAlpha; }

    const ColorList& list;
    // Which colors the grid serves: all where the entries' alpha is the same, else those of one alpha.
    Color gridMask;
    Color gridAlpha;
    NearestGrid grid;
    // The runs of `scale` entries one after another.
    std::vector<NearestScanGroup> scanGroups;
};

} // namespace keltavlo
