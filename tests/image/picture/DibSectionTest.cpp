#include "image/picture/DibSection.h"

#include "image/picture/Image.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

Image RandomPicture(int width, int height) {
    std::mt19937 random(6);
    Image picture(width, height);
    for (Color& pixel : picture.Pixels()) pixel = static_cast<Color>(random());
    return picture;
}

} // namespace

TEST(DibSectionTest, RefusesWhatItCannotHoldAndStaysAsItWas) {
    DibSection bitmap(2, 2, 32);
    bitmap.SetPixel(1, 1, 0xFF123456);
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    for (const auto& [width, height] :
         {std::pair(0, 1), std::pair(1, 0), std::pair(-1, 1), std::pair(65536, 1), std::pair(1, smallest),
          std::pair(largest, largest), std::pair(65535, 65535)}) {
        EXPECT_THROW(bitmap.Create(width, height, 32), BitmapError) << width << " x " << height;
    }
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

TEST(DibSectionTest, BitFieldsPlaceTheChannels) {
    DibHeader header;
    header.width = header.height = 1;
    header.bitCount = 16;
    header.compression = DibHeader::bitFields;
    DibSection bitmap;
    bitmap.Create(header, {0xF800, 0x07E0, 0x001F});
    bitmap.SetPixel(0, 0, 0xFFFF0400);
    EXPECT_EQ(bitmap.GetBits()[1], 0xF8);
    EXPECT_EQ(bitmap.GetBits()[0], 0x20);
    EXPECT_EQ(bitmap.GetPixel(0, 0), 0xFFFF0400U);
    EXPECT_EQ(ChannelMasks({0x3FF, 0, 0xC0000000}).ToColor(0x400002AA), 0xFFAA0055U);
}

TEST(DibSectionTest, ColorRowsTakeThePictureUpsideDownWithItsAlpha) {
    const Image picture = RandomPicture(3, 2);
    DibSection bitmap(16, 16, 32);
    picture.RenderTo(bitmap, IdentityTransform{});
    ASSERT_EQ(bitmap.GetWidth(), 3);
    ASSERT_EQ(bitmap.GetHeight(), 2);
    std::vector<std::uint8_t> bytes(24);
    picture.CopyBytesTo(bytes.data());
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.begin() + 12, bitmap.GetBits() + 12));
    EXPECT_TRUE(std::equal(bytes.begin() + 12, bytes.end(), bitmap.GetBits()));
    DibSection topDown(3, -2, 32);
    picture.RenderTo(topDown, IdentityTransform{});
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), topDown.GetBits()));
    Image back;
    back.FromBitmap(bitmap);
    EXPECT_EQ(back.GetPixel(2, 1), picture.GetPixel(2, 1) | 0xFF000000);
    EXPECT_THROW(Image(0, 2).RenderTo(bitmap, IdentityTransform{}), BitmapError);
}
