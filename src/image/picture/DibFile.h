#pragma once

#include <cstdint>

namespace keltavlo {

// The header that precedes a bitmap in a file of its own, in the order in which it is stored
// (little-endian, without gaps).
struct [[gnu::packed]] DibFileHeader {
    static constexpr std::uint16_t bitmapType = 'B' | 'M' << 8;

    std::uint16_t type = bitmapType;
    std::uint32_t fileSize = 0;
    std::uint32_t reserved = 0;
    // Of the first row, in bytes from the start of this header.
    std::uint32_t rowsOffset = 0;
};
static_assert(sizeof(DibFileHeader) == 14);

} // namespace keltavlo
