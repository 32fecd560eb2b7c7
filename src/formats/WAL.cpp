#include "formats/WAL.h"

#include "formats/GameTexture.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <cstring>

namespace keltavlo {

using namespace gametexture;

namespace {

// The layout in the file, little-endian.
struct Header {
    char name[32]; // NUL-terminated unless full
    std::uint32_t width, height;
    std::uint32_t offsets[levelCount]; // of the levels, from the start of the file
    char nextFrameName[32];            // like the name
    std::uint32_t surfaceFlags, contents, value;
};
static_assert(sizeof(Header) == 100);

} // namespace

void ReadWAL(InputStream& in, Texture& texture, const ColorList* palette) {
    Header header;
    in.Read(&header, sizeof header);
    CheckSides(in, header.width, header.height);
    in.Seek(header.offsets[0]);
    ReadIndices(in, texture, static_cast<int>(header.width), static_cast<int>(header.height),
                PaletteOf(texture, palette));
    texture.quake2 = {GetName(header.name), GetName(header.nextFrameName), header.surfaceFlags,
                      header.contents, header.value};
}

void WriteWAL(OutputStream& out, const Texture& texture, const ColorList* palette) {
    const ColorList& colors = PaletteOf(texture, palette);
    CheckSides(out, texture);
    CheckPalette(out, colors);
    Header header{};
    PutName(header.name, texture.quake2.name, NameEnd::withNul);
    header.width = static_cast<std::uint32_t>(texture.GetWidth());
    header.height = static_cast<std::uint32_t>(texture.GetHeight());
    const auto offsets = LevelOffsets(sizeof header, texture.GetWidth(), texture.GetHeight());
    std::memcpy(header.offsets, offsets.data(), sizeof header.offsets);
    PutName(header.nextFrameName, texture.quake2.nextFrameName, NameEnd::withNul);
    header.surfaceFlags = texture.quake2.surfaceFlags;
    header.contents = texture.quake2.contents;
    header.value = texture.quake2.value;
    out.Write(&header, sizeof header);
    WriteMipLevels(out, texture, colors);
}

} // namespace keltavlo
