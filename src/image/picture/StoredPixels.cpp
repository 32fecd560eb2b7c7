#include "image/picture/StoredPixels.h"

#include <array>
#include <cstring>

namespace keltavlo {

namespace {

// Loading a word and storing eight colors at a time leaves the processor more capacity for the lookups.
constexpr std::size_t indexGroup = 8;

void ExpandIndexGroup(const std::uint8_t* indices, const Color* colors, Color* output) {
    std::uint64_t word;
    std::memcpy(&word, indices, sizeof word);
    std::array<Color, indexGroup> group;
    for (std::size_t k = 0; k < indexGroup; ++k) group[k] = colors[word >> 8 * k & 0xFF];
    std::memcpy(output, group.data(), sizeof group);
}

// Four pixels are three words, which are faster to split than twelve bytes.
constexpr std::size_t groupPixels = 4;
using Group = std::array<std::uint32_t, 3>;

void ExpandGroup(const std::uint8_t* stored, Color* output) {
    Group words;
    std::memcpy(words.data(), stored, sizeof words);
    output[0] = words[0] | alphaMask;
    output[1] = words[0] >> 24 | words[1] << 8 | alphaMask;
    output[2] = words[1] >> 16 | words[2] << 16 | alphaMask;
    output[3] = words[2] >> 8 | alphaMask;
}

void PackGroup(const Color* colors, std::uint8_t* stored) {
    constexpr Color rgb = ~alphaMask;
    const Group words{(colors[0] & rgb) | colors[1] << 24, (colors[1] & rgb) >> 8 | colors[2] << 16,
                      (colors[2] & rgb) >> 16 | colors[3] << 8};
    std::memcpy(stored, words.data(), sizeof words);
}

} // namespace

void ExpandIndices(std::span<const std::uint8_t> indices, std::span<const Color> colors,
                   std::span<Color> output) {
    std::size_t i = 0;
    for (; i + indexGroup <= output.size(); i += indexGroup)
        ExpandIndexGroup(indices.data() + i, colors.data(), output.data() + i);
    for (; i < output.size(); ++i) output[i] = colors[indices[i]];
}

void ExpandBgr(std::span<const std::uint8_t> stored, std::span<Color> output) {
    const std::uint8_t* bytes = stored.data();
    std::size_t i = 0;
    for (; i + groupPixels <= output.size(); i += groupPixels, bytes += sizeof(Group))
        ExpandGroup(bytes, output.data() + i);
    for (; i < output.size(); ++i, bytes += bgrPixelSize) output[i] = Compose(bytes[2], bytes[1], bytes[0]);
}

void PackBgr(std::span<const Color> colors, std::span<std::uint8_t> stored) {
    std::uint8_t* bytes = stored.data();
    std::size_t i = 0;
    for (; i + groupPixels <= colors.size(); i += groupPixels, bytes += sizeof(Group))
        PackGroup(colors.data() + i, bytes);
    for (; i < colors.size(); ++i, bytes += bgrPixelSize) std::memcpy(bytes, &colors[i], bgrPixelSize);
}

} // namespace keltavlo
