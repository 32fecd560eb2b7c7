#include "tool/pictures/OwnPalette.h"

#include "image/picture/NearestSearch.h"
#include "tool/pictures/ColorBoxes.h"

#include <algorithm>

namespace keltavlo {

namespace {

// One step of Lloyd's algorithm, on the colors of a picture.
class Refinement {
public:
    explicit Refinement(std::span<const CountedColor> pictureColors) : entries(pictureColors) {
        for (const CountedColor& entry : entries) colors.push_back(entry.color);
        nearest.resize(colors.size());
    }

    // Finds each color's nearest center. Returns the sum of the distances of all pixels.
    double Assign(const std::vector<Color>& centers) {
        const ColorList list(centers);
        NearestSearch(list).FindIndices(colors, nearest);
        double sum = 0;
        for (std::size_t i = 0; i < colors.size(); ++i) sum += DistanceOf(i, centers);
        return sum;
    }

    // Moves each center to the mean of the colors that it is nearest to. One that is nearest to none replaces
    // the color whose pixels are farthest from their center.
    void MoveCenters(std::vector<Color>& centers) const {
        std::vector<ColorSums> sums(centers.size());
        for (std::size_t i = 0; i < colors.size(); ++i) sums[nearest[i]].Add(entries[i]);
        std::vector<std::size_t> farthest = FarthestColors(
            centers, static_cast<std::size_t>(std::ranges::count(sums, 0.0, &ColorSums::Count)));
        for (std::size_t k = 0; k < centers.size(); ++k) {
            if (sums[k].Count() > 0) {
                centers[k] = sums[k].Mean();
            } else {
                centers[k] = colors[farthest.back()];
                farthest.pop_back();
            }
        }
    }

private:
    double DistanceOf(std::size_t i, const std::vector<Color>& centers) const {
        return static_cast<double>(entries[i].count) * ColorDistance(colors[i], centers[nearest[i]]);
    }

    std::vector<std::size_t> FarthestColors(const std::vector<Color>& centers, std::size_t count) const {
        if (count == 0) return {};
        std::vector<std::size_t> order(colors.size());
        for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
        const auto end = order.begin() + static_cast<std::ptrdiff_t>(count);
        std::ranges::partial_sort(order, end, std::greater(),
                                  [&](std::size_t i) { return DistanceOf(i, centers); });
        order.erase(end, order.end());
        return order;
    }

    std::span<const CountedColor> entries;
    std::vector<Color> colors;
    std::vector<std::uint8_t> nearest;
};

// Stops when a step gains less than a two-thousandth.
void Refine(std::vector<Color>& centers, std::span<const CountedColor> colors) {
    constexpr int maximumSteps = 40;
    constexpr double worthwhile = 0.9995;
    Refinement refinement(colors);
    double error = refinement.Assign(centers);
    for (int step = 0; step < maximumSteps && error > 0; ++step) {
        std::vector<Color> moved = centers;
        refinement.MoveCenters(moved);
        const double newError = refinement.Assign(moved);
        if (newError >= error) break;
        centers = std::move(moved);
        if (newError > error * worthwhile) break;
        error = newError;
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
