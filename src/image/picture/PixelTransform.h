#pragma once

#include "image/picture/ChannelTable.h"
#include "image/picture/Color.h"

#include <optional>
#include <span>
#include <variant>

namespace keltavlo {

// Returns the pixel over the background, weighted by its alpha in steps of 1/256. A translucent pixel over a
// background that is not opaque gives 0.
constexpr Color Composite(Color pixel, Color background) {
    const std::uint32_t weight = Alpha(pixel);
    if (weight == transparentAlpha) return background;
    if (weight == opaqueAlpha) return pixel;
    if (Alpha(background) != opaqueAlpha) return 0;
    constexpr Color redAndBlueMask = redMask | blueMask;
    const std::uint32_t inverse = 256 - weight;
    const Color redAndBlue =
        ((pixel & redAndBlueMask) * weight + (background & redAndBlueMask) * inverse) & (redAndBlueMask << 8);
    const Color green =
        ((background & greenMask) * inverse + (pixel & greenMask) * weight) & (greenMask << 8);
    return (redAndBlue | green) >> 8 | alphaMask;
}

// The transforms that a picture is drawn through. Tables have 256 entries and belong to the caller.

struct IdentityTransform {
    constexpr Color operator()(Color pixel) const { return pixel; }
};

struct OverBackgroundTransform {
    Color background = 0;

    constexpr Color operator()(Color pixel) const { return Composite(pixel, background); }
};

struct ChannelTableTransform {
    const std::uint32_t* table = nullptr;

    constexpr Color operator()(Color pixel) const { return MapChannels(table, pixel); }
};

struct BackgroundThenTableTransform {
    Color background = 0;
    const std::uint32_t* table = nullptr;

    constexpr Color operator()(Color pixel) const { return MapChannels(table, Composite(pixel, background)); }
};

struct TableThenBackgroundTransform {
    const std::uint32_t* table = nullptr;
    Color background = 0;

    constexpr Color operator()(Color pixel) const { return Composite(MapChannels(table, pixel), background); }
};

using PixelTransform = std::variant<IdentityTransform, OverBackgroundTransform, ChannelTableTransform,
                                    BackgroundThenTableTransform, TableThenBackgroundTransform>;

// Applies one transform to any number of rows. It selects the transform once per row, and copies and arranges
// a table only once.
class PixelTransformer {
public:
    explicit PixelTransformer(const PixelTransform& pixelTransform);

    // The output is as long as the input and may be the same memory.
    void Apply(std::span<const Color> input, std::span<Color> output) const;

private:
    PixelTransform transform;
    std::optional<ChannelTable> table;
};

} // namespace keltavlo
