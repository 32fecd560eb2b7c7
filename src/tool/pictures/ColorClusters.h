#pragma once

#include "tool/pictures/ColorBoxes.h"

namespace keltavlo {

// The colors of a picture, divided among the centers that they are nearest to.
class ColorClusters {
public:
    explicit ColorClusters(std::span<const CountedColor> pictureColors);

    // Replaces up to 256 centers by ones of a smaller error, the sum of the distances (ColorDistance) of all
    // pixels from their centers. Returns that error.
    double Refine(std::vector<Color>& centers);
    // Moves that many of the centers that are needed least to the colors that are farthest from theirs. For
    // centers that Refine has just returned.
    void Relocate(std::vector<Color>& centers, std::size_t count) const;

private:
    double Assign(const std::vector<Color>& centers);
    std::vector<ColorSums> SumUp(std::size_t centerCount) const;
    void MoveToMeans(std::vector<Color>& centers) const;
    double DistanceOf(std::size_t i, const std::vector<Color>& centers) const;
    std::vector<std::size_t> FarthestColors(const std::vector<Color>& centers, std::size_t count) const;

    std::span<const CountedColor> entries;
    std::vector<Color> colors;         // of the entries
    std::vector<std::uint8_t> nearest; // the center of each
};

} // namespace keltavlo
