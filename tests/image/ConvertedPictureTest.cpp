#include "image/ConvertedPicture.h"

#include "support/CodecHarness.h"

namespace keltavlo {

constexpr int width = 7, height = 5;

struct ConvertedPictureTest : testing::TestWithParam<PictureConversion> {
    ConvertedPictureTest() {
        for (Color& pixel : picture.Pixels()) pixel = RandomColor();
    }

    Color RandomColor() { return static_cast<Color>(random()) | 0xFF000000; }
    Image ConvertAnew() const {
        Image result = picture;
        const bool nearest = GetParam() == PictureConversion::nearest;
        (result.*(nearest ? &Image::ConvertToNearest : &Image::ConvertByErrorDiffusion))(list);
        return result;
    }

    std::mt19937 random{1};
    Image picture{width, height};
    const ColorList list{0xFF000000, 0xFF80FF00, 0xFFFFFFFF};
    ConvertedPicture converted;
};

// Checks that nothing changes outside the run that a stroke reports.
TEST_P(ConvertedPictureTest, StrokesConvertOnlyWhatTheyMust) {
    for (int stroke = 0; stroke < 500; ++stroke) {
        if (stroke % 100 == 0) {
            std::ranges::reverse(picture.Pixels());
            converted.Invalidate();
        }
        const Image before = converted.Get(picture, GetParam(), &list);
        const int x = static_cast<int>(random() % width), y = static_cast<int>(random() % height);
        picture.SetPixel(x, y, RandomColor());
        const TexelRun run = converted.UpdateTexel(picture, x, y);
        const Image& after = converted.Get(picture, GetParam(), &list);
        ASSERT_TRUE(SamePixels(after, ConvertAnew()));
        for (int column = 0; column < width; ++column)
            for (int row = 0; row < height; ++row) {
                const bool told = row == run.row && column >= run.first && column < run.first + run.count;
                ASSERT_TRUE(told || after.GetPixel(column, row) == before.GetPixel(column, row));
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Conversions, ConvertedPictureTest,
                         testing::Values(PictureConversion::nearest, PictureConversion::errorDiffusion));

} // namespace keltavlo
