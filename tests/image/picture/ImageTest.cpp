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

Color Mean(std::initializer_list<Color> colors) {
    Color mean = 0;
    for (const unsigned shift : {0U, 8U, 16U, 24U}) {
        std::uint32_t sum = 0;
        for (const Color color : colors) sum += color >> shift & 0xFF;
        mean |= sum / 4 << shift;
    }
    return mean;
}

} // namespace

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

TEST(HalfSizeTest, EveryWidthIsAveragedExactly) {
    constexpr Color values[] = {0, 1, 2, 3, 127, 128, 252, 253, 254, 255};
    std::mt19937 random(2);
    const auto channel = [&] { return values[random() % std::size(values)]; };
    for (std::size_t width = 1; width < 200; ++width) {
        std::vector<Color> pixels(6 * width);
        for (Color& pixel : pixels) pixel = Compose(channel(), channel(), channel(), channel());
        const std::size_t halfWidth = (width + 1) / 2;
        std::vector<Color> halved(3 * halfWidth);
        HalveRowPairs({pixels.data(), width, 3, width, halved.data()});
        for (std::size_t i = 0; i < halved.size(); ++i) {
            const Color* left = &pixels[i / halfWidth * 2 * width + i % halfWidth * 2];
            const Color* right = i % halfWidth * 2 + 1 < width ? left + 1 : left;
            ASSERT_EQ(halved[i], Mean({*left, *right, left[width], right[width]})) << width;
        }
    }
}
