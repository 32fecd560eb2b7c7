#pragma once

#include "image/picture/Color.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace keltavlo {

// A color of a picture and how many pixels have it.
struct CountedColor {
    Color color;
    std::uint32_t count;
};

// Returns the distinct colors of the pixels.
std::vector<CountedColor> CountColors(std::span<const Color> pixels);

// Sums over a set of pixels that give its mean and spread.
class ColorSums {
public:
    static constexpr std::size_t channelCount = 4;
    using Channels = std::array<double, channelCount>;

    void Add(const CountedColor& entry);
    ColorSums Without(const ColorSums& other) const;

    double Count() const { return count; }
    // Returns the mean, each channel rounded. There must be a pixel.
    Color Mean() const;
    // Returns the sum of the distances (ColorDistance) from the mean.
    double Spread() const;
    // Returns the channel in which the pixels differ most.
    std::size_t WidestChannel() const;

private:
    double SpreadOf(std::size_t channel) const;

    double count = 0;
    Channels sums{}, squares{};
};

// Divides the colors into at most `boxCount` boxes and returns the boxes' means. Always cuts the box with the
// greatest spread, where the spread of its parts is least. Reorders the colors.
std::vector<Color> CutIntoBoxes(std::span<CountedColor> colors, std::size_t boxCount);

} // namespace keltavlo
