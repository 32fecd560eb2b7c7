#pragma once

#include "framework/core/Exceptions.h"
#include "image/picture/DibDescription.h"
#include "image/picture/PixelVector.h"

#include <cstddef>
#include <span>

class QRect;

namespace keltavlo {

class DrawingSurface;
class InputStream;
class OutputStream;

// A bitmap could not be created. The text is a sentence for the user.
class BitmapError : public CException {
public:
    using CException::CException;
};

// A device-independent bitmap of 1, 4, 8, 16, 24 or 32 bits per pixel in the program's own memory, so that
// pixels of every depth can be read and set without a device. Empty until created.
class DibSection {
public:
    DibSection() = default;
    // Creates the bitmap at once.
    DibSection(int width, int height, int bitCount) { Create(width, height, bitCount); }

    // Creates a bitmap with all pixel bytes 0. Rows are bottom-up for a positive height, top-down for a
    // negative one. Up to 8 bits, the color table is a ramp of grays from black to white; 16 bits are five
    // bits per channel. Throws BitmapError and leaves the bitmap unchanged for other bit counts, without
    // pixels, for sizes beyond the limits of pictures and if memory runs out.
    void Create(int width, int height, int bitCount);
    // Does the same from a whole header. Keeps its resolutions and color counts and computes its image size.
    // Bit fields, with 16 and 32 bits, start with the given masks.
    void Create(const DibHeader& header, const ChannelMasks& fieldMasks);
    void Destroy();
    void Recreate(int width, int height, int bitCount);

    int GetWidth() const { return GetHeader().width; }
    // Rows, never negative.
    int GetHeight() const { return description.Rows(); }
    bool IsTopDown() const { return GetHeader().height < 0; }
    int GetBitCount() const { return GetHeader().bitCount; }
    const DibHeader& GetHeader() const { return description.header; }
    const DibDescription& GetDescription() const { return description; }
    // Bytes of one stored row, and of all rows.
    std::size_t GetStride() const { return stride; }
    std::size_t GetImageSize() const { return words.size() * sizeof(Color); }

    // The stored rows, with blue first if pixels are whole bytes; null while empty.
    std::uint8_t* GetBits();
    const std::uint8_t* GetBits() const;

    // Returns whether pixels are color values, which Row returns.
    bool HasColorRows() const { return GetBitCount() == 32 && description.masks == ChannelMasks{}; }
    // Returns row y of the picture, counted from the top. Only if HasColorRows.
    std::span<Color> Row(int y) { return {words.data() + RowOffset(y) / sizeof(Color), Columns()}; }
    std::span<const Color> Row(int y) const {
        return {words.data() + RowOffset(y) / sizeof(Color), Columns()};
    }

    // Returns row y of the picture in its stored form, at any depth.
    std::span<const std::uint8_t> StoredRow(int y) const { return {GetBits() + RowOffset(y), stride}; }

    // Returns the opaque color of a pixel, with row 0 at the top; unchecked. An index beyond the color table
    // is black.
    Color GetPixel(int x, int y) const;
    // Stores the color as exactly as the depth allows: up to 8 bits the nearest table entry, and alpha only
    // with 32 bits.
    void SetPixel(int x, int y, Color color);

    // The bitmap as a stream: header, color table and rows; in a file, these follow a file header of 14
    // bytes. ReadStream replaces the bitmap, including its depth and row order, and fails as
    // ReadDibDescription does.
    void ReadStream(InputStream& in, bool withFileHeader);
    void WriteStream(OutputStream& out, bool withFileHeader) const;
    // Returns the number of bytes that WriteStream writes.
    std::uint64_t GetStreamSize(bool withFileHeader) const;

    // Copies entries of the color table, made opaque, starting with `first`. Returns how many it copied.
    std::size_t GetColorTable(std::size_t first, std::span<Color> output) const;
    // Replaces entries starting with `first`, up to the end of the table. Ignores alpha.
    void SetColorTable(std::size_t first, std::span<const Color> entries);

    // Paints the whole bitmap, stretched to the destination.
    void Draw(DrawingSurface& surface, const QRect& destination) const;

private:
    std::size_t Columns() const { return static_cast<std::size_t>(GetWidth()); }
    // Returns the byte offset of the picture's row y.
    std::size_t RowOffset(int y) const {
        return static_cast<std::size_t>(IsTopDown() ? y : GetHeight() - 1 - y) * stride;
    }
    void SetStored(std::size_t rowOffset, std::size_t x, std::uint32_t pixel);

    DibDescription description;
    std::size_t stride = 0;
    // The rows, as words, so that 32-bit pixels can be used directly. A stride is always whole words.
    PixelVector words;
};

} // namespace keltavlo
