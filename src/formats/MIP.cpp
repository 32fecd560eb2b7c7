#include "formats/MIP.h"

#include "formats/GameTexture.h"
#include "formats/MIPHeader.h"
#include "image/picture/ColorList.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace keltavlo {

using namespace gametexture;

namespace {

// A file has a palette only if it ends in a full one. Some tools pad the palette to a multiple of four bytes.
constexpr std::int16_t fullCount = fullMIPPaletteCount;
constexpr std::int64_t fullTrailerSize = sizeof fullCount + fullCount * rgbTripleSize;
constexpr std::int64_t maximumPadding = 2;

bool IsTrailerSize(std::int64_t size) {
    return size >= fullTrailerSize && size <= fullTrailerSize + maximumPadding;
}

// Returns null if what follows the position does not have the length of a full palette.
std::unique_ptr<ColorList> ReadTrailer(InputStream& in, std::uint64_t position) {
    if (!IsTrailerSize(static_cast<std::int64_t>(in.GetLength()) - static_cast<std::int64_t>(position)))
        return nullptr;
    in.Seek(position);
    const auto count = in.Read<std::int16_t>();
    if (count < 1 || count > fullCount) in.Fail(StreamError::badIndex);
    std::vector<std::uint8_t> triples(static_cast<std::size_t>(count) * rgbTripleSize);
    in.Read(std::span<std::uint8_t>(triples));
    return std::make_unique<ColorList>(ColorsFromTriples(triples));
}

void WriteTrailer(OutputStream& out, const ColorList& palette) {
    out.Write(static_cast<std::int16_t>(palette.GetCount()));
    std::vector<std::uint8_t> triples(palette.GetCount() * rgbTripleSize);
    PutTriples(palette, triples);
    out.Write(std::span<const std::uint8_t>(triples));
}

} // namespace

void ReadMIP(InputStream& in, Texture& texture, const ColorList* palette) {
    const std::uint64_t start = in.GetPosition();
    MIPHeader header;
    in.Read(&header, sizeof header);
    CheckSides(in, header.width, header.height);
    std::unique_ptr<ColorList> ownPalette = ReadTrailer(in, start + header.GetEndOfLevels());
    in.Seek(start + header.offsets[0]);
    ReadIndices(in, texture, static_cast<int>(header.width), static_cast<int>(header.height),
                ownPalette ? *ownPalette : PaletteOf(texture, palette));
    if (ownPalette) texture.palette = std::move(ownPalette);
    texture.quakeName = GetName(header.name);
}

void WriteMIP(OutputStream& out, const Texture& texture, const ColorList* palette) {
    const ColorList& colors = PaletteOf(texture, palette);
    CheckSides(out, texture);
    CheckPalette(out, colors);
    MIPHeader header{};
    PutName(header.name, texture.quakeName, NameEnd::anyCharacter);
    header.width = static_cast<std::uint32_t>(texture.GetWidth());
    header.height = static_cast<std::uint32_t>(texture.GetHeight());
    const auto offsets = LevelOffsets(sizeof header, texture.GetWidth(), texture.GetHeight());
    std::memcpy(header.offsets, offsets.data(), sizeof header.offsets);
    out.Write(&header, sizeof header);
    WriteMipLevels(out, texture, colors);
    if (texture.palette) WriteTrailer(out, colors);
}

} // namespace keltavlo
