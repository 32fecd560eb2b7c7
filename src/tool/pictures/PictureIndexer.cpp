#include "tool/pictures/PictureIndexer.h"

#include "image/picture/ColorList.h"
#include "image/picture/NearestSearch.h"
#include "image/picture/Texture.h"
#include "tool/pictures/BlockSummary.h"
#include "tool/pictures/IndexingRules.h"

#include <algorithm>
#include <array>

namespace keltavlo {

namespace {

ColorList Part(const ColorList& list, std::size_t first, std::size_t end) {
    const std::span<const Color> colors = list.Colors();
    if (first >= end) return {};
    return ColorList(std::vector<Color>(colors.begin() + static_cast<std::ptrdiff_t>(first),
                                        colors.begin() + static_cast<std::ptrdiff_t>(end)));
}

// An opaque entry matches its color whatever alpha the texel has.
bool IsSameColor(Color source, Color entry) {
    return source == entry || (Alpha(entry) == opaqueAlpha && ((source ^ entry) & ~alphaMask) == 0);
}

// Maps colors to the indices of a palette by the rules.
class Indexer {
public:
    Indexer(const ColorList& targetPalette, const IndexingRules& useRules)
        : rules(useRules), palette(targetPalette),
          usable(Part(palette, 0, rules.UsableColors(palette.GetCount()))),
          fullbright(Part(palette, firstFullbright,
                          std::min<std::size_t>(palette.GetCount(), rules.isCutout ? cutoutIndex : 256))) {}

    IndexPlane FromColors(const Image& picture) {
        IndexPlane plane(picture.Pixels().size());
        if (!rules.dither) {
            search.FindIndices(picture.Pixels(), plane);
            return plane;
        }
        Image dithered = picture;
        Dither(dithered);
        search.FindIndices(dithered.Pixels(), plane);
        return plane;
    }

    IndexPlane FromIndices(std::span<const std::uint8_t> source, const ColorList& sourcePalette) {
        std::array<std::uint8_t, 256> map{};
        for (std::size_t i = 0; i < sourcePalette.GetCount(); ++i) {
            const bool isFree = !rules.isCutout || i != cutoutIndex;
            const bool isSame = i < palette.GetCount() && IsSameColor(sourcePalette[i], palette[i]);
            map[i] = static_cast<std::uint8_t>(isFree && isSame ? i : search.FindIndex(sourcePalette[i]));
        }
        IndexPlane plane(source.size());
        std::ranges::transform(source, plane.begin(), [&](std::uint8_t index) { return map[index]; });
        return plane;
    }

    void CutOut(IndexPlane& plane, std::span<const Color> pixels) const {
        if (!rules.isCutout) return;
        for (std::size_t i = 0; i < plane.size(); ++i)
            if (Alpha(pixels[i]) < cutoutAlpha) plane[i] = cutoutIndex;
    }

    // Returns the indices of a mip level from those of the picture.
    IndexPlane FromBlocks(const Texture& texture, const IndexPlane& picture, int level) {
        IndexPlane plane;
        for (int y = 0; y < texture.GetHeight() >> level; ++y)
            for (int x = 0; x < texture.GetWidth() >> level; ++x)
                plane.push_back(FromBlock(SummarizeBlock(texture, picture, x, y, level)));
        return plane;
    }

private:
    void Dither(Image& picture) {
        if (rules.isCutout)
            for (int y = 0; y < picture.GetHeight(); ++y) DitherSolid(picture.Row(y));
        else
            search.Diffuse(picture.Pixels(), static_cast<std::size_t>(picture.GetWidth()));
    }

    // Does not spread the error of transparent texels, because their color means nothing.
    void DitherSolid(std::span<Color> row) {
        const auto isSolid = [](Color pixel) { return Alpha(pixel) >= cutoutAlpha; };
        for (auto place = row.begin(); place != row.end();) {
            const auto first = std::find_if(place, row.end(), isSolid);
            place = std::find_if_not(first, row.end(), isSolid);
            const std::span<Color> run(first, place);
            search.Diffuse(run, run.size());
        }
    }

    std::uint8_t FromBlock(const BlockSummary& block) {
        if (rules.isCutout && block.isTransparent) return cutoutIndex;
        const bool staysBright = rules.protectFullbright && block.isFullbright;
        const std::size_t index = staysBright ? firstFullbright + fullbright.FindNearestIndex(block.color)
                                              : search.FindIndex(block.color);
        return static_cast<std::uint8_t>(index);
    }

    const IndexingRules& rules;
    const ColorList& palette;
    const ColorList usable;
    const ColorList fullbright;
    NearestSearch search{usable};
};

} // namespace

void PutInPalette(Texture& texture, const ColorList& palette, const IndexingRules& rules,
                  std::size_t levelCount) {
    Indexer indexer(palette, rules);
    const std::span<const std::uint8_t> source = texture.IndicesOfLevel(0);
    const bool isMapped = !source.empty() && (!rules.dither || *texture.palette == palette);
    std::vector<IndexPlane> levels;
    levels.push_back(isMapped ? indexer.FromIndices(source, *texture.palette) : indexer.FromColors(texture));
    indexer.CutOut(levels[0], texture.Pixels());
    if (rules.isCutout || rules.protectFullbright)
        for (std::size_t k = 1; k < levelCount; ++k)
            levels.push_back(indexer.FromBlocks(texture, levels[0], static_cast<int>(k)));
    texture.indices = std::move(levels);
}

} // namespace keltavlo
