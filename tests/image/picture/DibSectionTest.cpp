#include "image/picture/DibSection.h"

#include "resources/streams/FileStream.h"
#include "support/CodecHarness.h"

#include <limits>

namespace keltavlo {

TEST(DibSectionTest, RefusesWhatItCannotHoldAndStaysAsItWas) {
    DibSection bitmap(2, 2, 32);
    bitmap.SetPixel(1, 1, 0xFF123456);
    constexpr int largest = std::numeric_limits<int>::max(), smallest = std::numeric_limits<int>::min();
    for (const auto& [width, height] :
         {std::pair(0, 1), {1, 0}, {-1, 1}, {65536, 1}, {1, smallest}, {largest, largest}, {65535, 65535}})
        EXPECT_THROW(bitmap.Create(width, height, 32), BitmapError) << width << " x " << height;
    for (const int bitCount : {0, 2, 64, -8, 65536 + 32})
        EXPECT_THROW(bitmap.Create(1, 1, bitCount), BitmapError);
    DibHeader compressed = bitmap.GetHeader();
    compressed.compression = 1;
    EXPECT_THROW(bitmap.Create(compressed, {}), BitmapError);
    EXPECT_EQ(bitmap.GetPixel(1, 1), 0xFF123456U);
    Image(3, 4).RenderTo(bitmap, IdentityTransform{});
    EXPECT_EQ(bitmap.GetHeight(), 4) << "the picture's size";
    EXPECT_THROW(Image(0, 2).RenderTo(bitmap, IdentityTransform{}), BitmapError);
}

// Without a file header the rows follow the whole table, with the entries that no index can reach.
TEST(DibSectionTest, SkipsTheRestOfTheTable) {
    for (const std::uint16_t bitCount : {std::uint16_t{1}, std::uint16_t{32}}) {
        const DibHeader header{.width = 1, .height = 1, .bitCount = bitCount, .colorsUsed = 3};
        CMemFile file;
        FileStream stream(file);
        stream.Write(&header, sizeof header);
        stream.Write(std::span<const Color>(std::vector<Color>{1, 2, 3, 0x00ABCD80}));
        stream.Seek(0);
        Image picture;
        picture.FromStoredBitmap(stream, false);
        EXPECT_EQ(picture.GetPixel(0, 0), bitCount == 1 ? 0xFF000002 : 0xFFABCD80);
    }
}

// Bitmaps of every depth survive both forms of stream, and are read as pictures too.
TEST(DibSectionTest, BitmapsOfEveryDepthSurvive) {
    const auto pictureOf = [](const DibSection& bitmap) {
        Image picture;
        picture.FromBitmap(bitmap);
        return picture;
    };
    for (const int bitCount : {1, 4, 8, 16, 24, 32, 16 + 100, 32 + 100}) {
        for (const int height : {3, -3}) {
            DibSection bitmap;
            bitmap.Create({.width = 5,
                           .height = height,
                           .bitCount = static_cast<std::uint16_t>(bitCount % 100),
                           .compression = bitCount > 100 ? DibHeader::bitFields : DibHeader::uncompressed},
                          {0xF000, 0x0FF0, 0x000F});
            std::mt19937 random(3);
            for (std::size_t i = 0; i < bitmap.GetImageSize(); ++i)
                bitmap.GetBits()[i] = static_cast<std::uint8_t>(random());
            bitmap.SetColorTable(0, CodecHarness::Palette().Colors());
            DibSection painted(bitmap);
            Image(5, 3).RenderTo(painted, IdentityTransform{});
            pictureOf(bitmap).RenderTo(painted, IdentityTransform{});
            EXPECT_TRUE(SamePixels(pictureOf(painted), pictureOf(bitmap))) << bitCount;
            for (const bool withFileHeader : {true, false}) {
                CMemFile file;
                FileStream stream(file);
                bitmap.WriteStream(stream, withFileHeader);
                EXPECT_EQ(file.GetLength(), bitmap.GetStreamSize(withFileHeader)) << bitCount;
                stream.Seek(0);
                DibSection back;
                back.ReadStream(stream, withFileHeader);
                EXPECT_EQ(stream.GetRemaining(), 0U) << bitCount;
                EXPECT_EQ(back.IsTopDown(), height < 0);
                EXPECT_TRUE(SamePixels(pictureOf(back), pictureOf(bitmap))) << bitCount;
                stream.Seek(0);
                Image picture;
                picture.FromStoredBitmap(stream, withFileHeader);
                EXPECT_TRUE(SamePixels(picture, pictureOf(bitmap))) << bitCount;
            }
        }
    }
}

} // namespace keltavlo
