#include "image/picture/DibSection.h"

#include "image/picture/DrawingSurface.h"
#include "image/picture/PictureSize.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>

namespace keltavlo {

namespace {

[[noreturn]] void Refuse(const std::string& reason) {
    throw BitmapError("The bitmap could not be created: " + reason);
}

std::string SizeText(const DibHeader& header) {
    return std::to_string(header.width) + " x " + std::to_string(std::abs(std::int64_t{header.height})) +
           " pixels";
}

void CheckHeader(const DibHeader& header) {
    if (!DibHeader::IsBitCount(header.bitCount))
        Refuse(std::to_string(header.bitCount) + " bits a pixel are not supported.");
    if (header.compression != DibHeader::uncompressed && !header.HasMasks())
        Refuse("its compression is not supported.");
    const std::int64_t rows = std::abs(std::int64_t{header.height});
    if (header.width <= 0 || rows == 0) Refuse("it has no pixels.");
    if (header.width > maximumPictureSide || rows > maximumPictureSide ||
        static_cast<std::uint64_t>(DibStride(header.bitCount, header.width) * rows) > maximumPictureBytes) {
        Refuse(SizeText(header) + " are too many.");
    }
}

PixelVector AllocateRows(const DibHeader& header, std::size_t wordCount) {
    try {
        return PixelVector(wordCount, Color{0});
    } catch (const std::bad_alloc&) {
        Refuse("there is not enough memory for " + SizeText(header) + ".");
    }
}

ColorList GrayRamp(std::size_t count, std::size_t levels) {
    ColorList ramp(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto level = static_cast<std::uint32_t>(i * 255 / (levels - 1));
        ramp.SetColor(i, Compose(level, level, level));
    }
    return ramp;
}

// Limits the table to the indices of this depth, because a header may claim more entries.
ColorList InitialColorTable(const DibHeader& header) {
    if (header.bitCount > 8) return {};
    const std::size_t levels = std::size_t{1} << header.bitCount;
    return GrayRamp(std::min<std::size_t>(header.ColorTableEntries(), levels), levels);
}

// The position of a column's index. The first column is in the highest bits of a byte.
struct IndexPlace {
    IndexPlace(std::size_t x, unsigned bitCount)
        : byte(x * bitCount / 8), shift(8 - bitCount - static_cast<unsigned>(x * bitCount % 8)),
          mask((1U << bitCount) - 1) {}

    std::size_t byte;
    unsigned shift;
    unsigned mask;
};

std::uint32_t ReadValue(const std::uint8_t* bytes, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value |= std::uint32_t{bytes[i]} << (8 * i);
    return value;
}

void WriteValue(std::uint8_t* bytes, std::size_t count, std::uint32_t value) {
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t GetStored(const std::uint8_t* row, std::size_t x, unsigned bitCount) {
    if (bitCount > 8) return ReadValue(row + x * (bitCount / 8), bitCount / 8);
    const IndexPlace place(x, bitCount);
    return std::uint32_t{row[place.byte]} >> place.shift & place.mask;
}

void WriteTable(OutputStream& out, const DibDescription& description) {
    if (description.header.compression == DibHeader::bitFields) {
        out.Write(&description.masks, sizeof(ChannelMasks));
        return;
    }
    std::vector<Color> entries(description.header.ColorTableEntries());
    if (entries.empty()) return;
    const std::span<const Color> colors = description.colors.Colors();
    std::ranges::copy(colors.first(std::min(colors.size(), entries.size())), entries.begin());
    for (Color& entry : entries) entry &= ~alphaMask; // the fourth byte is reserved
    out.Write(std::span<const Color>(entries));
}

} // namespace

void DibSection::Create(int width, int height, int bitCount) {
    DibHeader header;
    header.width = width;
    header.height = height;
    // The cast could turn an invalid count into a valid one.
    header.bitCount =
        DibHeader::IsBitCount(bitCount) ? static_cast<std::uint16_t>(bitCount) : std::uint16_t{0};
    Create(header, ChannelMasks{});
}

void DibSection::Create(const DibHeader& header, const ChannelMasks& fieldMasks) {
    CheckHeader(header);
    const auto rowBytes = static_cast<std::size_t>(DibStride(header.bitCount, header.width));
    const auto rows = static_cast<std::size_t>(std::abs(header.height));
    PixelVector newWords = AllocateRows(header, rowBytes / sizeof(Color) * rows);
    description.colors = InitialColorTable(header);
    words = std::move(newWords);
    description.header = header;
    description.header.size = DibHeader::storedSize;
    description.header.imageSize = static_cast<std::uint32_t>(rowBytes * rows);
    stride = rowBytes;
    description.masks = header.HasMasks() ? fieldMasks : ChannelMasks::Default(header.bitCount);
}

void DibSection::Destroy() {
    *this = DibSection();
}

void DibSection::Recreate(int width, int height, int bitCount) {
    Destroy();
    Create(width, height, bitCount);
}

std::uint8_t* DibSection::GetBits() {
    return reinterpret_cast<std::uint8_t*>(words.data());
}

const std::uint8_t* DibSection::GetBits() const {
    return reinterpret_cast<const std::uint8_t*>(words.data());
}

std::uint64_t DibSection::GetStreamSize(bool withFileHeader) const {
    return (withFileHeader ? sizeof(DibFileHeader) : 0) + GetHeader().size +
           std::uint64_t{GetHeader().ColorTableEntries()} * 4 + GetImageSize();
}

Color DibSection::GetPixel(int x, int y) const {
    const std::uint8_t* row = GetBits() + RowOffset(y);
    return description.ColorOf(GetStored(row, static_cast<std::size_t>(x), GetHeader().bitCount));
}

void DibSection::SetPixel(int x, int y, Color color) {
    const auto column = static_cast<std::size_t>(x);
    const std::size_t row = RowOffset(y);
    if (GetBitCount() <= 8)
        SetStored(row, column,
                  static_cast<std::uint32_t>(description.colors.FindNearestIndex(color | alphaMask)));
    else
        SetStored(row, column, HasColorRows() ? color : description.masks.FromColor(color));
}

void DibSection::SetStored(std::size_t rowOffset, std::size_t x, std::uint32_t pixel) {
    std::uint8_t* const row = GetBits() + rowOffset;
    const unsigned bitCount = GetHeader().bitCount;
    if (bitCount > 8) return WriteValue(row + x * (bitCount / 8), bitCount / 8, pixel);
    const IndexPlace place(x, bitCount);
    const unsigned others = row[place.byte] & ~(place.mask << place.shift);
    row[place.byte] = static_cast<std::uint8_t>(others | pixel << place.shift);
}

void DibSection::ReadStream(InputStream& in, bool withFileHeader) {
    const DibDescription stored = ReadDibDescription(in, withFileHeader);
    Create(stored.header, stored.masks);
    SetColorTable(0, stored.colors.Colors());
    in.Read(GetBits(), GetImageSize());
}

void DibSection::WriteStream(OutputStream& out, bool withFileHeader) const {
    if (withFileHeader) {
        DibFileHeader fileHeader;
        fileHeader.fileSize = static_cast<std::uint32_t>(GetStreamSize(true));
        fileHeader.rowsOffset = static_cast<std::uint32_t>(GetStreamSize(true) - GetImageSize());
        out.Write(&fileHeader, sizeof fileHeader);
    }
    out.Write(&GetHeader(), sizeof(DibHeader));
    WriteTable(out, description);
    out.Write(GetBits(), GetImageSize());
}

std::size_t DibSection::GetColorTable(std::size_t first, std::span<Color> output) const {
    const std::span<const Color> entries = description.colors.Colors();
    if (first >= entries.size()) return 0;
    const std::size_t count = std::min(output.size(), entries.size() - first);
    std::ranges::copy(entries.subspan(first, count), output.begin());
    return count;
}

void DibSection::SetColorTable(std::size_t first, std::span<const Color> entries) {
    for (std::size_t i = 0; i < entries.size() && first + i < description.colors.GetCount(); ++i) {
        description.colors.SetColor(first + i, entries[i] | alphaMask);
    }
}

void DibSection::Draw(DrawingSurface& surface, const QRect& destination) const {
    surface.StretchBits(*this, destination);
}

} // namespace keltavlo
