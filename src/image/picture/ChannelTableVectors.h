#pragma once

#include "image/picture/Color.h"

#include <cstddef>
#include <span>

namespace keltavlo {

struct ChannelPlanes;

// The vector forms of the channel table, for ChannelTable only. They are compiled for processors beyond the
// one that the program needs, so ask before calling. Each returns how many pixels, from the first on, it has
// mapped; the rest is the caller's.

bool HasByteShuffles();
bool HasBytePermutes();

// Turns the planes into what ApplyByShuffles needs of them.
void ArrangeForShuffles(ChannelPlanes& channels);
std::size_t ApplyByShuffles(const ChannelPlanes& channels, std::span<const Color> input,
                            std::span<Color> output);
std::size_t ApplyByPermutes(const ChannelPlanes& channels, std::span<const Color> input,
                            std::span<Color> output);

} // namespace keltavlo
