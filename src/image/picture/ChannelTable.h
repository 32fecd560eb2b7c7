#pragma once

#include "image/picture/Color.h"

#include <array>
#include <span>
#include <vector>

namespace keltavlo {

// The ways in which a channel table can be applied; all give the same pixels.
enum class ChannelTableMethod {
    // Four lookups a pixel, on any processor.
    lookups,
    // Byte shuffles within 16 bytes (AVX2).
    shuffles,
    // Byte permutes over 128 bytes (AVX-512 VBMI).
    permutes,
};

// The methods that this processor has, slowest first.
std::vector<ChannelTableMethod> AvailableChannelTableMethods();
ChannelTableMethod FastestChannelTableMethod();

// The four byte tables that lie interleaved in a channel table's words: blue, green, red, alpha.
struct ChannelPlanes {
    using Plane = std::array<std::uint8_t, 256>;

    alignas(64) std::array<Plane, 4> planes{};
    // Whether the plane maps any value to another one; gamma never touches alpha, and often nothing.
    std::array<bool, 4> changes{};
};

// A copy of a channel table, arranged for mapping many rows; made anew it costs about as much as 500 pixels.
class ChannelTable {
public:
    // The method must be one that the processor has.
    explicit ChannelTable(const std::uint32_t* table256,
                          ChannelTableMethod useMethod = FastestChannelTableMethod());

    // Maps every pixel as MapChannels does. The output is as long as the input and may be the same memory.
    void Apply(std::span<const Color> input, std::span<Color> output) const;

private:
    std::size_t ApplyByVectors(std::span<const Color> input, std::span<Color> output) const;

    std::array<std::uint32_t, 256> words;
    ChannelPlanes channels;
    ChannelTableMethod method;
    bool isIdentity;
};

// The table (256 entries) for red, green and blue that are halved first; alpha goes through it as it is.
std::array<std::uint32_t, 256> HalveBrightness(const std::uint32_t* table256);

} // namespace keltavlo
