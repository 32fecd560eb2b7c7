#pragma once

#include <cstddef>
#include <cstdint>

namespace keltavlo {

// The last index of a full palette. It is transparent in textures whose names begin with "{".
inline constexpr std::uint8_t cutoutIndex = 255;
// Texels with a lower alpha are transparent in such a texture.
inline constexpr std::uint32_t cutoutAlpha = 128;
// Quake draws this index and the following ones at full brightness.
inline constexpr std::size_t firstFullbright = 224;

// Restricts the indices that texels may get.
struct IndexingRules {
    bool dither = false;
    bool protectFullbright = false; // as in PaletteOptions
    // Gives cutoutIndex to texels with an alpha below cutoutAlpha and to no others. The palette is full.
    bool isCutout = false;

    // Returns how many of a palette's first colors are available to texels that are mapped by color.
    std::size_t UsableColors(std::size_t count) const {
        const std::size_t limit = protectFullbright ? firstFullbright : isCutout ? cutoutIndex : count;
        return count < limit ? count : limit;
    }
};

} // namespace keltavlo
