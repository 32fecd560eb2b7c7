#include "image/picture/ColorList.h"

#include "image/picture/NearestColorCache.h"

#include <limits>
#include <stdexcept>
#include <utility>

namespace keltavlo {

namespace {

const Color* ScanForNearest(std::span<const Color> colors, Color color) {
    const Color* best = colors.data();
    std::uint32_t bestDistance = std::numeric_limits<std::uint32_t>::max();
    for (const Color& candidate : colors) {
        const std::uint32_t distance = ColorDistance(candidate, color);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = &candidate;
        }
    }
    return best;
}

} // namespace

ColorList::ColorList() = default;
ColorList::ColorList(std::size_t count) : colors(count) {}
ColorList::ColorList(std::initializer_list<Color> initialColors) : colors(initialColors) {}
ColorList::ColorList(std::vector<Color> initialColors) : colors(std::move(initialColors)) {}
ColorList::ColorList(const ColorList& other) : colors(other.colors) {}
ColorList::ColorList(ColorList&& other) noexcept = default;
ColorList& ColorList::operator=(ColorList&& other) noexcept = default;
ColorList::~ColorList() = default;

ColorList& ColorList::operator=(const ColorList& other) {
    colors = other.colors;
    DestroyCache();
    return *this;
}

void ColorList::SetColor(std::size_t index, Color color) {
    colors.at(index) = color;
    DestroyCache();
}

void ColorList::Append(Color color) {
    colors.push_back(color);
    DestroyCache();
}

void ColorList::SetCount(std::size_t count) {
    colors.resize(count);
    DestroyCache();
}

void ColorList::CreateCache(std::size_t slotCount) const {
    cache = std::make_unique<NearestColorCache>(slotCount);
}

void ColorList::DestroyCache() const {
    cache.reset();
}

const Color* ColorList::FindNearest(Color color) const {
    if (cache) {
        if (const Color* match = cache->Find(color)) return match;
    }
    if (colors.empty()) throw std::out_of_range("The color list is empty.");
    const Color* match = ScanForNearest(colors, color);
    if (cache) cache->Store(color, match);
    return match;
}

std::size_t ColorList::FindNearestIndex(Color color) const {
    return static_cast<std::size_t>(FindNearest(color) - colors.data());
}

} // namespace keltavlo
