#pragma once

#include "image/picture/Color.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

namespace keltavlo {

class NearestColorCache;

// A palette or color table: entry i is the color of index i. Copies do not include the cache.
class ColorList {
public:
    ColorList();
    // Makes a list of `count` entries, all 0.
    explicit ColorList(std::size_t count);
    ColorList(std::initializer_list<Color> initialColors);
    explicit ColorList(std::vector<Color> initialColors);
    ColorList(const ColorList& other);
    ColorList(ColorList&& other) noexcept;
    ColorList& operator=(const ColorList& other);
    ColorList& operator=(ColorList&& other) noexcept;
    ~ColorList();

    std::size_t GetCount() const { return colors.size(); }
    std::span<const Color> Colors() const { return colors; }
    // Throws std::out_of_range for an index outside the list, as does SetColor.
    Color GetColor(std::size_t index) const { return colors.at(index); }
    Color operator[](std::size_t index) const { return colors.at(index); }

    // Functions that change the colors destroy the cache, whose slots point at them.
    void SetColor(std::size_t index, Color color);
    void Append(Color color);
    // New entries are 0.
    void SetCount(std::size_t count);

    // Remembers lookups until DestroyCache, a change or an assignment. The results stay the same, so constant
    // lists may have a cache.
    void CreateCache(std::size_t slotCount) const;
    void DestroyCache() const;
    bool HasCache() const { return cache != nullptr; }

    // Returns the entry with the smallest ColorDistance, the first of equals. Throws std::out_of_range for an
    // empty list.
    const Color* FindNearest(Color color) const;
    std::size_t FindNearestIndex(Color color) const;

    friend bool operator==(const ColorList& left, const ColorList& right) {
        return left.colors == right.colors;
    }

private:
    std::vector<Color> colors;
    mutable std::unique_ptr<NearestColorCache> cache;
};

// Palettes in the games' files: red, green and blue of each entry, one byte each.
inline constexpr std::size_t rgbTripleSize = 3;

// Returns as many opaque colors as the bytes contain.
ColorList ColorsFromTriples(std::span<const std::uint8_t> bytes);

// Fills the bytes with the list's entries, and with black after its end.
void PutTriples(const ColorList& list, std::span<std::uint8_t> bytes);

// Returns the squared distance of the channels. Alpha has three times the weight of each other channel; the
// maximum is 390,150.
constexpr std::uint32_t ColorDistance(Color left, Color right) {
    const std::uint32_t alpha = Alpha(left) - Alpha(right);
    const std::uint32_t red = Red(left) - Red(right);
    const std::uint32_t green = Green(left) - Green(right);
    const std::uint32_t blue = Blue(left) - Blue(right);
    return blue * blue + red * red + green * green + 3 * alpha * alpha;
}

} // namespace keltavlo
