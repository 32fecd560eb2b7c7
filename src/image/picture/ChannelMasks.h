#pragma once

#include "image/picture/Color.h"

#include <bit>

namespace keltavlo {

// The bits of red, green and blue in a 16- or 32-bit pixel value. Each mask is one run of bits, or
// 0 for no channel.
struct ChannelMasks {
    std::uint32_t red = redMask;
    std::uint32_t green = greenMask;
    std::uint32_t blue = blueMask;

    // The masks of bitmaps that store none.
    static constexpr ChannelMasks Default(int bitCount) {
        return bitCount == 16 ? ChannelMasks{0x7C00, 0x03E0, 0x001F} : ChannelMasks{};
    }

    // Returns the opaque color of a pixel value.
    constexpr Color ToColor(std::uint32_t value) const {
        return Compose(Extract(value, red), Extract(value, green), Extract(value, blue));
    }

    constexpr std::uint32_t FromColor(Color color) const {
        return Insert(Red(color), red) | Insert(Green(color), green) | Insert(Blue(color), blue);
    }

    constexpr bool operator==(const ChannelMasks&) const = default;

private:
    // Widens a channel to 8 bits by repeating its bits, so that all ones stay all ones.
    static constexpr std::uint32_t Extract(std::uint32_t value, std::uint32_t mask) {
        const int bits = std::popcount(mask);
        if (bits == 0) return 0;
        const std::uint32_t channel = (value & mask) >> std::countr_zero(mask);
        if (bits >= 8) return channel >> (bits - 8) & 0xFF;
        std::uint32_t widened = channel << (8 - bits);
        for (int filled = bits; filled < 8; filled *= 2) widened |= widened >> filled;
        return widened;
    }

    static constexpr std::uint32_t Insert(std::uint32_t channel, std::uint32_t mask) {
        const int bits = std::popcount(mask);
        if (bits == 0) return 0;
        const std::uint32_t scaled = bits >= 8 ? channel << (bits - 8) : channel >> (8 - bits);
        return scaled << std::countr_zero(mask) & mask;
    }
};

} // namespace keltavlo
