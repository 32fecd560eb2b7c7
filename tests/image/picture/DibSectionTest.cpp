#include "image/picture/DibSection.h"

#include "image/picture/Image.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>

TEST(DibSectionTest, RefusesWhatItCannotHoldAndStaysAsItWas) {
    DibSection bitmap(2, 2, 32);
    bitmap.SetPixel(1, 1, 0xFF123456);
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    for (const auto& [width, height] :
         {std::pair(0, 1), {1, 0}, {-1, 1}, {65536, 1}, {1, smallest}, {largest, largest}, {65535, 65535}})
        EXPECT_THROW(bitmap.Create(width, height, 32), BitmapError) << width << " x " << height;
    for (const int bitCount : {0, 2, 64, -8, 65536 + 32})
        EXPECT_THROW(bitmap.Create(1, 1, bitCount), BitmapError);
    DibHeader compressed = bitmap.GetHeader();
    compressed.compression = 1;
    EXPECT_THROW(bitmap.Create(compressed, {}), BitmapError);
    EXPECT_EQ(bitmap.GetPixel(1, 1), 0xFF123456U);
}

TEST(DibSectionTest, EveryDepthKeepsEachPixelApart) {
    std::mt19937 random(7);
    for (const int bitCount : {1, 4, 8, 16, 24, 32}) {
        for (const int height : {3, -3}) {
            DibSection bitmap(5, height, bitCount);
            // Black and white are exact at every depth.
            Image picture(5, 3);
            for (Color& pixel : picture.Pixels()) pixel = random() % 2 != 0 ? 0xFFFFFFFF : 0xFF000000;
            picture.RenderTo(bitmap, IdentityTransform{});
            EXPECT_EQ(bitmap.IsTopDown(), height < 0);
            Image back;
            back.FromBitmap(bitmap);
            EXPECT_TRUE(std::ranges::equal(back.Pixels(), picture.Pixels())) << bitCount << " bits";
        }
    }
}

TEST(DibSectionTest, ColorRowsTakeThePictureUpsideDownWithItsAlpha) {
    Image picture(3, 2);
    std::iota(picture.Pixels().begin(), picture.Pixels().end(), 0x12345678U);
    DibSection bitmap(16, 16, 32); // which gets the size of the picture
    picture.RenderTo(bitmap, IdentityTransform{});
    std::vector<std::uint8_t> bytes(24);
    picture.CopyBytesTo(bytes.data());
    std::rotate(bytes.begin(), bytes.begin() + 12, bytes.end());
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), bitmap.GetBits()));
    Image back;
    back.FromBitmap(bitmap);
    EXPECT_EQ(back.GetPixel(2, 1), picture.GetPixel(2, 1) | 0xFF000000);
    EXPECT_THROW(Image(0, 2).RenderTo(bitmap, IdentityTransform{}), BitmapError);
}
