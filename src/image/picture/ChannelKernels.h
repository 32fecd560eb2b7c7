#pragma once

#include "image/picture/Color.h"
#include "image/picture/Kernels.h"

#include <array>
#include <cstddef>
#include <span>

namespace keltavlo {

// Byte k of table entry i is the output of channel k for the input i: byte 0 blue, 1 green, 2 red, 3 alpha.
constexpr Color MapChannels(const std::uint32_t* table, Color pixel) {
    return (table[Blue(pixel)] & blueMask) | (table[Green(pixel)] & greenMask) |
           (table[Red(pixel)] & redMask) | (table[Alpha(pixel)] & alphaMask);
}

// A channel table, and the four byte tables that lie interleaved in its words: blue, green, red, alpha.
struct ChannelPlanes {
    using Plane = std::array<std::uint8_t, 256>;

    alignas(64) std::array<Plane, 4> planes{};
    // Whether the plane maps any value to another one; gamma never touches alpha, and often nothing.
    std::array<bool, 4> changes{};
    std::array<std::uint32_t, 256> words{};
};

// One way of applying a channel table.
struct ChannelKernels {
    ProcessorFeature needs;
    // Turns the planes into what `apply` needs of them; null where it takes them as they are.
    void (*arrange)(ChannelPlanes& channels);
    // Maps every pixel as MapChannels does. The output is as long as the input and may be the same memory.
    void (*apply)(const ChannelPlanes& channels, std::span<const Color> input, std::span<Color> output);

    // Four lookups a pixel; byte shuffles within 16 bytes; byte permutes over 128 bytes.
    static std::vector<const ChannelKernels*> All();
};

} // namespace keltavlo
