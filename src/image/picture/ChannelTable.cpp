#include "image/picture/ChannelTable.h"

#include <algorithm>

namespace keltavlo {

namespace {

ChannelPlanes SplitIntoPlanes(const std::uint32_t* table256) {
    ChannelPlanes channels;
    std::copy_n(table256, channels.words.size(), channels.words.begin());
    for (std::size_t channel = 0; channel < 4; ++channel) {
        unsigned differences = 0;
        for (std::size_t i = 0; i < 256; ++i) {
            const auto byte = static_cast<std::uint8_t>(channels.words[i] >> (8 * channel));
            channels.planes[channel][i] = byte;
            differences |= byte ^ static_cast<unsigned>(i);
        }
        channels.changes[channel] = differences != 0;
    }
    return channels;
}

} // namespace

ChannelTable::ChannelTable(const std::uint32_t* table256, const ChannelKernels& useKernels)
    : channels(SplitIntoPlanes(table256)), kernels(&useKernels),
      isIdentity(std::ranges::count(channels.changes, true) == 0) {
    if (kernels->arrange) kernels->arrange(channels);
}

void ChannelTable::Apply(std::span<const Color> input, std::span<Color> output) const {
    if (!isIdentity)
        kernels->apply(channels, input, output);
    else if (input.data() != output.data())
        std::ranges::copy(input, output.begin());
}

std::array<std::uint32_t, 256> HalveBrightness(const std::uint32_t* table256) {
    std::array<std::uint32_t, 256> halved;
    for (std::size_t v = 0; v < halved.size(); ++v)
        halved[v] = (table256[v / 2] & ~alphaMask) | (table256[v] & alphaMask);
    return halved;
}

} // namespace keltavlo
