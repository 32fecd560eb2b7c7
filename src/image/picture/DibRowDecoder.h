#pragma once

#include "image/picture/Color.h"

#include <array>
#include <span>

namespace keltavlo {

struct DibDescription;

// Turns the stored rows of one bitmap into opaque colors. Made once for all rows: it arranges the color
// table and the channel masks for looking up.
class DibRowDecoder {
public:
    explicit DibRowDecoder(const DibDescription& description);

    // The row's bytes are at least as many as the output's pixels take. An index beyond the color table is
    // black.
    void Decode(std::span<const std::uint8_t> stored, std::span<Color> output) const;

private:
    // The highest eight bits of a channel, at the most, lead to its part of the color.
    struct Channel {
        std::uint32_t mask = 0;
        int shift = 0;
        std::array<Color, 256> parts{};
    };

    static Channel MakeChannel(const DibDescription& description, std::uint32_t mask, Color part);
    void DecodeIndices(const std::uint8_t* stored, std::span<Color> output) const;
    template <class Value>
    void DecodeChannels(const std::uint8_t* stored, std::span<Color> output) const;

    unsigned bitCount;
    // 32 bits whose lowest 24 are those of a color.
    bool isPlain;
    std::array<Color, 256> colors;
    std::array<Channel, 3> channels;
};

} // namespace keltavlo
