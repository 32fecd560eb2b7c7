#include "image/picture/IndexedPixels.h"

#include <array>
#include <cstring>

namespace keltavlo {

namespace {

// Loads of a word and stores of eight colours leave the processor more room for the lookups.
constexpr std::size_t groupPixels = 8;

void ExpandGroup(const std::uint8_t* indices, const Color* colors, Color* output) {
    std::uint64_t word;
    std::memcpy(&word, indices, sizeof word);
    std::array<Color, groupPixels> group;
    for (std::size_t k = 0; k < groupPixels; ++k) group[k] = colors[word >> 8 * k & 0xFF];
    std::memcpy(output, group.data(), sizeof group);
}

} // namespace

void ExpandIndices(std::span<const std::uint8_t> indices, std::span<const Color> colors,
                   std::span<Color> output) {
    std::size_t i = 0;
    for (; i + groupPixels <= output.size(); i += groupPixels)
        ExpandGroup(indices.data() + i, colors.data(), output.data() + i);
    for (; i < output.size(); ++i) output[i] = colors[indices[i]];
}

} // namespace keltavlo
