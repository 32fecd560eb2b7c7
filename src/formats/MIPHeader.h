#pragma once

#include "formats/GameTexture.h"

#include <algorithm>

namespace keltavlo {

// The start of a Quake mip texture, as it lies in the file; little-endian. The palette indices of four levels
// follow, and in some files a palette.
struct MIPHeader {
    char name[16]; // ended by a NUL when shorter
    std::uint32_t width, height;
    std::uint32_t offsets[gametexture::levelCount]; // of the levels, from the start of the header

    // Where the last level ends, from the start of the header. The fields are the file's and may be anything.
    std::uint64_t GetEndOfLevels() const {
        std::uint64_t end = sizeof(MIPHeader);
        for (int k = 0; k < gametexture::levelCount; ++k)
            end = std::max(end, offsets[k] + std::uint64_t{width >> k} * (height >> k));
        return end;
    }
};
static_assert(sizeof(MIPHeader) == 40);

// After the levels: a signed 16-bit count, then red, green and blue of so many colors.
inline constexpr std::int16_t fullMIPPaletteCount = 256;

} // namespace keltavlo
