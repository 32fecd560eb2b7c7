#include "tool/pictures/OwnPalette.h"

#include "tool/pictures/ColorClusters.h"

#include <algorithm>

namespace keltavlo {

namespace {

// Refining finds a local minimum; relocating some centers often leads to a lower one. Relocates fewer when a
// round gains less than a thousandth.
void Refine(std::vector<Color>& centers, std::span<const CountedColor> colors) {
    constexpr double worthwhile = 0.999;
    ColorClusters clusters(colors);
    double error = clusters.Refine(centers);
    for (std::size_t count = centers.size() / 8; count > 0 && error > 0;) {
        std::vector<Color> moved = centers;
        clusters.Relocate(moved, count);
        const double newError = clusters.Refine(moved);
        if (newError > error * worthwhile) count /= 2;
        if (newError < error) {
            error = newError;
            centers = std::move(moved);
        } else {
            clusters.Refine(centers);
        }
    }
}

std::uint32_t Brightness(Color color) {
    return 2 * Red(color) + 3 * Green(color) + Blue(color);
}

} // namespace

ColorList MakeOwnPalette(std::span<const Color> pixels, std::size_t count) {
    std::vector<CountedColor> colors = CountColors(pixels);
    std::vector<Color> centers;
    if (colors.size() <= count) {
        for (const CountedColor& entry : colors) centers.push_back(entry.color);
    } else {
        centers = CutIntoBoxes(colors, count);
        Refine(centers, colors);
    }
    std::ranges::sort(centers, {}, [](Color color) { return std::pair(Brightness(color), color); });
    return ColorList(std::move(centers));
}

} // namespace keltavlo
