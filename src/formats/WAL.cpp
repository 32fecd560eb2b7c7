#include "formats/WAL.h"

#include "formats/GameTexture.h"
#include "framework/core/Text.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <cstring>
#include <utility>

namespace {

// As it lies in the file; little-endian.
struct Header {
    char name[32]; // ended by a NUL when shorter
    std::uint32_t width, height;
    std::uint32_t offsets[gametexture::levelCount]; // of the levels, from the start of the file
    char nextFrameName[32];                         // as the name
    std::uint32_t surfaceFlags, contents, value;
};
static_assert(sizeof(Header) == 100);

bool IsAllowedSide(std::uint32_t side) {
    return side <= gametexture::maximumSide && gametexture::IsFittingSide(static_cast<int>(side));
}

template <std::size_t n>
std::string GetName(const char (&field)[n]) {
    return std::string(UpToNul({field, n}));
}

const ColorList& PaletteOf(const Texture& texture, const ColorList* fallback) {
    return texture.palette ? std::as_const(*texture.palette) : *fallback;
}

} // namespace

void ReadWAL(InputStream& in, Texture& texture, const ColorList* palette) {
    Header header;
    in.Read(&header, sizeof header);
    if (!IsAllowedSide(header.width) || !IsAllowedSide(header.height)) in.Fail(StreamError::badIndex);
    in.Seek(header.offsets[0]);
    gametexture::ReadIndices(in, texture, static_cast<int>(header.width), static_cast<int>(header.height),
                             PaletteOf(texture, palette));
    texture.quake2 = {GetName(header.name), GetName(header.nextFrameName), header.surfaceFlags,
                      header.contents, header.value};
}

void WriteWAL(OutputStream& out, const Texture& texture, const ColorList* palette) {
    const int width = texture.GetWidth();
    const int height = texture.GetHeight();
    if (!gametexture::IsFittingSide(width) || !gametexture::IsFittingSide(height))
        out.Fail(StreamError::badIndex);
    Header header{};
    gametexture::PutName(header.name, texture.quake2.name);
    header.width = static_cast<std::uint32_t>(width);
    header.height = static_cast<std::uint32_t>(height);
    const auto offsets = gametexture::LevelOffsets(sizeof header, width, height);
    std::memcpy(header.offsets, offsets.data(), sizeof header.offsets);
    gametexture::PutName(header.nextFrameName, texture.quake2.nextFrameName);
    header.surfaceFlags = texture.quake2.surfaceFlags;
    header.contents = texture.quake2.contents;
    header.value = texture.quake2.value;
    out.Write(&header, sizeof header);
    gametexture::WriteMipLevels(out, texture, PaletteOf(texture, palette));
}
