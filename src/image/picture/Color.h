#pragma once

#include <bit>
#include <cstdint>

namespace keltavlo {

// A color with alpha, 0xAARRGGBB. Every pixel, palette entry and color-table entry is one.
using Color = std::uint32_t;

// Bitmaps and textures use the bytes as they are in memory: blue, green, red, alpha.
static_assert(std::endian::native == std::endian::little);

inline constexpr std::uint32_t opaqueAlpha = 255;
inline constexpr std::uint32_t transparentAlpha = 0;

inline constexpr Color redMask = 0x00FF0000;
inline constexpr Color greenMask = 0x0000FF00;
inline constexpr Color blueMask = 0x000000FF;
inline constexpr Color alphaMask = 0xFF000000;

constexpr std::uint32_t Alpha(Color color) {
    return color >> 24;
}

constexpr std::uint32_t Red(Color color) {
    return (color & redMask) >> 16;
}

constexpr std::uint32_t Green(Color color) {
    return (color & greenMask) >> 8;
}

constexpr std::uint32_t Blue(Color color) {
    return color & blueMask;
}

// Returns the color of four channels from 0 to 255.
constexpr Color Compose(std::uint32_t red, std::uint32_t green, std::uint32_t blue,
                        std::uint32_t alpha = opaqueAlpha) {
    return red << 16 | green << 8 | blue | alpha << 24;
}

// A color reference has red in the lowest byte (0x00BBGGRR) and no alpha. The color is opaque.
constexpr Color ColorFromColorRef(std::uint32_t reference) {
    return (reference & 0xFF) << 16 | (reference & greenMask) | (reference & redMask) >> 16 | alphaMask;
}

// Exchanges red and blue. The top byte becomes 255, which bitmaps treat as opaque.
constexpr std::uint32_t ColorRefFromColor(Color color) {
    return ColorFromColorRef(color);
}

} // namespace keltavlo
