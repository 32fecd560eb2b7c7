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

// A bitmap could not be created; the text is a sentence for the user.
class BitmapError : public CException {
public:
    using CException::CException;
};

// Holds one device-independent bitmap of 1, 4, 8, 16, 24 or 32 bits a pixel in memory of our own, so pixels
// of every depth are read and set directly and no device is opened for it. Empty until created.
class DibSection {
public:
    DibSection() = default;
    // Creates the bitmap at once.
    DibSection(int width, int height, int bitCount) { Create(width, height, bitCount); }

    // All pixel bytes 0; bottom-up rows for a positive height, top-down ones for a negative. Up to 8 bits
    // the color table is a ramp of grays from black to white; 16 bits are five bits a channel. Throws
    // BitmapError, with the bitmap unchanged, for other bit counts, for no pixels, for sizes beyond the
    // limits of pictures and when memory is short.
    void Create(int width, int height, int bitCount);
    // The same from a whole header, whose resolutions and color counts are kept and whose image size is set
    // to the bytes of the rows. Bit fields, in 16 and 32 bits, start with the masks given.
    void Create(const DibHeader& header, const ChannelMasks& fieldMasks);
    void Destroy();
    void Recreate(int width, int height, int bitCount);

    int GetWidth() const { return GetHeader().width; }
    // In rows, never negative.
    int GetHeight() const { return description.Rows(); }
    bool IsTopDown() const { return GetHeader().height < 0; }
    int GetBitCount() const { return GetHeader().bitCount; }
    const DibHeader& GetHeader() const { return description.header; }
    const DibDescription& GetDescription() const { return description; }
    // Bytes of one stored row and of all of them.
    std::size_t GetStride() const { return stride; }
    std::size_t GetImageSize() const { return words.size() * sizeof(Color); }

    // The stored rows, blue first where pixels are whole bytes; null while empty.
    std::uint8_t* GetBits();
    const std::uint8_t* GetBits() const;

    // Whether pixels are color values that Row gives access to.
    bool HasColorRows() const { return GetBitCount() == 32 && description.masks == ChannelMasks{}; }
    // Row y of the picture, counted from its top. Only while HasColorRows.
    std::span<Color> Row(int y) { return {words.data() + RowOffset(y) / sizeof(Color), Columns()}; }
    std::span<const Color> Row(int y) const {
        return {words.data() + RowOffset(y) / sizeof(Color), Columns()};
    }

    // Row y of the picture as it is stored, at any depth.
    std::span<const std::uint8_t> StoredRow(int y) const { return {GetBits() + RowOffset(y), stride}; }

    // The opaque color of the pixel, row 0 at the top; unchecked. An index beyond the color table is
    // black.
    Color GetPixel(int x, int y) const;
    // Stores the color as nearly as the depth allows: the nearest table entry up to 8 bits, alpha only at
    // 32 bits.
    void SetPixel(int x, int y, Color color);

    // The bitmap as a stream: header, color table and rows, in a file after a file header of 14 bytes.
    // Replaces the bitmap by the stored one, of its depth and row order. Fails as ReadDibDescription does.
    void ReadStream(InputStream& in, bool withFileHeader);
    void WriteStream(OutputStream& out, bool withFileHeader) const;
    // Bytes that WriteStream writes.
    std::uint64_t GetStreamSize(bool withFileHeader) const;

    // Copies the entries from the first one on, opaque, and returns how many there were.
    std::size_t GetColorTable(std::size_t first, std::span<Color> output) const;
    // Replaces entries from the first one on as far as the table reaches; alpha is ignored.
    void SetColorTable(std::size_t first, std::span<const Color> entries);

    // Paints the whole bitmap, stretched, onto the rectangle of the surface.
    void Draw(DrawingSurface& surface, const QRect& destination) const;

private:
    std::size_t Columns() const { return static_cast<std::size_t>(GetWidth()); }
    // Byte offset of the picture's row y.
    std::size_t RowOffset(int y) const {
        return static_cast<std::size_t>(IsTopDown() ? y : GetHeight() - 1 - y) * stride;
    }
    void SetStored(std::size_t rowOffset, std::size_t x, std::uint32_t pixel);

    DibDescription description;
    std::size_t stride = 0;
    // The rows. Words, so that 32-bit pixels may be used as such; a stride is always whole words.
    PixelVector words;
};

} // namespace keltavlo
