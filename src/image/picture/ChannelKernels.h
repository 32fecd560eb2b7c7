#pragma once

#include "image/picture/Color.h"
#include "image/picture/Kernels.h"

#include <array>
#include <cstddef>
#include <span>

namespace keltavlo {

// Byte k of table entry i is the output of channel k for input i. Channels: byte 0 blue, 1 green, 2
// red, 3 alpha.
constexpr Color MapChannels(const std::uint32_t* table, Color pixel) {
    return (table[Blue(pixel)] & blueMask) | (table[Green(pixel)] & greenMask) |
           (table[Red(pixel)] & redMask) | (table[Alpha(pixel)] & alphaMask);
}

// A channel table, and the four byte tables interleaved in its words: blue, green, red, alpha.
struct ChannelPlanes {
    using Plane = std::array<std::uint8_t, 256>;

    alignas(64) std::array<Plane, 4> planes{};
    // Whether a plane changes any value. Gamma never changes alpha, and often changes nothing.
    std::array<bool, 4> changes{};
    std::array<std::uint32_t, 256> words{};
};

// One implementation of applying a channel table.
struct ChannelKernels {
    ProcessorFeature needs;
    // Arranges the planes for `apply`; null if `apply` uses them unchanged.
    void (*arrange)(ChannelPlanes& channels);
    // Maps every pixel as MapChannels does. The output is as long as the input and may be the same memory.
    void (*apply)(const ChannelPlanes& channels, std::span<const Color> input, std::span<Color> output);

    // In this order: four lookups per pixel; byte shuffles within 16 bytes; byte permutes over 128 bytes.
    static std::vector<const ChannelKernels*> All();
};

} // namespace keltavlo
