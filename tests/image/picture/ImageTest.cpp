#include "image/picture/HalfSize.h"
#include "support/CodecHarness.h"

#include <numeric>

namespace keltavlo {

using testing::ElementsAre;

namespace {

// 0, 1, 2; 3, 4, 5.
Image Numbered() {
    Image picture(3, 2);
    std::iota(picture.Pixels().begin(), picture.Pixels().end(), Color{0});
    return picture;
}

} // namespace

TEST(ImageTest, RefusesSizesBeyondTheLimitsAndStaysAsItWas) {
    Image picture = Numbered();
    for (const auto& [width, height] :
         {std::pair(-1, 4), {65536, 1}, {0, 65536}, {65535, 65535}, {16385, 16384}}) {
        EXPECT_THROW(picture.SetSize(width, height), PictureSizeError) << width;
        EXPECT_THROW(picture.Resize(width, height), PictureSizeError) << width;
        EXPECT_THROW(Image(width, height), PictureSizeError) << width;
    }
    EXPECT_TRUE(SamePixels(picture, Numbered()));
    picture.SetSize(65535, 0);
    EXPECT_EQ(picture.GetWidth(), 65535);
}

TEST(ImageTest, ResizeCropsOrRepeatsTheEdges) {
    Image picture = Numbered();
    picture.Resize(5, 4);
    EXPECT_THAT(picture.Pixels(), ElementsAre(0, 1, 2, 2, 2, 3, 4, 5, 5, 5, 3, 4, 5, 5, 5, 3, 4, 5, 5, 5));
    picture.Resize(2, 3);
    EXPECT_THAT(picture.Pixels(), ElementsAre(0, 1, 3, 4, 3, 4));
    picture.Resize(0, 3);
    picture.Resize(1, 2);
    EXPECT_THAT(picture.Pixels(), ElementsAre(0, 0));
}

// Odd sizes are halved as if their last column and row were doubled.
TEST(ImageTest, HalvesEverySizeExactly) {
    const std::vector<Color> values{0, 1, 2, 3, 127, 128, 252, 253, 254, 255};
    std::mt19937 random(2);
    const auto channel = [&] { return values[random() % values.size()]; };
    for (int width = 0; width < 200; ++width) {
        for (const int height : {0, 1, 2, 7}) {
            Image picture(width, height), half;
            for (Color& pixel : picture.Pixels()) pixel = Compose(channel(), channel(), channel(), channel());
            picture.MakeHalfSize(half);
            ASSERT_EQ(half.GetWidth(), (width + 1) / 2);
            ASSERT_EQ(half.GetHeight(), (height + 1) / 2);
            const auto columns = static_cast<std::size_t>(width),
                       pairs = static_cast<std::size_t>(height / 2);
            for (const HalfSizeKernels* kernels : AvailableKernels<HalfSizeKernels>()) {
                std::vector<Color> rows(pairs * ((columns + 1) / 2));
                HalveRowPairs({picture.Pixels().data(), columns, pairs, columns, rows.data()}, *kernels);
                ASSERT_TRUE(std::ranges::equal(rows, half.Pixels().first(rows.size()))) << width;
            }
            if (half.Pixels().empty()) continue;
            Image even = picture;
            even.Resize(2 * half.GetWidth(), 2 * half.GetHeight());
            for (int y = 0; y < half.GetHeight(); ++y)
                for (int x = 0; x < half.GetWidth(); ++x)
                    for (const int shift : {0, 8, 16, 24}) {
                        Color sum = 0;
                        for (const auto& [right, below] : {std::pair(0, 0), {0, 1}, {1, 0}, {1, 1}})
                            sum += even.GetPixel(2 * x + right, 2 * y + below) >> shift & 0xFF;
                        ASSERT_EQ(half.GetPixel(x, y) >> shift & 0xFF, sum / 4) << width;
                    }
        }
    }
}

} // namespace keltavlo
