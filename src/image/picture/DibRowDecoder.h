#pragma once

#include "image/picture/Color.h"

#include <array>
#include <span>

namespace keltavlo {

struct DibDescription;

// Turns the stored rows of a bitmap into opaque colors. Create it once for all rows, because it prepares
// lookup tables.
class DibRowDecoder {
public:
    explicit DibRowDecoder(const DibDescription& description);

    // `stored` contains at least the bytes of the output's pixels. An index beyond the color table is black.
    void Decode(std::span<const std::uint8_t> stored, std::span<Color> output) const;

private:
    // Maps the bits of a channel, at most the highest eight, to its part of the color.
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
    // Whether pixels have 32 bits, the lowest 24 of which are those of a color.
    bool isPlain;
    std::array<Color, 256> colors;
    std::array<Channel, 3> channels;
};

} // namespace keltavlo
