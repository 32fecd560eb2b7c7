#pragma once

#include "image/picture/Color.h"
#include "image/picture/Kernels.h"

#include <cstddef>

namespace keltavlo {

// An average is the floor of the mean of each of the four channels. Two channels are summed at a time: blue
// with red, and green with alpha. Green and alpha are shifted first, so that the carry fits at the top and
// their fractions stay below the other bits.

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

// Rows to average in pairs into rows of (width + 1) / 2 pixels, all without padding.
struct RowPairs {
    const Color* pixels = nullptr;
    std::size_t width = 0;
    std::size_t count = 0;
    // Distance from a pair's upper row to its lower one: the width, or 0 to average a single row with itself.
    std::size_t lowerDistance = 0;
    Color* output = nullptr;

    const Color* Upper(std::size_t pair) const { return pixels + 2 * pair * width; }
    const Color* Lower(std::size_t pair) const { return Upper(pair) + lowerDistance; }
    Color* Output(std::size_t pair) const { return output + pair * ((width + 1) / 2); }
};

// One implementation of averaging.
struct HalfSizeKernels {
    ProcessorFeature needs;
    // Fills the output columns of all rows, from the first column on, as far as whole vectors reach. Returns
    // the column it stopped at.
    std::size_t (*halve)(const RowPairs& rows);

    static std::vector<const HalfSizeKernels*> All();
};

// Fills the output with the averages of the 2 x 2 blocks. An odd last column is averaged alone.
void HalveRowPairs(const RowPairs& rows, const HalfSizeKernels& kernels = FastestKernels<HalfSizeKernels>());

} // namespace keltavlo
