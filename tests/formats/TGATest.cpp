#include "support/CodecHarness.h"

namespace keltavlo {

constexpr std::size_t headerSize = 18, footerSize = 26;

struct TGATest : testing::Test {
    static constexpr Color pixels[] = {0xFF0000FF, 0xFF00FF00, 0xFFFF0000,
                                       0xFF112233, 0xFF445566, 0xFF778899};

    // 3 x 2, opaque.
    TGATest() : picture(3, 2) { std::ranges::copy(pixels, picture.Pixels().begin()); }

    // Returns the picture's file with a byte changed.
    Bytes FileWith(std::size_t offset, int value) const {
        Bytes bytes = tga.Write(picture);
        Put(bytes, offset, static_cast<std::uint8_t>(value));
        return bytes;
    }

    CodecHarness tga{"TGADocument"};
    Texture picture;
};

TEST_F(TGATest, WritesAlphaOnlyWhereThereIsSome) {
    Bytes bytes = tga.Write(picture);
    ASSERT_EQ(bytes.size(), headerSize + 3 * 6 + footerSize);
    EXPECT_THAT(Numbers(bytes, 0, headerSize + 6),
                testing::ElementsAre(0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 0, 2, 0, 24, 0, //
                                     0x33, 0x22, 0x11, 0x66, 0x55, 0x44));
    EXPECT_THAT(Numbers(bytes, bytes.size() - 4, 4), testing::ElementsAre('L', 'E', '.', 0));
    picture.SetPixel(2, 1, 0xFE778899);
    bytes = tga.Write(picture);
    EXPECT_THAT(Numbers(bytes, 16, 2), testing::ElementsAre(32, 8));
    bytes[17] = {}; // the descriptor claims no alpha bits
    EXPECT_TRUE(SamePixels(tga.Read(bytes), picture));
}

TEST_F(TGATest, TheFirstPixelMayLieInAnyCorner) {
    const auto& p = pixels;
    const auto read = [&](int corner) { return tga.Read(FileWith(17, corner)); };
    EXPECT_THAT(read(0).Pixels(), testing::ElementsAre(p[0], p[1], p[2], p[3], p[4], p[5]));
    EXPECT_THAT(read(0x10).Pixels(), testing::ElementsAre(p[2], p[1], p[0], p[5], p[4], p[3]));
    EXPECT_THAT(read(0x20).Pixels(), testing::ElementsAre(p[3], p[4], p[5], p[0], p[1], p[2]));
    EXPECT_THAT(read(0x3F).Pixels(), testing::ElementsAre(p[5], p[4], p[3], p[2], p[1], p[0]));
}

TEST_F(TGATest, SkipsTheIdentifierAndTheColorMap) {
    using Map = std::tuple<std::uint8_t, std::uint16_t, std::uint8_t, std::size_t>;
    for (const auto& [type, length, entryBits, size] :
         {Map{0, 300, 24, 0}, Map{1, 300, 24, 900}, Map{1, 5, 15, 10}, Map{1, 5, 0, 5}}) {
        Bytes bytes = FileWith(0, 7);
        Put(bytes, 1, type);
        Put(bytes, 5, length);
        Put(bytes, 7, entryBits);
        bytes.insert(bytes.begin() + headerSize, 7 + size, std::byte{0xAA});
        EXPECT_TRUE(SamePixels(tga.Read(bytes), picture)) << size;
    }
}

TEST_F(TGATest, BytesMayFollowThePixels) {
    const Bytes bytes = tga.Write(picture);
    for (const std::size_t extra : {0U, 8U, 3000U}) {
        Bytes second = CutTo(bytes, bytes.size() - footerSize);
        second.resize(second.size() + extra, std::byte{'.'});
        EXPECT_TRUE(SamePixels(tga.Read(second), picture)) << extra;
        second.insert(second.end(), bytes.end() - footerSize, bytes.end());
        EXPECT_TRUE(SamePixels(tga.Read(second), picture)) << extra;
    }
}

TEST_F(TGATest, APictureWithoutPixelsIsTransparent) {
    Bytes bytes = FileWith(2, 0);
    EXPECT_TRUE(SamePixels(tga.Read(bytes, picture), Texture(3, 2)));
    Put<std::uint16_t>(bytes, 12, 2048);
    Put<std::uint16_t>(bytes, 14, 2048);
    EXPECT_EQ(tga.Read(bytes).GetWidth(), 2048);
    Put<std::uint16_t>(bytes, 14, 2049);
    EXPECT_EQ(tga.ReadFailure(bytes), CArchiveException::badIndex);
}

} // namespace keltavlo
