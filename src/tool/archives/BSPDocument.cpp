#include "tool/archives/BSPDocument.h"

#include "archives/StoredEntry.h"
#include "formats/MIPHeader.h"
#include "image/picture/ColorList.h"
#include "resources/streams/OutputStream.h"
#include "tool/archives/ArchiveNotes.h"

#include <cstring>

namespace keltavlo {

namespace {

// The start of the file; little-endian. More lumps follow.
struct Header {
    std::int32_t version;
    struct Lump {
        std::uint32_t offset; // bytes from the start of the file
        std::uint32_t length; // bytes
    } lumps[3];
};
static_assert(sizeof(Header) == 28);

constexpr std::int32_t quakeVersion = 29, halfLifeVersion = 30;
constexpr std::int32_t quake2Identification = 0x50534249; // "IBSP"
constexpr std::size_t textureLump = 2;
// The lump begins with the number of textures and the offset of each from the start of the lump.
constexpr std::int32_t noTexture = -1;

// In Half-Life's maps, a palette follows each texture.
constexpr std::uint64_t paletteSize = sizeof fullMIPPaletteCount + fullMIPPaletteCount * rgbTripleSize;

class BSPEntry final : public StoredEntry {
public:
    BSPEntry(std::string textureName, std::uint64_t offset, std::uint64_t length)
        : name(std::move(textureName) + ".mip"), extent{offset, length, length} {}
    std::string GetName() const override { return std::string(FileNameOf(name)); }

protected:
    Extent GetExtent() const override { return extent; }

private:
    std::string name;
    Extent extent;
};

Header ReadHeader(InputStream& in) {
    Header header;
    in.Read(&header, sizeof header);
    if (header.version == quake2Identification)
        in.FailUnnamed(StreamError::badClass,
                       "This is a map of Quake II or a later game, which contains no textures.");
    if (header.version != quakeVersion && header.version != halfLifeVersion)
        in.FailUnnamed(StreamError::badClass, "This is not a map of Quake or Half-Life (version 29 or 30).");
    return header;
}

std::vector<std::int32_t> ReadOffsets(InputStream& in, std::uint64_t lumpOffset) {
    in.Seek(lumpOffset);
    const auto count = in.Read<std::uint32_t>();
    if (count > in.GetRemaining() / sizeof(std::int32_t)) in.Fail(StreamError::badIndex);
    std::vector<std::int32_t> offsets(count);
    in.Read(std::span<std::int32_t>(offsets));
    return offsets;
}

MIPHeader ReadTextureHeader(InputStream& in, std::uint64_t position) {
    in.Seek(position);
    if (in.GetRemaining() < sizeof(MIPHeader)) in.Fail(StreamError::badIndex);
    MIPHeader header;
    in.Read(&header, sizeof header);
    return header;
}

void TellLeftOut(const std::string& map, std::size_t count) {
    if (count == 0 || !ArchiveNotes::Find()) return;
    ArchiveNotes::Get().NoteArchive(
        "\"" + ToDisplayPath(map) + "\" only names " + std::to_string(count) +
        (count == 1 ? " texture, whose pixels are" : " textures, whose pixels are") + " in a WAD file.");
}

} // namespace

void BSPDocument::ReadContents(InputStream& in) {
    BeginReading(in);
    const Header header = ReadHeader(in);
    if (header.lumps[textureLump].length == 0) return;
    const std::uint64_t lump = header.lumps[textureLump].offset;
    std::uint64_t left = in.GetLength();
    std::size_t leftOut = 0;
    for (const std::int32_t offset : ReadOffsets(in, lump)) {
        if (offset == noTexture) continue;
        const std::uint64_t position = lump + static_cast<std::uint32_t>(offset);
        const MIPHeader texture = ReadTextureHeader(in, position);
        if (texture.offsets[0] == 0) {
            ++leftOut;
            continue;
        }
        const std::uint64_t length =
            texture.GetEndOfLevels() + (header.version == halfLifeVersion ? paletteSize : 0);
        // Otherwise textures that share bytes could make a small file arbitrarily large.
        if (length > left || position + length > in.GetLength()) in.Fail(StreamError::badIndex);
        left -= length;
        const std::string name = gametexture::GetName(texture.name);
        AddNamedEntry(name, std::make_unique<BSPEntry>(name, position, length));
    }
    TellLeftOut(GetRootName(), leftOut);
}

void BSPDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
