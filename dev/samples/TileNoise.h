#pragma once

#include <cstdint>

namespace keltavlo {

// Smooth random values over a square that tiles.
class TileNoise {
public:
    explicit TileNoise(std::uint32_t seedOfPattern) : seed(seedOfPattern) {}

    // The cell's value, from 0 to 1, the same for each call.
    double AtCell(int x, int y) const;
    // The value, from 0 to 1, at a position of 0 to 1. The square has columns x rows cells; each further
    // octave has twice as many in each direction, with half the weight.
    double At(double x, double y, int columns, int rows, int octaves) const;

private:
    double Octave(double x, double y, int columns, int rows) const;

    std::uint32_t seed;
};

} // namespace keltavlo
