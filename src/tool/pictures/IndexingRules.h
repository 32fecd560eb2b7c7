#pragma once

#include <cstddef>
#include <cstdint>

namespace keltavlo {

// The last index of a full palette; textures whose names begin with "{" are transparent where they have it.
inline constexpr std::uint8_t cutoutIndex = 255;
// Texels of a lower alpha are transparent in such a texture.
inline constexpr std::uint32_t cutoutAlpha = 128;
// Quake draws this index and the following ones at full brightness.
inline constexpr std::size_t firstFullbright = 224;

// Which indices texels may get.
struct IndexingRules {
    bool dither = false;
    bool protectFullbright = false; // as in PaletteOptions
    // Texels of an alpha below cutoutAlpha get cutoutIndex, and no others do. The palette has 256 colors.
    bool isCutout = false;

    // How many of a palette's first colors are left to texels that are mapped by color.
    std::size_t UsableColors(std::size_t count) const {
        const std::size_t limit = protectFullbright ? firstFullbright : isCutout ? cutoutIndex : count;
        return count < limit ? count : limit;
    }
};

} // namespace keltavlo
