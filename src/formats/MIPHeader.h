#pragma once

#include "formats/GameTexture.h"

#include <algorithm>

namespace keltavlo {

// The start of a Quake mip texture in its file, little-endian. The palette indices of four levels follow, and
// in some files a palette.
struct MIPHeader {
    char name[16]; // NUL-terminated unless full
    std::uint32_t width, height;
    std::uint32_t offsets[gametexture::levelCount]; // of the levels, from the start of the header

    // Returns the end of the last level, in bytes from the start of the header. The fields are unchecked.
    std::uint64_t GetEndOfLevels() const {
        std::uint64_t end = sizeof(MIPHeader);
        for (int k = 0; k < gametexture::levelCount; ++k)
            end = std::max(end, offsets[k] + std::uint64_t{width >> k} * (height >> k));
        return end;
    }
};
static_assert(sizeof(MIPHeader) == 40);

// The color count of a full palette. A palette after the levels starts with its color count, a signed 16-bit
// number; red, green and blue of each color follow.
inline constexpr std::int16_t fullMIPPaletteCount = 256;

} // namespace keltavlo
