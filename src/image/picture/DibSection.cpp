#include "image/picture/DibSection.h"

#include "image/picture/DrawingSurface.h"
#include "image/picture/Image.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>

namespace keltavlo {

namespace {

constexpr std::uint64_t fileHeaderSize = 14;

[[noreturn]] void Refuse(const std::string& reason) {
    throw BitmapError("The bitmap could not be created: " + reason);
}

bool IsBitCount(int bitCount) {
    constexpr int bitCounts[] = {1, 4, 8, 16, 24, 32};
    return std::ranges::find(bitCounts, bitCount) != std::end(bitCounts);
}

std::string SizeText(const DibHeader& header) {
    return std::to_string(header.width) + " x " + std::to_string(std::abs(std::int64_t{header.height})) +
           " pixels";
}

void CheckHeader(const DibHeader& header) {
    if (!IsBitCount(header.bitCount)) {
        Refuse(std::to_string(header.bitCount) + " bits a pixel are not supported.");
    }
    const bool fields =
        header.compression == DibHeader::bitFields && (header.bitCount == 16 || header.bitCount == 32);
    if (header.compression != DibHeader::uncompressed && !fields) Refuse("its compression is not supported.");
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

ColorList GreyRamp(std::size_t count, std::size_t levels) {
    ColorList ramp(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto level = static_cast<std::uint32_t>(i * 255 / (levels - 1));
        ramp.SetColor(i, Compose(level, level, level));
    }
    return ramp;
}

// The colour counts of a header may claim more entries than an index can reach.
ColorList InitialColorTable(const DibHeader& header) {
    if (header.bitCount > 8) return {};
    const std::size_t levels = std::size_t{1} << header.bitCount;
    return GreyRamp(std::min<std::size_t>(header.ColorTableEntries(), levels), levels);
}

} // namespace

void DibSection::Create(int width, int height, int bitCount) {
    DibHeader description;
    description.width = width;
    description.height = height;
    // A count that the field cannot hold must not wrap round to one that is allowed.
    description.bitCount = IsBitCount(bitCount) ? static_cast<std::uint16_t>(bitCount) : std::uint16_t{0};
    Create(description, ChannelMasks{});
}

void DibSection::Create(const DibHeader& description, const ChannelMasks& fieldMasks) {
    CheckHeader(description);
    const auto rowBytes = static_cast<std::size_t>(DibStride(description.bitCount, description.width));
    const auto rows = static_cast<std::size_t>(std::abs(description.height));
    PixelVector newWords = AllocateRows(description, rowBytes / sizeof(Color) * rows);
    colorTable = InitialColorTable(description);
    words = std::move(newWords);
    header = description;
    header.size = DibHeader::storedSize;
    header.imageSize = static_cast<std::uint32_t>(rowBytes * rows);
    stride = rowBytes;
    if (header.compression == DibHeader::bitFields) {
        masks = fieldMasks;
    } else {
        masks = header.bitCount == 16 ? ChannelMasks::FiveBits() : ChannelMasks{};
    }
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
    return (withFileHeader ? fileHeaderSize : 0) + header.size +
           std::uint64_t{header.ColorTableEntries()} * 4 + GetImageSize();
}

std::size_t DibSection::GetColorTable(std::size_t first, std::span<Color> output) const {
    const std::span<const Color> entries = colorTable.Colors();
    if (first >= entries.size()) return 0;
    const std::size_t count = std::min(output.size(), entries.size() - first);
    std::ranges::copy(entries.subspan(first, count), output.begin());
    return count;
}

void DibSection::SetColorTable(std::size_t first, std::span<const Color> entries) {
    for (std::size_t i = 0; i < entries.size() && first + i < colorTable.GetCount(); ++i) {
        colorTable.SetColor(first + i, entries[i] | alphaMask);
    }
}

void DibSection::Draw(DrawingSurface& surface, const QRect& destination) const {
    surface.StretchBits(*this, destination);
}

} // namespace keltavlo
