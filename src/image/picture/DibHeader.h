#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace keltavlo {

// The 40-byte information header of a device-independent bitmap in its stored order (little-endian).
struct DibHeader {
    static constexpr std::uint32_t storedSize = 40;
    static constexpr std::uint32_t uncompressed = 0;
    static constexpr std::uint32_t bitFields = 3;

    std::uint32_t size = storedSize;
    std::int32_t width = 0;
    // Positive if the rows are stored bottom-up, negative if top-down.
    std::int32_t height = 0;
    std::uint16_t planes = 1;
    std::uint16_t bitCount = 0;
    std::uint32_t compression = uncompressed;
    // Bytes of the pixel rows; 0 if the reader should compute it.
    std::uint32_t imageSize = 0;
    // Pixels per meter.
    std::int32_t horizontalResolution = 0;
    std::int32_t verticalResolution = 0;
    std::uint32_t colorsUsed = 0;
    std::uint32_t colorsImportant = 0;

    static constexpr bool IsBitCount(int bits) {
        constexpr int bitCounts[] = {1, 4, 8, 16, 24, 32};
        return std::ranges::find(bitCounts, bits) != std::end(bitCounts);
    }
    // Returns whether pixels consist of bit fields, whose masks the bitmap stores.
    constexpr bool HasMasks() const { return compression == bitFields && (bitCount == 16 || bitCount == 32); }

    // Returns the entries of the color table after the header, or the number of channel masks in its place.
    std::uint32_t ColorTableEntries() const {
        if (colorsUsed != 0) return colorsUsed;
        if (bitCount <= 8) return std::uint32_t{1} << bitCount;
        return compression == bitFields ? 3 : 0;
    }
};

// The header before a bitmap in a file, in its stored order (little-endian, without gaps).
struct [[gnu::packed]] DibFileHeader {
    static constexpr std::uint16_t bitmapType = 'B' | 'M' << 8;

    std::uint16_t type = bitmapType;
    std::uint32_t fileSize = 0;
    std::uint32_t reserved = 0;
    // Offset of the first row in bytes from the start of this header.
    std::uint32_t rowsOffset = 0;
};
static_assert(sizeof(DibFileHeader) == 14);

// Returns the bytes of a stored row, which bitmaps pad to four bytes.
constexpr std::int64_t DibStride(int bitCount, int width) {
    return (std::int64_t{bitCount} * width + 31) / 32 * 4;
}

} // namespace keltavlo
