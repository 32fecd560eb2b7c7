#include "image/picture/DibDescription.h"

#include "image/picture/PictureSize.h"
#include "resources/streams/InputStream.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

namespace keltavlo {

namespace {

constexpr std::uint32_t sizeFieldBytes = 4;
constexpr std::uint32_t masksSize = 12;

// The oldest form of the header.
struct OldHeader {
    static constexpr std::uint32_t storedSize = 12;

    std::uint32_t size;
    std::uint16_t width = 0, height = 0, planes = 1, bitCount = 1;
};
static_assert(sizeof(OldHeader) == OldHeader::storedSize);

// The 40-byte header and the masks, which follow it or are the next fields of a longer header.
struct Header {
    DibHeader fields;
    ChannelMasks masks;
};
static_assert(sizeof(DibHeader) == DibHeader::storedSize);
static_assert(sizeof(Header) == DibHeader::storedSize + masksSize);

enum Compression : std::uint32_t { runs8 = 1, runs4 = 2, jpeg = 4, png = 5 };

// Reads the fields that a header of this size has and keeps the others. The stream is after the size before
// the call and after the header afterwards.
template <class Fields>
void ReadFields(InputStream& in, Fields& header, std::uint32_t size) {
    const std::uint32_t known = std::min<std::uint32_t>(size, sizeof header);
    std::array<std::byte, sizeof header> bytes;
    std::memcpy(bytes.data(), &header, sizeof header);
    in.Read(bytes.data() + sizeFieldBytes, known - sizeFieldBytes);
    std::memcpy(&header, bytes.data(), sizeof header);
    in.Seek(size - known, CFile::From::current);
}

DibHeader ReadOldHeader(InputStream& in, std::uint32_t size) {
    OldHeader old{size};
    ReadFields(in, old, size);
    if (old.bitCount == 16 || old.bitCount == 32) in.Fail(StreamError::badIndex);
    DibHeader header;
    header.width = old.width;
    header.height = old.height;
    header.planes = old.planes;
    header.bitCount = old.bitCount;
    return header;
}

Header ReadHeader(InputStream& in, std::uint32_t size) {
    Header header{};
    header.fields.planes = 0; // as in every field that a short header lacks
    header.masks = {0, 0, 0};
    ReadFields(in, header, size);
    header.fields.size = DibHeader::storedSize;
    return header;
}

void CheckFields(const InputStream& in, const DibHeader& header) {
    const auto isSide = [](std::int64_t side) { return side > 0 && side <= maximumPictureSide; };
    const bool hasPicture = isSide(header.width) && isSide(std::abs(std::int64_t{header.height}));
    const bool isBitmap = header.planes == 1 && DibHeader::IsBitCount(header.bitCount);
    const bool hasSize = header.compression == DibHeader::uncompressed || header.imageSize != 0;
    if (!hasPicture || !isBitmap || !hasSize) in.Fail(StreamError::badIndex);
}

const char* RefusalOf(std::uint32_t compression) {
    switch (compression) {
    case runs8:
    case runs4:
        return "Run-length encoded bitmaps are not supported.";
    case jpeg:
    case png:
        return "Bitmaps that hold a JPEG or PNG picture are not supported.";
    default:
        return "The compression of this bitmap is not supported.";
    }
}

void CheckCompression(const InputStream& in, const DibHeader& header) {
    if (header.compression == DibHeader::uncompressed || header.HasMasks()) return;
    in.Fail(StreamError::badIndex, RefusalOf(header.compression));
}

bool IsOneRun(std::uint32_t mask) {
    const std::uint32_t run = mask == 0 ? 0 : mask >> std::countr_zero(mask);
    return (run & (run + 1)) == 0;
}

void CheckMasks(const InputStream& in, const ChannelMasks& masks, int bitCount) {
    const std::uint32_t together = masks.red | masks.green | masks.blue;
    const bool overlap = std::popcount(together) !=
                         std::popcount(masks.red) + std::popcount(masks.green) + std::popcount(masks.blue);
    const bool areRuns = IsOneRun(masks.red) && IsOneRun(masks.green) && IsOneRun(masks.blue);
    const bool fit = bitCount == 32 || together >> bitCount == 0;
    if (together == 0 || overlap || !areRuns || !fit) in.Fail(StreamError::badIndex);
}

// Reads the entries that an index can reach. Leaves the stream after all entries.
ColorList ReadColors(InputStream& in, const DibHeader& header, std::size_t entrySize) {
    const std::size_t entries = header.bitCount <= 8 ? header.ColorTableEntries() : header.colorsUsed;
    const std::size_t reached = header.bitCount <= 8 ? std::size_t{1} << header.bitCount : 0;
    std::vector<Color> colors(std::min(entries, reached));
    for (Color& color : colors) {
        in.Read(&color, entrySize);
        color |= alphaMask;
    }
    in.Seek(static_cast<std::int64_t>((entries - colors.size()) * entrySize), CFile::From::current);
    return ColorList(std::move(colors));
}

// Reads from the size of the information header to the end of the color table.
DibDescription ReadInformation(InputStream& in) {
    constexpr std::size_t oldEntrySize = 3;
    constexpr std::size_t entrySize = 4;
    const auto size = in.Read<std::uint32_t>();
    if (size < sizeFieldBytes) in.Fail(StreamError::badIndex);
    const bool isOld = size <= OldHeader::storedSize;
    const Header header = isOld ? Header{ReadOldHeader(in, size), {}} : ReadHeader(in, size);
    DibDescription description{header.fields, {}, {}};
    CheckFields(in, description.header);
    CheckCompression(in, description.header);
    description.masks = ChannelMasks::Default(description.header.bitCount);
    if (description.header.HasMasks()) {
        description.masks = header.masks;
        if (size <= DibHeader::storedSize) in.Read(&description.masks, masksSize);
        CheckMasks(in, description.masks, description.header.bitCount);
    }
    description.colors = ReadColors(in, description.header, isOld ? oldEntrySize : entrySize);
    description.header.colorsUsed = static_cast<std::uint32_t>(description.colors.GetCount());
    return description;
}

} // namespace

DibDescription ReadDibDescription(InputStream& in, bool withFileHeader) {
    const std::uint64_t start = in.GetPosition();
    DibFileHeader fileHeader;
    if (withFileHeader) {
        in.Read(&fileHeader, sizeof fileHeader);
        if (fileHeader.type != DibFileHeader::bitmapType) in.Fail(StreamError::badClass);
    }
    DibDescription description = ReadInformation(in);
    if (withFileHeader) in.Seek(start + fileHeader.rowsOffset);
    if (description.Stride() * static_cast<std::uint64_t>(description.Rows()) > in.GetRemaining())
        in.Fail(StreamError::endOfFile);
    return description;
}

} // namespace keltavlo
