#include "tool/pictures/ColorBoxes.h"

#include <queue>

#include <algorithm>
#include <cmath>

namespace keltavlo {

namespace {

// For blue, green, red and alpha, as in ColorDistance.
constexpr ColorSums::Channels weights{1, 1, 1, 3};

double Channel(Color color, std::size_t channel) {
    return color >> 8 * channel & 0xFF;
}

struct Box {
    std::span<CountedColor> colors;
    ColorSums sums;

    bool operator<(const Box& other) const { return sums.Spread() < other.sums.Spread(); }
};

Box MakeBox(std::span<CountedColor> colors) {
    Box box{colors, {}};
    for (const CountedColor& entry : colors) box.sums.Add(entry);
    return box;
}

// The box has at least two colors, so both parts have one.
std::pair<Box, Box> Cut(const Box& box) {
    const std::size_t channel = box.sums.WidestChannel();
    std::ranges::sort(box.colors, {},
                      [&](const CountedColor& entry) { return Channel(entry.color, channel); });
    ColorSums lower;
    ColorSums bestLower;
    double bestSpread = 0;
    std::size_t bestSize = 0;
    for (std::size_t size = 1; size < box.colors.size(); ++size) {
        lower.Add(box.colors[size - 1]);
        const double spread = lower.Spread() + box.sums.Without(lower).Spread();
        if (bestSize != 0 && spread >= bestSpread) continue;
        bestSpread = spread;
        bestSize = size;
        bestLower = lower;
    }
    return {{box.colors.first(bestSize), bestLower},
            {box.colors.subspan(bestSize), box.sums.Without(bestLower)}};
}

} // namespace

std::vector<CountedColor> CountColors(std::span<const Color> pixels) {
    std::vector<Color> sorted(pixels.begin(), pixels.end());
    std::ranges::sort(sorted);
    std::vector<CountedColor> colors;
    for (const Color color : sorted) {
        if (colors.empty() || colors.back().color != color) colors.push_back({color, 0});
        ++colors.back().count;
    }
    return colors;
}

void ColorSums::Add(const CountedColor& entry) {
    count += entry.count;
    for (std::size_t i = 0; i < channelCount; ++i) {
        const double value = Channel(entry.color, i);
        sums[i] += entry.count * value;
        squares[i] += entry.count * value * value;
    }
}

ColorSums ColorSums::Without(const ColorSums& other) const {
    ColorSums rest = *this;
    rest.count -= other.count;
    for (std::size_t i = 0; i < channelCount; ++i) {
        rest.sums[i] -= other.sums[i];
        rest.squares[i] -= other.squares[i];
    }
    return rest;
}

Color ColorSums::Mean() const {
    Color mean = 0;
    for (std::size_t i = 0; i < channelCount; ++i)
        mean |= static_cast<Color>(std::lround(sums[i] / count)) << 8 * i;
    return mean;
}

double ColorSums::SpreadOf(std::size_t channel) const {
    return weights[channel] * (squares[channel] - sums[channel] * sums[channel] / count);
}

double ColorSums::Spread() const {
    double spread = 0;
    for (std::size_t i = 0; i < channelCount; ++i) spread += SpreadOf(i);
    return spread;
}

std::size_t ColorSums::WidestChannel() const {
    std::size_t widest = 0;
    for (std::size_t i = 1; i < channelCount; ++i)
        if (SpreadOf(i) > SpreadOf(widest)) widest = i;
    return widest;
}

std::vector<Color> CutIntoBoxes(std::span<CountedColor> colors, std::size_t boxCount) {
    std::priority_queue<Box> boxes;
    boxes.push(MakeBox(colors));
    while (boxes.size() < boxCount && boxes.top().colors.size() > 1) {
        const auto [lower, upper] = Cut(boxes.top());
        boxes.pop();
        boxes.push(lower);
        boxes.push(upper);
    }
    std::vector<Color> means;
    for (; !boxes.empty(); boxes.pop()) means.push_back(boxes.top().sums.Mean());
    return means;
}

} // namespace keltavlo
