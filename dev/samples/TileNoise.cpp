#include "TileNoise.h"

#include <cmath>

namespace keltavlo {

namespace {

int Wrapped(int cell, int cells) {
    return (cell % cells + cells) % cells;
}

// Flat at both ends, so that cell borders do not show.
double Eased(double part) {
    return part * part * (3 - 2 * part);
}

} // namespace

double TileNoise::AtCell(int x, int y) const {
    std::uint32_t hash = seed ^ static_cast<std::uint32_t>(x) * 0x9E3779B1U;
    hash = (hash ^ hash >> 15) * 0x85EBCA77U + static_cast<std::uint32_t>(y);
    hash = (hash ^ hash >> 13) * 0xC2B2AE3DU;
    hash = (hash ^ hash >> 16) * 0x27D4EB2FU;
    return static_cast<double>(hash >> 8) / 0xFFFFFF;
}

double TileNoise::Octave(double x, double y, int columns, int rows) const {
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const auto corner = [&](int dx, int dy) {
        return AtCell(Wrapped(left + dx, columns), Wrapped(top + dy, rows));
    };
    const double across = Eased(x - left);
    return std::lerp(std::lerp(corner(0, 0), corner(1, 0), across),
                     std::lerp(corner(0, 1), corner(1, 1), across), Eased(y - top));
}

double TileNoise::At(double x, double y, int columns, int rows, int octaves) const {
    double sum = 0;
    double weights = 0;
    for (double weight = 1; octaves > 0; --octaves, weight /= 2, columns *= 2, rows *= 2) {
        sum += weight * Octave(x * columns, y * rows, columns, rows);
        weights += weight;
    }
    return sum / weights;
}

} // namespace keltavlo
