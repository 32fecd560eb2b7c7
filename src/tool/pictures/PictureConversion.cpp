#include "tool/pictures/PictureConversion.h"

#include "formats/GameTexture.h"
#include "formats/TextureBytes.h"
#include "framework/core/Exceptions.h"
#include "framework/core/Path.h"
#include "tool/pictures/IndexingRules.h"
#include "tool/pictures/PaletteChoice.h"
#include "tool/pictures/PictureFormat.h"
#include "tool/pictures/PictureIndexer.h"
#include "tool/pictures/SourcePicture.h"
#include "tool/pictures/TextureNames.h"

#include <algorithm>

namespace keltavlo {

namespace {

const PictureFormat& FormatOf(std::string_view name) {
    if (const PictureFormat* format = FindPictureFormat(name)) return *format;
    throw CException("The file is not a picture.");
}

const PictureFormat& WritableFormatOf(std::string_view name) {
    const PictureFormat* format = FindPictureFormat(name);
    if (format && format->codec.write) return *format;
    throw CException("The name of the output must end in " + ListWritableFormats(".") + ".");
}

std::string SizeOf(const Image& picture) {
    return std::to_string(picture.GetWidth()) + " x " + std::to_string(picture.GetHeight());
}

void FitSides(Texture& texture, std::vector<std::string>& notes) {
    const int width = gametexture::FittingSide(texture.GetWidth());
    const int height = gametexture::FittingSide(texture.GetHeight());
    if (width == texture.GetWidth() && height == texture.GetHeight()) return;
    const bool isCropped = width < texture.GetWidth() || height < texture.GetHeight();
    const std::string before = SizeOf(texture);
    texture = texture.Resized(width, height);
    notes.push_back((isCropped ? "was cropped to " : "was resized from " + before + " to ") +
                    SizeOf(texture) + " to fit the games.");
}

bool HasTransparentTexels(const Image& picture) {
    return std::ranges::any_of(picture.Pixels(), [](Color pixel) { return Alpha(pixel) < cutoutAlpha; });
}

IndexingRules RulesOf(const Image& picture, const PictureFormat& to, bool hasCutoutName,
                      const PaletteOptions& options) {
    IndexingRules rules{options.dither, options.protectFullbright, hasCutoutName};
    // If the options name the palette of a game, only its last color can be transparent.
    if (to.paletteUse == PaletteUse::optional)
        rules.isCutout = options.source != PaletteSource::automatic && HasTransparentTexels(picture) &&
                         (hasCutoutName || options.source != PaletteSource::own);
    return rules;
}

// Returns the file's bytes.
std::vector<std::byte> Encode(SourcePicture& picture, const PictureFormat& to, const IndexingRules& rules,
                              const PaletteSet& palettes, const ConversionOptions& options) {
    Texture& texture = picture.texture;
    const std::optional<OutputPalette> palette =
        ChoosePalette(picture, to, palettes, options.palette.source, rules);
    if (palette) PutInPalette(texture, palette->colors, rules, gametexture::levelCount);
    texture.palette.reset();
    if (palette && (palette->isCarried || options.embedPalette)) texture.SetPalette(palette->colors);
    return EncodeTexture(to.codec, texture, palette ? &palette->colors : nullptr);
}

} // namespace

ConvertedFile ConvertPicture(CFile& source, std::string_view sourceName, std::string_view targetName,
                             const PaletteSet& palettes, const ConversionOptions& options) {
    const PictureFormat& from = FormatOf(sourceName);
    const PictureFormat& to = WritableFormatOf(targetName);
    SourcePicture picture =
        ReadSource(source, from, sourceName,
                   PaletteToRead(from, !to.IsAlwaysPaletted(), palettes, options.palette.source));
    ConvertedFile file;
    if (to.codec.hasGameSizes) FitSides(picture.texture, file.notes);
    const std::string name =
        options.textureName.empty() ? std::string(BaseNameOf(targetName)) : options.textureName;
    NameTexture(picture.texture, name, options.fields, to.codec.name, file.notes);
    const bool hasCutoutName = IsCutoutName(name) || IsCutoutName(targetName);
    file.bytes =
        Encode(picture, to, RulesOf(picture.texture, to, hasCutoutName, options.palette), palettes, options);
    return file;
}

Texture ReadPicture(CFile& source, std::string_view sourceName, const PaletteSet& palettes,
                    const PaletteOptions& options) {
    const PictureFormat& from = FormatOf(sourceName);
    return ReadSource(source, from, sourceName, PaletteToRead(from, true, palettes, options.source)).texture;
}

} // namespace keltavlo
