#pragma once

#include "image/picture/Color.h"
#include "image/picture/Kernels.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace keltavlo {

struct NearestCandidates;
struct NearestTables;

// The inner loops of the nearest-color search in one way of doing them.
struct NearestKernels {
    ProcessorFeature needs;

    // For filling the grid.
    // Sets the distances of the candidates from the middle of a box. Returns the first nearest one's place:
    // eight times its group plus its lane.
    std::size_t (*measure)(std::span<NearestCandidates> candidates, Color middle);
    // Takes out the measured candidates that the one at that place beats everywhere in the box, which
    // reaches from the middle less the half to just below the middle and the half.
    void (*takeOutBeaten)(std::span<NearestCandidates> candidates, std::size_t place, int half);

    // For searching. The lists are not empty.
    std::size_t (*findIndex)(NearestTables& tables, Color color);
    // For lists of up to 256 entries; as many indices as pixels.
    void (*findIndices)(NearestTables& tables, std::span<const Color> pixels, std::uint8_t* indices);
    void (*replace)(NearestTables& tables, std::span<Color> pixels);
    // Replaces whole rows, carrying each row's error along it.
    void (*diffuse)(NearestTables& tables, std::span<Color> pixels, std::size_t width);

    static std::vector<const NearestKernels*> All();
};

extern const NearestKernels portableNearestKernels;

} // namespace keltavlo
