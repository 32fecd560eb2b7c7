#include "image/picture/DibRowDecoder.h"

#include "image/picture/DibDescription.h"
#include "image/picture/StoredPixels.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace keltavlo {

DibRowDecoder::DibRowDecoder(const DibDescription& description)
    : bitCount(description.header.bitCount), isPlain(bitCount == 32 && description.masks == ChannelMasks{}) {
    if (bitCount <= 8) {
        for (std::uint32_t index = 0; index < colors.size(); ++index)
            colors[index] = description.ColorOf(index);
    } else if (bitCount != 24 && !isPlain) {
        const ChannelMasks& masks = description.masks;
        channels = {MakeChannel(description, masks.red, redMask),
                    MakeChannel(description, masks.green, greenMask),
                    MakeChannel(description, masks.blue, blueMask)};
    }
}

DibRowDecoder::Channel DibRowDecoder::MakeChannel(const DibDescription& description, std::uint32_t mask,
                                                  Color part) {
    Channel channel;
    if (mask == 0) return channel;
    channel.mask = mask;
    channel.shift = std::countr_zero(mask) + std::max(std::popcount(mask) - 8, 0);
    for (std::uint32_t i = 0; i <= mask >> channel.shift; ++i)
        channel.parts[i] = description.ColorOf(i << channel.shift) & part;
    return channel;
}

void DibRowDecoder::Decode(std::span<const std::uint8_t> stored, std::span<Color> output) const {
    if (bitCount == 8) {
        ExpandIndices(stored, colors, output);
    } else if (bitCount < 8) {
        DecodeIndices(stored.data(), output);
    } else if (bitCount == 24) {
        ExpandBgr(stored, output);
    } else if (isPlain) {
        std::memcpy(output.data(), stored.data(), output.size_bytes());
        for (Color& color : output) color |= alphaMask;
    } else if (bitCount == 16) {
        DecodeChannels<std::uint16_t>(stored.data(), output);
    } else {
        DecodeChannels<std::uint32_t>(stored.data(), output);
    }
}

// Several indices share a byte. The first one is in its highest bits.
void DibRowDecoder::DecodeIndices(const std::uint8_t* stored, std::span<Color> output) const {
    unsigned bits = 0;
    unsigned left = 0;
    for (Color& color : output) {
        if (left == 0) {
            bits = *stored++;
            left = 8;
        }
        left -= bitCount;
        color = colors[bits >> left & ((1U << bitCount) - 1)];
    }
}

template <class Value>
void DibRowDecoder::DecodeChannels(const std::uint8_t* stored, std::span<Color> output) const {
    for (Color& color : output) {
        Value value;
        std::memcpy(&value, stored, sizeof value);
        stored += sizeof value;
        color = alphaMask;
        for (const Channel& channel : channels)
            color |= channel.parts[(value & channel.mask) >> channel.shift];
    }
}

} // namespace keltavlo
