#pragma once

#include "image/picture/ChannelKernels.h"

namespace keltavlo {

// A copy of a channel table, arranged for mapping many rows; made anew it costs about as much as 500 pixels.
class ChannelTable {
public:
    // The kernels must be some that the processor has.
    explicit ChannelTable(const std::uint32_t* table256,
                          const ChannelKernels& useKernels = FastestKernels<ChannelKernels>());

    // Maps every pixel as MapChannels does. The output is as long as the input and may be the same memory.
    void Apply(std::span<const Color> input, std::span<Color> output) const;

private:
    ChannelPlanes channels;
    const ChannelKernels* kernels;
    bool isIdentity;
};

// The table (256 entries) for red, green and blue that are halved first; alpha goes through it as it is.
std::array<std::uint32_t, 256> HalveBrightness(const std::uint32_t* table256);

} // namespace keltavlo
