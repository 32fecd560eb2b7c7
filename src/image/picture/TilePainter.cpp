#include "image/picture/TilePainter.h"

#include "image/picture/ChannelTable.h"
#include "image/picture/Image.h"

#include <algorithm>
#include <vector>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace keltavlo {

namespace {

#ifdef __SSE2__

constexpr std::size_t vectorPixels = 4;
constexpr std::size_t lineVectors = 4; // vectors in a cache line, which is written as a whole

std::size_t PixelsToAlignment(const Color* target) {
    const auto misaligned =
        reinterpret_cast<std::uintptr_t>(target) / sizeof(Color) % (vectorPixels * lineVectors);
    return misaligned == 0 ? 0 : vectorPixels * lineVectors - misaligned;
}

// Copies pixels past the processor's caches to memory that will not be read soon. The target is not fetched
// before it is overwritten, which halves the traffic on the memory bus.
void StreamPixels(const Color* source, Color* target, std::size_t count) {
    const std::size_t head = std::min(PixelsToAlignment(target), count);
    std::copy_n(source, head, target);
    std::size_t done = head;
    for (; done + vectorPixels * lineVectors <= count; done += vectorPixels * lineVectors) {
        const auto* from = reinterpret_cast<const __m128i*>(source + done);
        auto* to = reinterpret_cast<__m128i*>(target + done);
        for (std::size_t i = 0; i < lineVectors; ++i) _mm_stream_si128(to + i, _mm_loadu_si128(from + i));
    }
    std::copy(source + done, source + count, target + done);
}

#else

void StreamPixels(const Color* source, Color* target, std::size_t count) {
    std::copy_n(source, count, target);
}

#endif

int Wrapped(std::int64_t position, int size) {
    const auto rest = static_cast<int>(position % size);
    return rest < 0 ? rest + size : rest;
}

// Memory for pixels whose addresses differ, modulo the page size, from those of the memory they are copied
// from or to. If the lower 12 bits of two addresses agree, a processor mistakes a load for one of bytes just
// stored, and waits.
class Scratch {
public:
    Scratch(std::size_t count, const Color* other) : memory(count + pagePixels), room(count) {
        const std::size_t distance = (Index(other) + awayPixels - Index(memory.data())) % pagePixels;
        start = memory.data() + distance;
    }

    std::span<Color> Get() const { return {start, room}; }

private:
    static constexpr std::size_t pagePixels = 4096 / sizeof(Color);
    // Rows of a surface are often a multiple of a quarter page apart. This is far from every quarter.
    static constexpr std::size_t awayPixels = pagePixels * 5 / 8;

    static std::size_t Index(const Color* pixel) {
        return reinterpret_cast<std::uintptr_t>(pixel) / sizeof(Color) % pagePixels;
    }

    std::vector<Color> memory;
    std::size_t room;
    Color* start;
};

template <int factor>
void MagnifyBy(std::span<const Color> texels, Color* output) {
    for (const Color texel : texels) {
        for (int i = 0; i < factor; ++i) output[i] = texel;
        output += factor;
    }
}

void Magnify(std::span<const Color> texels, int zoom, Color* output) {
    switch (zoom) {
    case 2:
        return MagnifyBy<2>(texels, output);
    case 4:
        return MagnifyBy<4>(texels, output);
    case 8:
        return MagnifyBy<8>(texels, output);
    case 16:
        return MagnifyBy<16>(texels, output);
    default:
        for (const Color texel : texels) output = std::fill_n(output, zoom, texel);
    }
}

// Where a row of the target begins in the tiling, and how long it is.
struct RowLayout {
    RowLayout(const Image& picture, const TileViewport& viewport, const TileTarget& target)
        : zoom(viewport.zoom), skip(static_cast<std::size_t>(target.left % zoom)),
          width(static_cast<std::size_t>(target.width)),
          firstColumn(static_cast<std::size_t>(
              Wrapped(std::int64_t{viewport.scrollX} + target.left / zoom, picture.GetWidth()))) {
        const auto factor = static_cast<std::size_t>(zoom);
        texelCount =
            std::min((skip + width + factor - 1) / factor, static_cast<std::size_t>(picture.GetWidth()));
        const std::size_t once = texelCount * factor;
        const std::size_t wanted = std::min(shortestPattern, skip + width);
        patternLength = (wanted + once - 1) / once * once;
    }

    // A narrow picture is repeated in the pattern, so that rows are written in long runs.
    static constexpr std::size_t shortestPattern = 1024;

    int zoom;
    std::size_t skip; // screen pixels of the first texel left of the target
    std::size_t width;
    std::size_t firstColumn;   // of the picture
    std::size_t texelCount;    // texels that are visible; at most the picture's width
    std::size_t patternLength; // a multiple of these texels, magnified
};

// Makes rows of the target from rows of texels: repeats each texel `zoom` times, and the result until the row
// is full.
class RowExpander {
public:
    RowExpander(const Image& tiledPicture, const std::uint32_t* table256, const TileViewport& viewport,
                const TileTarget& target)
        : picture(tiledPicture), table(table256), layout(picture, viewport, target),
          texelRoom(layout.texelCount, picture.Pixels().data()),
          patternRoom(layout.patternLength, target.pixels) {}

    // Makes the pattern for a row of texels. PutRow then writes it.
    void Expand(int y) {
        const std::span<Color> pattern = patternRoom.Get();
        const std::span<Color> texels = layout.zoom == 1 ? pattern.first(layout.texelCount) : texelRoom.Get();
        FetchTexels(picture.Row(y), texels);
        if (layout.zoom > 1) Magnify(texels, layout.zoom, pattern.data());
        for (std::size_t filled = layout.texelCount * static_cast<std::size_t>(layout.zoom);
             filled < pattern.size();) {
            const std::size_t count = std::min(filled, pattern.size() - filled);
            std::copy_n(pattern.begin(), count, pattern.begin() + static_cast<std::ptrdiff_t>(filled));
            filled += count;
        }
    }

    void PutRow(Color* output) const {
        const std::span<const Color> pattern = patternRoom.Get();
        std::size_t start = layout.skip;
        for (std::size_t done = 0; done < layout.width; start = 0) {
            const std::size_t count = std::min(pattern.size() - start, layout.width - done);
            StreamPixels(pattern.data() + start, output + done, count);
            done += count;
        }
    }

private:
    // Maps the visible texels through the table, starting with the first one and wrapping at the edge.
    void FetchTexels(std::span<const Color> source, std::span<Color> texels) const {
        const std::size_t untilEdge = std::min(texels.size(), source.size() - layout.firstColumn);
        table.Apply(source.subspan(layout.firstColumn, untilEdge), texels.first(untilEdge));
        table.Apply(source.first(texels.size() - untilEdge), texels.subspan(untilEdge));
    }

    const Image& picture;
    ChannelTable table;
    RowLayout layout;
    Scratch texelRoom;
    Scratch patternRoom;
};

} // namespace

// Expands each row of texels once and writes it to all rows that show it, so the main cost is writing the
// target once.
void PaintTiles(const Image& picture, const std::uint32_t* table256, const TileViewport& viewport,
                const TileTarget& target) {
    RowExpander expander(picture, table256, viewport, target);
    const int zoom = viewport.zoom;
    const int period = picture.GetHeight() * zoom; // rows until the tiling repeats
    const auto putRows = [&](int from, int to) {
        for (int y = from; y < std::min(to, target.height); ++y)
            expander.PutRow(target.pixels + static_cast<std::size_t>(y) * target.stride);
    };
    for (int start = 0; start < std::min(period, target.height);) {
        const int texelRow = (target.top + start) / zoom;
        const int end = std::min((texelRow + 1) * zoom - target.top, period);
        expander.Expand(Wrapped(std::int64_t{viewport.scrollY} + texelRow, picture.GetHeight()));
        for (int repeat = 0; repeat < target.height; repeat += period) putRows(start + repeat, end + repeat);
        start = end;
    }
}

} // namespace keltavlo
