#pragma once

#include "tool/pictures/ColorBoxes.h"

namespace keltavlo {

// The colors of a picture, each assigned to the nearest of several centers.
class ColorClusters {
public:
    explicit ColorClusters(std::span<const CountedColor> pictureColors);

    // Moves up to 256 centers so that the error is smaller: the sum of all pixels' distances (ColorDistance)
    // from their centers. Returns the error.
    double Refine(std::vector<Color>& centers);
    // Moves the `count` centers that are needed least to the colors that are farthest from theirs. Call it
    // only with centers that Refine has just returned.
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
