#include "image/picture/Image.h"

#include "image/picture/ColorList.h"
#include "image/picture/HalfSize.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// Pixel (x, y) is 10 y + x, so that pictures read like their coordinates.
Image Numbered(int width, int height) {
    Image picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) picture.SetPixel(x, y, static_cast<Color>(10 * y + x));
    }
    return picture;
}

std::vector<Color> PixelsOf(const Image& picture) {
    return {picture.Pixels().begin(), picture.Pixels().end()};
}

std::vector<Color> RandomRow(std::size_t count, std::mt19937& random) {
    std::vector<Color> row(count);
    for (Color& pixel : row) pixel = static_cast<Color>(random());
    return row;
}

std::uint32_t ChannelMean(std::initializer_list<Color> colors, unsigned shift) {
    std::uint32_t sum = 0;
    for (const Color color : colors) sum += color >> shift & 0xFF;
    return sum / static_cast<std::uint32_t>(colors.size()) << shift;
}

Color Mean(std::initializer_list<Color> colors) {
    return ChannelMean(colors, 0) | ChannelMean(colors, 8) | ChannelMean(colors, 16) |
           ChannelMean(colors, 24);
}

} // namespace

TEST(ImageTest, StartsAsOneTransparentPixelAndMovesWithItsSize) {
    Image picture;
    EXPECT_EQ(PixelsOf(picture), std::vector<Color>{0});
    picture = Numbered(3, 2);
    const Image moved(std::move(picture));
    EXPECT_EQ(moved.GetPixel(2, 1), 12U);
    EXPECT_EQ(picture.GetWidth() + picture.GetHeight(), 0);
}

TEST(ImageTest, RefusesSizesBeyondTheLimitsAndStaysAsItWas) {
    Image picture = Numbered(3, 2);
    EXPECT_THROW(picture.SetSize(-1, 4), PictureSizeError);
    EXPECT_THROW(picture.SetSize(65536, 1), PictureSizeError);
    EXPECT_THROW(picture.SetSize(65535, 65535), PictureSizeError);
    EXPECT_THROW(picture.Resize(16385, 16384), PictureSizeError);
    EXPECT_THROW(Image(0, 65536), PictureSizeError);
    EXPECT_EQ(PixelsOf(picture), PixelsOf(Numbered(3, 2)));
    picture.SetSize(65535, 0);
    EXPECT_EQ(picture.GetWidth(), 65535);
    EXPECT_TRUE(picture.Pixels().empty());
}

TEST(ImageTest, TilesThroughTheWrappedAccessors) {
    Image picture = Numbered(3, 2);
    EXPECT_EQ(picture.GetPixelWrapped(3, 0), 0U);
    EXPECT_EQ(picture.GetPixelWrapped(7, 2), 1U);
    EXPECT_EQ(picture.GetPixelWrapped(0xFFFFFFFF, 0xFFFFFFFF), 10U);
    picture.SetPixelFromPaletteWrapped(5, 3, ColorList{7, 8}, 1);
    EXPECT_EQ(picture.GetPixel(2, 1), 8U);
    EXPECT_THROW(picture.SetPixelFromPalette(0, 0, ColorList{7, 8}, 2), std::out_of_range);
}

TEST(ImageTest, ResizeCropsOrRepeatsTheEdges) {
    Image picture = Numbered(3, 2);
    picture.Resize(5, 4);
    EXPECT_EQ(PixelsOf(picture), (std::vector<Color>{0,  1,  2,  2,  2,  10, 11, 12, 12, 12, //
                                                     10, 11, 12, 12, 12, 10, 11, 12, 12, 12}));
    picture.Resize(2, 3);
    EXPECT_EQ(PixelsOf(picture), (std::vector<Color>{0, 1, 10, 11, 10, 11}));
    picture.Resize(0, 3);
    picture.Resize(1, 2);
    EXPECT_EQ(PixelsOf(picture), (std::vector<Color>{0, 0}));
}

TEST(ImageTest, HalvesOddSizesAlongTheirEdges) {
    Image half;
    Numbered(1, 1).MakeHalfSize(half);
    EXPECT_EQ(PixelsOf(half), std::vector<Color>{0});
    Numbered(3, 3).MakeHalfSize(half);
    // (0 + 1 + 10 + 11) / 4, (2 + 12) / 2, (20 + 21) / 2, 22
    EXPECT_EQ(PixelsOf(half), (std::vector<Color>{5, 7, 20, 22}));
    Numbered(1, 5).MakeHalfSize(half);
    EXPECT_EQ(PixelsOf(half), (std::vector<Color>{5, 25, 40}));
    Image(0, 7).MakeHalfSize(half);
    EXPECT_EQ(half.GetHeight(), 4);
}

TEST(HalfSizeTest, VectorsGiveWhatSinglePixelsGive) {
    std::mt19937 random(2);
    for (std::size_t width = 0; width < 100; ++width) {
        const std::vector<Color> pixels = RandomRow(6 * width, random);
        std::vector<Color> expected((width + 1) / 2 * 3);
        std::vector<Color> actual(expected.size());
        HalveRowPairsPlain({pixels.data(), width, 3, width, expected.data()});
        HalveRowPairs({pixels.data(), width, 3, width, actual.data()});
        ASSERT_EQ(actual, expected) << width;
    }
}

TEST(HalfSizeTest, VectorsRoundEveryCombinationOfLowBitsAndExtremes) {
    const std::vector<Color> values{0, 1, 2, 3, 127, 128, 252, 253, 254, 255};
    std::vector<Color> upper;
    std::vector<Color> lower;
    // Every four of the values, spread over all channels.
    for (std::size_t i = 0; i < 10000; ++i) {
        upper.insert(upper.end(), {values[i % 10] * 0x01010101U, values[i / 10 % 10] * 0x01010101U});
        lower.insert(lower.end(), {values[i / 100 % 10] * 0x01010101U, values[i / 1000] * 0x01010101U});
    }
    std::vector<Color> both(upper);
    both.insert(both.end(), lower.begin(), lower.end());
    std::vector<Color> halved(10000);
    HalveRowPairs({both.data(), upper.size(), 1, upper.size(), halved.data()});
    for (std::size_t i = 0; i < halved.size(); ++i) {
        ASSERT_EQ(halved[i], Mean({upper[2 * i], upper[2 * i + 1], lower[2 * i], lower[2 * i + 1]})) << i;
    }
}
