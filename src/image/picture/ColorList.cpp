#include "image/picture/ColorList.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace keltavlo {

// Remembers the nearest list entries of colors: one color per slot; a newer color replaces the one in its
// slot. Valid only until the list's colors change.
class NearestColorCache {
public:
    // Throws std::invalid_argument if `slotCount` is 0.
    explicit NearestColorCache(std::size_t slotCount) : slots(slotCount) {
        if (slotCount == 0) throw std::invalid_argument("A nearest-color cache needs a slot.");
    }

    // Returns the entry stored for the color, or null.
    const Color* Find(Color color) const {
        const Slot& slot = slots[color % slots.size()];
        return slot.key == color ? slot.match : nullptr;
    }

    void Store(Color color, const Color* match) { slots[color % slots.size()] = {color, match}; }

private:
    struct Slot {
        Color key = 0;
        // Null if the slot is empty.
        const Color* match = nullptr;
    };

    std::vector<Slot> slots;
};

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

ColorList ColorsFromTriples(std::span<const std::uint8_t> bytes) {
    std::vector<Color> colors(bytes.size() / rgbTripleSize);
    const std::uint8_t* triple = bytes.data();
    for (Color& color : colors) {
        color = Compose(triple[0], triple[1], triple[2]);
        triple += rgbTripleSize;
    }
    return ColorList(std::move(colors));
}

void PutTriples(const ColorList& list, std::span<std::uint8_t> bytes) {
    std::ranges::fill(bytes, std::uint8_t{0});
    std::uint8_t* triple = bytes.data();
    for (const Color color : list.Colors().first(std::min(list.GetCount(), bytes.size() / rgbTripleSize))) {
        triple[0] = static_cast<std::uint8_t>(Red(color));
        triple[1] = static_cast<std::uint8_t>(Green(color));
        triple[2] = static_cast<std::uint8_t>(Blue(color));
        triple += rgbTripleSize;
    }
}

} // namespace keltavlo
