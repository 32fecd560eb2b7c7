#pragma once

#include <cstdint>

namespace keltavlo {

// The 40-byte information header of a device-independent bitmap, in the order in which it is stored
// (little-endian).
struct DibHeader {
    static constexpr std::uint32_t storedSize = 40;
    static constexpr std::uint32_t uncompressed = 0;
    static constexpr std::uint32_t bitFields = 3;

    std::uint32_t size = storedSize;
    std::int32_t width = 0;
    // Positive when the rows are stored bottom-up, negative when they are stored top-down.
    std::int32_t height = 0;
    std::uint16_t planes = 1;
    std::uint16_t bitCount = 0;
    std::uint32_t compression = uncompressed;
    // Bytes of the pixel rows; 0 lets readers compute it.
    std::uint32_t imageSize = 0;
    // Pixels per metre.
    std::int32_t horizontalResolution = 0;
    std::int32_t verticalResolution = 0;
    std::uint32_t colorsUsed = 0;
    std::uint32_t colorsImportant = 0;

    // Entries of the colour table that follows the header, or the number of channel masks in its place.
    std::uint32_t ColorTableEntries() const {
        if (colorsUsed != 0) return colorsUsed;
        if (bitCount <= 8) return std::uint32_t{1} << bitCount;
        return compression == bitFields ? 3 : 0;
    }
};

// Bytes of one stored row: bitmaps pad their rows to four bytes.
constexpr std::int64_t DibStride(int bitCount, int width) {
    return (std::int64_t{bitCount} * width + 31) / 32 * 4;
}

} // namespace keltavlo
