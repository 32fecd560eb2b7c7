#pragma once

#include <cstdint>

namespace keltavlo {

// Smooth random values over a square that tiles: what leaves it on one side comes in on the other.
class TileNoise {
public:
    explicit TileNoise(std::uint32_t seedOfPattern) : seed(seedOfPattern) {}

    // A value of 0 to 1 that belongs to the cell, the same at each call.
    double AtCell(int x, int y) const;
    // A value of 0 to 1 at a place of 0 to 1; the square has columns x rows cells, and each further octave
    // twice as many, at half the weight.
    double At(double x, double y, int columns, int rows, int octaves) const;

private:
    double Octave(double x, double y, int columns, int rows) const;

    std::uint32_t seed;
};

} // namespace keltavlo
