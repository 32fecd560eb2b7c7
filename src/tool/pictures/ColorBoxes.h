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

// The colors of the pixels, each once.
std::vector<CountedColor> CountColors(std::span<const Color> pixels);

// The sums of a set of pixels from which its mean and its spread follow.
class ColorSums {
public:
    static constexpr std::size_t channelCount = 4;
    using Channels = std::array<double, channelCount>;

    void Add(const CountedColor& entry);
    ColorSums Without(const ColorSums& other) const;

    double Count() const { return count; }
    // The mean, each channel rounded. There must be a pixel.
    Color Mean() const;
    // The sum of the distances (ColorDistance) from the mean.
    double Spread() const;
    // The channel in which the pixels differ most.
    std::size_t WidestChannel() const;

private:
    double SpreadOf(std::size_t channel) const;

    double count = 0;
    Channels sums{}, squares{};
};

// Cuts the colors into at most `boxCount` boxes, always the one of the greatest spread, where the spread of
// both parts is least, and returns the boxes' means. Reorders the colors.
std::vector<Color> CutIntoBoxes(std::span<CountedColor> colors, std::size_t boxCount);

} // namespace keltavlo
