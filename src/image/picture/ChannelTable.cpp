#include "image/picture/ChannelTable.h"

#include "image/picture/ChannelTableVectors.h"
#include "image/picture/PixelTransform.h"

#include <algorithm>

namespace keltavlo {

namespace {

void MapByLookups(const std::uint32_t* table256, std::span<const Color> input, std::span<Color> output) {
    std::ranges::transform(input, output.begin(), ChannelTableTransform{table256});
}

ChannelPlanes SplitIntoPlanes(std::span<const std::uint32_t, 256> words) {
    ChannelPlanes channels;
    for (std::size_t channel = 0; channel < 4; ++channel) {
        unsigned differences = 0;
        for (std::size_t i = 0; i < 256; ++i) {
            const auto byte = static_cast<std::uint8_t>(words[i] >> (8 * channel));
            channels.planes[channel][i] = byte;
            differences |= byte ^ static_cast<unsigned>(i);
        }
        channels.changes[channel] = differences != 0;
    }
    return channels;
}

} // namespace

std::vector<ChannelTableMethod> AvailableChannelTableMethods() {
    std::vector<ChannelTableMethod> methods{ChannelTableMethod::lookups};
    if (HasByteShuffles()) methods.push_back(ChannelTableMethod::shuffles);
    if (HasBytePermutes()) methods.push_back(ChannelTableMethod::permutes);
    return methods;
}

ChannelTableMethod FastestChannelTableMethod() {
    static const ChannelTableMethod fastest = AvailableChannelTableMethods().back();
    return fastest;
}

ChannelTable::ChannelTable(const std::uint32_t* table256, ChannelTableMethod useMethod) : method(useMethod) {
    std::copy_n(table256, words.size(), words.begin());
    channels = SplitIntoPlanes(words);
    isIdentity = std::ranges::count(channels.changes, true) == 0;
    if (method == ChannelTableMethod::shuffles) ArrangeForShuffles(channels);
}

std::size_t ChannelTable::ApplyByVectors(std::span<const Color> input, std::span<Color> output) const {
    if (method == ChannelTableMethod::shuffles) return ApplyByShuffles(channels, input, output);
    if (method == ChannelTableMethod::permutes) return ApplyByPermutes(channels, input, output);
    return 0;
}

void ChannelTable::Apply(std::span<const Color> input, std::span<Color> output) const {
    if (isIdentity) {
        if (input.data() != output.data()) std::ranges::copy(input, output.begin());
        return;
    }
    const std::size_t done = ApplyByVectors(input, output);
    MapByLookups(words.data(), input.subspan(done), output.subspan(done));
}

std::array<std::uint32_t, 256> HalveBrightness(const std::uint32_t* table256) {
    std::array<std::uint32_t, 256> halved;
    for (std::size_t v = 0; v < halved.size(); ++v)
        halved[v] = (table256[v / 2] & ~alphaMask) | (table256[v] & alphaMask);
    return halved;
}

} // namespace keltavlo
