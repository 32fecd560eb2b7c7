#pragma once

#include "image/picture/Color.h"
#include "image/picture/Kernels.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace keltavlo {

struct NearestCandidates;
struct NearestTables;

// One implementation of the inner loops of the nearest-color search.
struct NearestKernels {
    ProcessorFeature needs;

    // For filling the grid.
    // Sets the candidates' distances from the middle of a box. Returns the place of the first nearest
    // candidate: eight times its group plus its lane.
    std::size_t (*measure)(std::span<NearestCandidates> candidates, Color middle);
    // Removes the measured candidates that the one at `place` beats everywhere in the box, which reaches from
    // `half` below the middle to just below `half` above it.
    void (*takeOutBeaten)(std::span<NearestCandidates> candidates, std::size_t place, int half);

    // For searching. The lists are not empty.
    std::size_t (*findIndex)(NearestTables& tables, Color color);
    // For lists of up to 256 entries. Writes one index per pixel.
    void (*findIndices)(NearestTables& tables, std::span<const Color> pixels, std::uint8_t* indices);
    void (*replace)(NearestTables& tables, std::span<Color> pixels);
    // Replaces whole rows and carries each row's error along it.
    void (*diffuse)(NearestTables& tables, std::span<Color> pixels, std::size_t width);

    static std::vector<const NearestKernels*> All();
};

extern const NearestKernels portableNearestKernels;

} // namespace keltavlo
