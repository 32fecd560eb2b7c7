#include "image/picture/DibSection.h"
#include "resources/streams/FileStream.h"
#include "support/CodecHarness.h"

namespace keltavlo {

namespace {

Image PictureOf(const DibSection& bitmap) {
    Image picture;
    picture.FromBitmap(bitmap);
    return picture;
}

} // namespace

// Without a file header the rows follow the whole table, also the entries that no index can reach.
TEST(StoredBitmapTest, SkipsTheRestOfTheTable) {
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

// Bitmaps of every depth go through both forms of stream and come out as they were, and as the picture that
// is read without a bitmap.
TEST(StoredBitmapTest, BitmapsOfEveryDepthSurvive) {
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
            PictureOf(bitmap).RenderTo(painted, IdentityTransform{});
            EXPECT_TRUE(SamePixels(PictureOf(painted), PictureOf(bitmap))) << bitCount;
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
                EXPECT_TRUE(SamePixels(PictureOf(back), PictureOf(bitmap))) << bitCount;
                stream.Seek(0);
                Image picture;
                picture.FromStoredBitmap(stream, withFileHeader);
                EXPECT_TRUE(SamePixels(picture, PictureOf(bitmap))) << bitCount;
            }
        }
    }
}

} // namespace keltavlo
