// The whole-picture conversions of Image to the colours of a list.
#include "image/picture/ColorList.h"
#include "image/picture/Image.h"

#include <algorithm>

namespace {

/// One channel along a row: what is wanted of the pixel, unclamped, and what the last one left over.
struct ChannelError {
    int wanted = 0;
    int error = 0;

    std::uint32_t Add(std::uint32_t channel) {
        wanted = static_cast<int>(channel) + error;
        return static_cast<std::uint32_t>(std::clamp(wanted, 0, 255));
    }

    /// Overshoots past 0 and 255 are carried on too.
    void Take(std::uint32_t channel) { error = wanted - static_cast<int>(channel); }
};

void DiffuseRow(std::span<Color> row, const ColorList& list) {
    ChannelError red;
    ChannelError green;
    ChannelError blue;
    for (Color& pixel : row) {
        const Color sought =
            Compose(red.Add(Red(pixel)), green.Add(Green(pixel)), blue.Add(Blue(pixel)), Alpha(pixel));
        pixel = *list.FindNearest(sought);
        red.Take(Red(pixel));
        green.Take(Green(pixel));
        blue.Take(Blue(pixel));
    }
}

} // namespace

void Image::ConvertToNearest(const ColorList& list) {
    const NearestColorCacheScope cacheScope(list);
    for (Color& pixel : pixels) pixel = *list.FindNearest(pixel);
}

void Image::ConvertByErrorDiffusion(const ColorList& list) {
    const NearestColorCacheScope cacheScope(list);
    for (int y = 0; y < height; ++y) DiffuseRow(Row(y), list);
}
