#include "image/picture/PixelTransform.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace keltavlo {

namespace {

std::vector<Color> RandomPixels(std::size_t count) {
    std::mt19937 random(4);
    std::vector<Color> pixels(count);
    for (Color& pixel : pixels) pixel = static_cast<Color>(random());
    return pixels;
}

// Channels within the mask are random, the others map every value to itself.
std::vector<std::uint32_t> MakeTable(Color changedChannels) {
    std::vector<std::uint32_t> table = RandomPixels(256);
    for (std::uint32_t i = 0; i < 256; ++i)
        table[i] = (table[i] & changedChannels) | (i * 0x01010101 & ~changedChannels);
    return table;
}

std::vector<Color> Expected(const PixelTransform& transform, const std::vector<Color>& pixels) {
    std::vector<Color> result;
    std::visit([&](const auto& each) { std::ranges::transform(pixels, std::back_inserter(result), each); },
               transform);
    return result;
}

} // namespace

TEST(CompositeTest, WeighsByAlphaOverAnOpaqueBackgroundOnly) {
    EXPECT_EQ(Composite(0x00123456, 0x80FFFFFF), 0x80FFFFFFU);
    EXPECT_EQ(Composite(0xFF123456, 0x80FFFFFF), 0xFF123456U);
    EXPECT_EQ(Composite(0x80123456, 0xFEFFFFFF), 0U);
    for (std::uint32_t value = 0; value < 256; ++value) {
        for (std::uint32_t alpha = 1; alpha < 255; ++alpha) {
            const auto mix = [&](std::uint32_t over, std::uint32_t under) {
                return (over * alpha + under * (256 - alpha)) >> 8;
            };
            ASSERT_EQ(Composite(Compose(value, 255 - value, value, alpha), 0xFFFF0080),
                      Compose(mix(value, 255), mix(255 - value, 0), mix(value, 128)));
        }
    }
}

TEST(ChannelTableTest, EveryMethodMapsAsSingleLookupsDo) {
    for (const Color channels : {0xFFFFFFFFU, 0x00FFFFFFU, 0x0000FF00U, 0xFF000000U, 0x00000000U}) {
        const auto words = MakeTable(channels);
        for (const ChannelKernels* kernels : AvailableKernels<ChannelKernels>()) {
            const ChannelTable table(words.data(), *kernels);
            for (std::size_t length = 0; length < 140; ++length) {
                const std::vector<Color> pixels = RandomPixels(length);
                std::vector<Color> mapped(length);
                table.Apply(pixels, mapped);
                ASSERT_EQ(mapped, Expected(ChannelTableTransform{words.data()}, pixels));
            }
        }
    }
}

TEST(PixelTransformerTest, RowsGetWhatEachPixelGetsAlsoInPlace) {
    const auto words = MakeTable(0xFFFFFFFF);
    const Color background = 0xFF204060;
    for (const PixelTransform& transform :
         {PixelTransform(IdentityTransform{}), PixelTransform(OverBackgroundTransform{background}),
          PixelTransform(ChannelTableTransform{words.data()}),
          PixelTransform(BackgroundThenTableTransform{background, words.data()}),
          PixelTransform(TableThenBackgroundTransform{words.data(), background})}) {
        const PixelTransformer transformer(transform);
        for (const std::size_t length : {1U, 255U, 256U, 1000U}) {
            const std::vector<Color> pixels = RandomPixels(length);
            std::vector<Color> apart(length);
            transformer.Apply(pixels, apart);
            EXPECT_EQ(apart, Expected(transform, pixels)) << transform.index();
            std::vector<Color> inPlace = pixels;
            transformer.Apply(inPlace, inPlace);
            EXPECT_EQ(inPlace, apart) << transform.index();
        }
    }
}

} // namespace keltavlo
