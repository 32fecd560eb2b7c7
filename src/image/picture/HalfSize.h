#pragma once

#include "image/picture/Color.h"

#include <span>

// Averages are the floor of the mean in each of the four channels. Blue and red, and green and alpha, are
// summed two at a time: shifting green and alpha first leaves room at the top for the carry and keeps their
// fractions below.

constexpr Color Average2(Color first, Color second) {
    constexpr Color low = redMask | blueMask;
    constexpr Color high = alphaMask | greenMask;
    return (((first & low) + (second & low)) >> 1 & low) |
           ((((first & high) >> 1) + ((second & high) >> 1)) & high);
}

constexpr Color Average4(Color first, Color second, Color third, Color fourth) {
    constexpr Color low = redMask | blueMask;
    constexpr Color high = alphaMask | greenMask;
    const Color lowSum = (first & low) + (second & low) + (third & low) + (fourth & low);
    const Color highSum =
        ((first & high) >> 2) + ((second & high) >> 2) + ((third & high) >> 2) + ((fourth & high) >> 2);
    return (lowSum >> 2 & low) | (highSum & high);
}

/// Averages the 2 x 2 blocks of two rows of equal length into (length + 1) / 2 pixels; an odd last column is
/// averaged alone. Given one row twice, it averages along that row. Uses the processor's vectors where there
/// are any.
void HalveRows(std::span<const Color> upper, std::span<const Color> lower, std::span<Color> output);

/// The same pixel by pixel, from the given output pixel on.
void HalveRowsPlain(std::span<const Color> upper, std::span<const Color> lower, std::span<Color> output,
                    std::size_t first = 0);
