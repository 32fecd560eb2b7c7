#include "preview3d/MDLDocument.h"

#include "image/picture/ColorList.h"
#include "image/picture/StoredPixels.h"
#include "resources/streams/InputStream.h"

#include <cstring>
#include <span>

namespace keltavlo {

namespace {

using FileBytes = std::span<const std::byte>;

// The header fields that locate the textures, little-endian.
constexpr std::uint64_t placeOfTable = 180;
struct TextureTable {
    std::int32_t count;
    std::uint32_t offset; // from the start of the file; 0 means no textures
};
static_assert(sizeof(TextureTable) == 8);

struct TextureRecord {
    char name[64];            // not used
    std::int32_t flags;       // not used
    std::int32_t width;       // pixels
    std::int32_t height;      // pixels
    std::uint32_t dataOffset; // of width x height palette indices, top row first; 256 colors follow

    std::uint64_t PixelCount() const {
        return static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height);
    }
};
static_assert(sizeof(TextureRecord) == 80);

constexpr std::size_t paletteSize = 256 * rgbTripleSize;

bool Contains(FileBytes file, std::uint64_t offset, std::uint64_t size) {
    return offset + size <= file.size();
}

bool IsPictureSide(std::int32_t side) {
    return side >= 0 && side <= maximumPictureSide;
}

bool IsReadable(FileBytes file, const TextureRecord& record) {
    return IsPictureSide(record.width) && IsPictureSide(record.height) &&
           record.PixelCount() <= maximumPictureBytes / sizeof(Color) &&
           Contains(file, record.dataOffset, record.PixelCount() + paletteSize);
}

// Returns the records; fails if one of them, or what it points to, is outside the file.
std::vector<TextureRecord> ReadRecords(const InputStream& in, FileBytes file) {
    if (!Contains(file, placeOfTable, sizeof(TextureTable))) in.Fail(StreamError::badIndex);
    TextureTable table;
    std::memcpy(&table, &file[placeOfTable], sizeof table);
    if (table.offset == 0 || table.count == 0) return {};
    const std::uint64_t size = static_cast<std::uint64_t>(table.count) * sizeof(TextureRecord);
    if (table.count < 0 || !Contains(file, table.offset, size)) in.Fail(StreamError::badIndex);
    std::vector<TextureRecord> records(static_cast<std::size_t>(table.count));
    std::memcpy(records.data(), &file[table.offset], size);
    // Textures may share bytes, but a small file must not turn into a thousand large pictures.
    std::uint64_t pixels = 0;
    for (const TextureRecord& record : records) {
        if (!IsReadable(file, record)) in.Fail(StreamError::badIndex);
        pixels += record.PixelCount();
    }
    if (pixels > file.size()) in.Fail(StreamError::badIndex);
    return records;
}

Image Decode(FileBytes file, const TextureRecord& record) {
    const std::span<const std::uint8_t> bytes(reinterpret_cast<const std::uint8_t*>(file.data()),
                                              file.size());
    const std::span<const std::uint8_t> data = bytes.subspan(record.dataOffset);
    const ColorList colors = ColorsFromTriples(data.subspan(record.PixelCount(), paletteSize));
    Image image(record.width, record.height);
    ExpandIndices(data, colors.Colors(), image.Pixels());
    return image;
}

} // namespace

void MDLDocument::ReadContents(InputStream& in) {
    std::vector<std::byte> bytes(in.GetLength());
    in.Read(bytes.data(), bytes.size());
    fileData = std::move(bytes);
    textures.clear();
    for (const TextureRecord& record : ReadRecords(in, fileData))
        textures.push_back(Decode(fileData, record));
}

} // namespace keltavlo
