#pragma once

#include "image/picture/ColorList.h"
#include "image/picture/NearestGrid.h"

namespace keltavlo {

// Eight entries of a list, arranged for comparison with any color. The products of the channels and their
// coefficients, added to the base, are `scale` times the distance less what all entries share, plus the
// entry's number in its run.
struct alignas(32) NearestScanGroup {
    static constexpr int scale = 2048;
    // The part of `scale` that multiplies the color's channels; the coefficients contain the rest, so that
    // both fit 16 bits.
    static constexpr int colorScale = 128;

    // Alternately of blue and green.
    std::array<std::int16_t, 16> blueGreen;
    // Alternately of red and alpha.
    std::array<std::int16_t, 16> redAlpha;
    std::array<std::int32_t, 8> bases;
};

// The data of a search: the list, a grid for the colors of one alpha, and the list arranged for vectors.
struct NearestTables {
    NearestTables(const ColorList& searchedList, std::uint32_t usualAlpha, const NearestKernels& kernels);

    bool IsInGrid(Color color) const { return (color & gridMask) == gridAlpha; }

    const ColorList& list;
    // Select the colors that the grid serves: all of them if the entries have the same alpha, otherwise those
    // of one alpha.
    Color gridMask;
    Color gridAlpha;
    NearestGrid grid;
    // Runs of `scale` entries, one after another.
    std::vector<NearestScanGroup> scanGroups;
};

} // namespace keltavlo
