#include "tool/pictures/SourcePicture.h"

#include "formats/TextureBytes.h"
#include "image/picture/ColorList.h"
#include "tool/pictures/IndexingRules.h"
#include "tool/pictures/PictureFormat.h"
#include "tool/pictures/TextureNames.h"

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

bool IsCutout(const Texture& texture, std::string_view name) {
    return IsCutoutName(name) || IsCutoutName(texture.quakeName) || IsCutoutName(texture.quake2.name);
}

// Returns false if a color of the palette is transparent, because then the palette itself determines which
// texels are transparent.
bool CanBeCut(const ColorList& palette) {
    return palette.GetCount() > cutoutIndex &&
           std::ranges::all_of(palette.Colors(), [](Color color) { return Alpha(color) == opaqueAlpha; });
}

void CutOut(Texture& texture) {
    const Color transparent = (*texture.palette)[cutoutIndex] & ~alphaMask;
    texture.palette->SetColor(cutoutIndex, transparent);
    const std::span<const std::uint8_t> indices = texture.IndicesOfLevel(0);
    for (std::size_t i = 0; i < indices.size(); ++i)
        if (indices[i] == cutoutIndex) texture.Pixels()[i] = transparent;
}

} // namespace

SourcePicture ReadSource(CFile& file, const PictureFormat& format, std::string_view name,
                         const ColorList* palette) {
    Texture wanted;
    wanted.indices.emplace();
    SourcePicture source{DecodeTexture(format.codec, file, palette, std::move(wanted)), false};
    Texture& texture = source.texture;
    source.carriesPalette = texture.palette != nullptr;
    if (texture.IndicesOfLevel(0).empty()) return source;
    if (!source.carriesPalette) texture.SetPalette(*palette);
    if (IsCutout(texture, name) && CanBeCut(std::as_const(*texture.palette))) CutOut(texture);
    return source;
}

} // namespace keltavlo
