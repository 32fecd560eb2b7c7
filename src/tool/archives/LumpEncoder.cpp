#include "tool/archives/LumpEncoder.h"

#include "formats/MIPHeader.h"
#include "framework/core/CMemFile.h"
#include "framework/core/Path.h"
#include "image/picture/ColorList.h"
#include "image/picture/Texture.h"
#include "tool/archives/PackPlan.h"
#include "tool/pictures/PictureFormat.h"

#include <cstring>

namespace keltavlo {

namespace {

constexpr std::size_t paletteSize = sizeof fullMIPPaletteCount + fullMIPPaletteCount * rgbTripleSize;
constexpr std::size_t paddingSize = 2; // after the palette, in Half-Life's files

MIPHeader HeaderOf(std::span<const std::byte> lump) {
    MIPHeader header;
    std::memcpy(&header, lump.data(), sizeof header);
    return header;
}

bool HasFittingSides(const MIPHeader& header) {
    const auto isFitting = [](std::uint32_t side) {
        return side <= gametexture::maximumSide && gametexture::IsFittingSide(static_cast<int>(side));
    };
    return isFitting(header.width) && isFitting(header.height);
}

// Whether the levels follow the header and one another, as the games expect.
bool HasUsualPlaces(const MIPHeader& header) {
    const auto offsets = gametexture::LevelOffsets(sizeof header, static_cast<int>(header.width),
                                                   static_cast<int>(header.height));
    return std::ranges::equal(offsets, header.offsets);
}

} // namespace

LumpEncoder::LumpEncoder(ArchiveKind archiveKind, const PaletteSet& paletteSet, PaletteOptions paletteOptions)
    : kind(archiveKind), palettes(paletteSet), palette(std::move(paletteOptions)) {}

ConvertedFile LumpEncoder::Encode(std::span<std::byte> bytes, const PlannedEntry& entry) const {
    ConvertedFile lump;
    if (IsReadyLump(bytes, entry)) {
        lump.bytes.assign(bytes.begin(), bytes.end());
    } else {
        CMemFile file(bytes);
        CheckSides(file, entry);
        lump = ConvertPicture(file, entry.source.name, "x" + entry.format, palettes, OptionsFor(entry));
    }
    if (IsWAD(kind)) FinishLump(lump.bytes, entry.name);
    return lump;
}

// Gives the lump its name in the archive's directory, and its padding.
void LumpEncoder::FinishLump(std::vector<std::byte>& lump, const std::string& name) const {
    MIPHeader header = HeaderOf(lump);
    std::ranges::fill(header.name, '\0');
    gametexture::PutName(header.name, name, gametexture::NameEnd::withNul);
    std::memcpy(lump.data(), &header, sizeof header);
    if (kind == ArchiveKind::wad3) lump.resize(header.GetEndOfLevels() + paletteSize + paddingSize);
}

void LumpEncoder::CheckSides(CFile& file, const PlannedEntry& entry) const {
    const Texture picture = ReadPicture(file, entry.source.name, palettes, palette);
    file.Seek(0, CFile::From::begin);
    const bool areFitting =
        gametexture::IsFittingSide(picture.GetWidth()) && gametexture::IsFittingSide(picture.GetHeight());
    if (!areFitting && FindPictureFormat(entry.format)->codec.hasGameSizes)
        throw CException("its sides, " + std::to_string(picture.GetWidth()) + " x " +
                         std::to_string(picture.GetHeight()) + ", are not multiples of 8 from 8 to 256.");
}

bool LumpEncoder::IsReadyLump(std::span<const std::byte> file, const PlannedEntry& entry) const {
    if (!IsWAD(kind) || palette != PaletteOptions() || file.size() < sizeof(MIPHeader) ||
        !EqualNoCase(ExtensionOf(entry.source.name), entry.format))
        return false;
    const MIPHeader header = HeaderOf(file);
    if (!HasFittingSides(header) || !HasUsualPlaces(header)) return false;
    const std::uint64_t surplus = file.size() - header.GetEndOfLevels();
    if (kind == ArchiveKind::wad2) return surplus == 0;
    return surplus == paletteSize || surplus == paletteSize + paddingSize;
}

ConversionOptions LumpEncoder::OptionsFor(const PlannedEntry& entry) const {
    ConversionOptions options;
    options.palette = palette;
    options.fields = entry.source.fields;
    options.embedPalette = kind == ArchiveKind::wad3;
    if (IsWAD(kind)) options.fields.name = entry.name;
    options.textureName = entry.name.substr(0, entry.name.size() - (IsWAD(kind) ? 0 : entry.format.size()));
    if (options.palette.source == PaletteSource::automatic && IsWAD(kind))
        options.palette.source = kind == ArchiveKind::wad2 ? PaletteSource::quake : PaletteSource::own;
    return options;
}

} // namespace keltavlo
