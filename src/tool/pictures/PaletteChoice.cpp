#include "tool/pictures/PaletteChoice.h"

#include "framework/core/Exceptions.h"
#include "tool/pictures/IndexingRules.h"
#include "tool/pictures/OwnPalette.h"
#include "tool/pictures/PaletteSet.h"
#include "tool/pictures/PictureFormat.h"
#include "tool/pictures/SourcePicture.h"

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

constexpr std::size_t fullCount = 256;
// The color of transparent texels in programs that do not know about them.
constexpr Color cutoutColor = Compose(0, 0, 255);

const ColorList* PaletteOfGame(const PaletteSet& palettes, DefaultPalette game) {
    switch (game) {
    case DefaultPalette::quake:
        return &palettes.quake;
    case DefaultPalette::quake2:
        return &palettes.quake2;
    case DefaultPalette::none:
        break;
    }
    return nullptr;
}

// Returns null for sources that name no palette.
const ColorList* NamedPalette(const PaletteSet& palettes, PaletteSource source) {
    switch (source) {
    case PaletteSource::quake:
        return &palettes.quake;
    case PaletteSource::quake2:
        return &palettes.quake2;
    case PaletteSource::hexen2:
        return &palettes.hexen2;
    case PaletteSource::file:
        return &palettes.file;
    case PaletteSource::automatic:
    case PaletteSource::own:
        break;
    }
    return nullptr;
}

bool HaveSameColors(const ColorList& left, const ColorList& right) {
    return std::ranges::equal(left.Colors(), right.Colors(),
                              [](Color a, Color b) { return ((a ^ b) & ~alphaMask) == 0; });
}

// Returns the palette as files of the games store it: full and opaque.
ColorList FullPalette(const ColorList& palette) {
    std::vector<Color> colors(palette.Colors().begin(), palette.Colors().end());
    colors.resize(fullCount);
    for (Color& color : colors) color |= alphaMask;
    return ColorList(std::move(colors));
}

// Makes a palette of opaque colors, because a texel's alpha only decides whether it is cut out.
ColorList OwnOpaquePalette(const Image& picture, const IndexingRules& rules) {
    std::vector<Color> pixels;
    for (const Color pixel : picture.Pixels())
        if (!rules.isCutout || Alpha(pixel) >= cutoutAlpha) pixels.push_back(pixel | alphaMask);
    ColorList palette = MakeOwnPalette(pixels, rules.UsableColors(fullCount));
    if (!rules.isCutout) return palette;
    palette = FullPalette(palette);
    palette.SetColor(cutoutIndex, cutoutColor);
    return palette;
}

ColorList OwnPalette(const Image& picture, const PictureFormat& to, const IndexingRules& rules) {
    if (to.paletteUse == PaletteUse::game)
        throw CException("A file of this format cannot contain a palette of its own.");
    if (to.IsAlwaysPaletted() || rules.isCutout) return OwnOpaquePalette(picture, rules);
    return MakeOwnPalette(picture.Pixels(), rules.UsableColors(fullCount));
}

std::optional<OutputPalette> AutomaticPalette(const SourcePicture& picture, const PictureFormat& to,
                                              const ColorList* ofGame) {
    const ColorList* ofPicture = picture.texture.palette.get();
    switch (to.paletteUse) {
    case PaletteUse::game:
        return OutputPalette{*ofGame, false};
    case PaletteUse::gameOrOwn:
        if (!picture.carriesPalette || HaveSameColors(*ofPicture, *ofGame))
            return OutputPalette{*ofGame, false};
        return OutputPalette{*ofPicture, true};
    case PaletteUse::own:
        return OutputPalette{ofPicture ? *ofPicture : *ofGame, true};
    case PaletteUse::optional:
        if (ofPicture) return OutputPalette{*ofPicture, true};
        break;
    case PaletteUse::none:
        break;
    }
    return {};
}

std::optional<OutputPalette> PlainPalette(const SourcePicture& picture, const PictureFormat& to,
                                          const PaletteSet& palettes, PaletteSource source,
                                          const IndexingRules& rules) {
    if (to.paletteUse == PaletteUse::none) return {};
    if (source == PaletteSource::own) return OutputPalette{OwnPalette(picture.texture, to, rules), true};
    if (const ColorList* named = NamedPalette(palettes, source))
        return OutputPalette{*named,
                             to.paletteUse == PaletteUse::own || to.paletteUse == PaletteUse::optional};
    return AutomaticPalette(picture, to, PaletteOfGame(palettes, to.codec.defaultPalette));
}

} // namespace

const ColorList* PaletteToRead(const PictureFormat& from, bool toColors, const PaletteSet& palettes,
                               PaletteSource source) {
    const ColorList* named = toColors ? NamedPalette(palettes, source) : nullptr;
    return named ? named : PaletteOfGame(palettes, from.codec.defaultPalette);
}

std::optional<OutputPalette> ChoosePalette(const SourcePicture& picture, const PictureFormat& to,
                                           const PaletteSet& palettes, PaletteSource source,
                                           const IndexingRules& rules) {
    std::optional<OutputPalette> palette = PlainPalette(picture, to, palettes, source, rules);
    if (!palette) return palette;
    ColorList& colors = palette->colors;
    if (to.IsAlwaysPaletted() || rules.isCutout) colors = FullPalette(colors);
    if (rules.isCutout) colors.SetColor(cutoutIndex, std::as_const(colors)[cutoutIndex] & ~alphaMask);
    return palette;
}

} // namespace keltavlo
