#include "image/picture/RgbTriples.h"

#include <algorithm>

namespace keltavlo {

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
