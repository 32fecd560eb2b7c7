#include "tool/pictures/ColorClusters.h"

#include "image/picture/ColorList.h"
#include "image/picture/NearestSearch.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace keltavlo {

namespace {

// Returns the indices of the `count` items with the highest rank, the highest first.
template <class Rank>
std::vector<std::size_t> Highest(std::size_t itemCount, std::size_t count, Rank rank) {
    std::vector<std::size_t> order(itemCount);
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto end = order.begin() + static_cast<std::ptrdiff_t>(std::min(count, itemCount));
    std::ranges::partial_sort(order, end, std::greater(), rank);
    order.erase(end, order.end());
    return order;
}

std::uint32_t DistanceToOther(const std::vector<Color>& centers, std::size_t center) {
    std::uint32_t least = std::numeric_limits<std::uint32_t>::max();
    for (std::size_t k = 0; k < centers.size(); ++k)
        if (k != center) least = std::min(least, ColorDistance(centers[k], centers[center]));
    return least;
}

} // namespace

ColorClusters::ColorClusters(std::span<const CountedColor> pictureColors) : entries(pictureColors) {
    for (const CountedColor& entry : entries) colors.push_back(entry.color);
    nearest.resize(colors.size());
}

// Lloyd's algorithm. Stops when a step gains less than a two-thousandth.
double ColorClusters::Refine(std::vector<Color>& centers) {
    constexpr double worthwhile = 0.9995;
    double error = Assign(centers);
    while (error > 0) {
        std::vector<Color> moved = centers;
        MoveToMeans(moved);
        const double newError = Assign(moved);
        if (newError >= error) {
            Assign(centers);
            break;
        }
        centers = std::move(moved);
        if (newError > std::exchange(error, newError) * worthwhile) break;
    }
    return error;
}

void ColorClusters::Relocate(std::vector<Color>& centers, std::size_t count) const {
    const std::vector<ColorSums> sums = SumUp(centers.size());
    // Roughly what a center's colors would add to the error if they used the next center instead.
    const std::vector<std::size_t> needless = Highest(
        centers.size(), count, [&](std::size_t k) { return -sums[k].Count() * DistanceToOther(centers, k); });
    const std::vector<std::size_t> farthest = FarthestColors(centers, count);
    for (std::size_t i = 0; i < std::min(needless.size(), farthest.size()); ++i)
        centers[needless[i]] = colors[farthest[i]];
}

double ColorClusters::Assign(const std::vector<Color>& centers) {
    const ColorList list(centers);
    NearestSearch(list).FindIndices(colors, nearest);
    double error = 0;
    for (std::size_t i = 0; i < colors.size(); ++i) error += DistanceOf(i, centers);
    return error;
}

std::vector<ColorSums> ColorClusters::SumUp(std::size_t centerCount) const {
    std::vector<ColorSums> sums(centerCount);
    for (std::size_t i = 0; i < colors.size(); ++i) sums[nearest[i]].Add(entries[i]);
    return sums;
}

// Moves a center that is nearest to no color to where the error is greatest.
void ColorClusters::MoveToMeans(std::vector<Color>& centers) const {
    const std::vector<ColorSums> sums = SumUp(centers.size());
    const auto idle = static_cast<std::size_t>(std::ranges::count(sums, 0.0, &ColorSums::Count));
    const std::vector<std::size_t> farthest = FarthestColors(centers, idle);
    auto place = farthest.begin();
    for (std::size_t k = 0; k < centers.size(); ++k)
        centers[k] = sums[k].Count() > 0 ? sums[k].Mean() : colors[*place++];
}

double ColorClusters::DistanceOf(std::size_t i, const std::vector<Color>& centers) const {
    return static_cast<double>(entries[i].count) * ColorDistance(colors[i], centers[nearest[i]]);
}

std::vector<std::size_t> ColorClusters::FarthestColors(const std::vector<Color>& centers,
                                                       std::size_t count) const {
    if (count == 0) return {};
    return Highest(colors.size(), count, [&](std::size_t i) { return DistanceOf(i, centers); });
}

} // namespace keltavlo
