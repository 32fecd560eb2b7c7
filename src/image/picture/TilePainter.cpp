#include "image/picture/TilePainter.h"

#include "image/picture/ChannelTable.h"
#include "image/picture/Image.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

int Wrapped(std::int64_t position, int size) {
    const auto rest = static_cast<int>(position % size);
    return rest < 0 ? rest + size : rest;
}

// One row of the target, made from one row of texels: each texel `zoom` times, and the whole again and again.
class RowExpander {
public:
    RowExpander(const Image& tiledPicture, const std::uint32_t* table256, const TileViewport& viewport,
                const TileTarget& target)
        : picture(tiledPicture), table(table256), zoom(viewport.zoom), skip(target.left % zoom),
          first(Wrapped(std::int64_t{viewport.scrollX} + target.left / zoom, picture.GetWidth())),
          width(static_cast<std::size_t>(target.width)) {
        const auto shown = static_cast<std::size_t>((skip + target.width + zoom - 1) / zoom);
        texels.resize(std::min(shown, static_cast<std::size_t>(picture.GetWidth())));
        row.resize(std::max(width, texels.size() * static_cast<std::size_t>(zoom)) +
                   static_cast<std::size_t>(skip));
    }

    // The target row that shows this row of texels.
    const Color* Expand(int y) {
        FetchTexels(picture.Row(y));
        std::size_t filled = Magnify();
        const std::size_t wanted = width + static_cast<std::size_t>(skip);
        // Each copy doubles what there is; a multiple of the tile's width, so the tiling goes on.
        while (filled < wanted) {
            const std::size_t count = std::min(filled, wanted - filled);
            std::memcpy(row.data() + filled, row.data(), count * sizeof(Color));
            filled += count;
        }
        return row.data() + skip;
    }

private:
    // The texels from the first one that shows, going round at the edge, through the table.
    void FetchTexels(std::span<const Color> source) {
        const std::size_t start = static_cast<std::size_t>(first);
        const std::size_t untilEdge = std::min(texels.size(), source.size() - start);
        const std::span<Color> out = texels;
        table.Apply(source.subspan(start, untilEdge), out.first(untilEdge));
        table.Apply(source.first(texels.size() - untilEdge), out.subspan(untilEdge));
    }

    template <int factor>
    void MagnifyBy() {
        Color* out = row.data();
        for (const Color texel : texels) {
            for (int i = 0; i < factor; ++i) out[i] = texel;
            out += factor;
        }
    }

    std::size_t Magnify() {
        switch (zoom) {
        case 1:
            std::copy(texels.begin(), texels.end(), row.begin());
            break;
        case 2:
            MagnifyBy<2>();
            break;
        case 4:
            MagnifyBy<4>();
            break;
        case 8:
            MagnifyBy<8>();
            break;
        case 16:
            MagnifyBy<16>();
            break;
        default:
            for (std::size_t i = 0; i < texels.size(); ++i)
                std::fill_n(row.begin() + static_cast<std::ptrdiff_t>(i) * zoom, zoom, texels[i]);
        }
        return texels.size() * static_cast<std::size_t>(zoom);
    }

    const Image& picture;
    ChannelTable table;
    int zoom;
    int skip;  // screen pixels of the first texel that lie left of the target
    int first; // column of that texel
    std::size_t width;
    std::vector<Color> texels;
    std::vector<Color> row;
};

} // namespace

// Each row of texels is expanded once, and copied from the cache to all rows that show it: what is left to do
// is to write the target once.
void PaintTiles(const Image& picture, const std::uint32_t* table256, const TileViewport& viewport,
                const TileTarget& target) {
    RowExpander expander(picture, table256, viewport, target);
    const int zoom = viewport.zoom;
    const int period = picture.GetHeight() * zoom; // rows until the tiling repeats
    const std::size_t rowBytes = static_cast<std::size_t>(target.width) * sizeof(Color);
    for (int start = 0; start < std::min(period, target.height);) {
        const int texelRow = (target.top + start) / zoom;
        const int end = std::min({(texelRow + 1) * zoom - target.top, target.height, period});
        const Color* row =
            expander.Expand(Wrapped(std::int64_t{viewport.scrollY} + texelRow, picture.GetHeight()));
        for (int repeat = 0; repeat < target.height; repeat += period)
            for (int y = start + repeat; y < std::min(end + repeat, target.height); ++y)
                std::memcpy(target.pixels + static_cast<std::size_t>(y) * target.stride, row, rowBytes);
        start = end;
    }
}
