#pragma once

#include "image/picture/ChannelKernels.h"

namespace keltavlo {

// A copy of a channel table, arranged for mapping many rows. Making it costs as much as mapping
// about 500 pixels.
class ChannelTable {
public:
    // The processor must support the kernels.
    explicit ChannelTable(const std::uint32_t* table256,
                          const ChannelKernels& useKernels = FastestKernels<ChannelKernels>());

    // Maps every pixel as MapChannels does. The output is as long as the input and may be the same memory.
    void Apply(std::span<const Color> input, std::span<Color> output) const;

private:
    ChannelPlanes channels;
    const ChannelKernels* kernels;
    bool isIdentity;
};

// Returns a table of 256 entries that first halves red, green and blue and leaves alpha alone.
std::array<std::uint32_t, 256> HalveBrightness(const std::uint32_t* table256);

} // namespace keltavlo
