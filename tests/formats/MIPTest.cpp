#include "support/CodecHarness.h"

namespace keltavlo {

constexpr std::size_t offsetsOffset = 24, endOfLevels = 40 + 64 * 64 * 85 / 64;

struct MIPTest : testing::Test {
    // Returns the file of the texture followed by zeros.
    Bytes FileWithTail(std::size_t tail) const {
        Bytes bytes = mip.Write(texture);
        bytes.resize(endOfLevels + tail);
        return bytes;
    }

    CodecHarness mip{"MIPDocument"};
    Texture texture = RandomTexture(64, 64);
};

TEST_F(MIPTest, WritesAPaletteOnlyForATextureThatHasOne) {
    EXPECT_EQ(mip.Write(texture).size(), endOfLevels);
    // A palette equal to the default one still belongs to the texture.
    texture.SetPalette(CodecHarness::Palette());
    EXPECT_EQ(mip.Write(texture).size(), endOfLevels + 770);
    EXPECT_EQ(*mip.Read(mip.Write(texture)).palette, CodecHarness::Palette());
    texture.palette->SetCount(20);
    EXPECT_EQ(mip.Write(texture).size(), endOfLevels + 62);
    EXPECT_EQ(mip.Read(mip.Write(texture)).palette, nullptr);
}

TEST_F(MIPTest, WritesWhatFitsIntoTheFields) {
    texture.quakeName = "sixteen_letters_and_more";
    EXPECT_EQ(mip.Read(mip.Write(texture)).quakeName, "sixteen_letters_");
    for (const std::size_t count : {0U, 257U}) {
        texture.SetPalette(ColorList(count));
        EXPECT_EQ(mip.WriteFailure(texture), CArchiveException::badIndex) << count;
    }
    for (const int side : {12, 264})
        EXPECT_EQ(mip.WriteFailure(Texture(8, side)), CArchiveException::badIndex) << side;
}

TEST_F(MIPTest, ATailOf770To772BytesIsAPalette) {
    for (const std::size_t tail : {0U, 1U, 769U, 773U, 5000U})
        EXPECT_EQ(mip.Read(FileWithTail(tail)).palette, nullptr) << tail;
    for (const std::size_t tail : {770U, 771U, 772U}) {
        Bytes bytes = FileWithTail(tail);
        Put<std::int16_t>(bytes, endOfLevels, 256);
        Put<std::uint8_t>(bytes, endOfLevels + 2 + 3 * 255, 0x12);
        const Texture read = mip.Read(bytes);
        ASSERT_NE(read.palette, nullptr) << tail;
        EXPECT_EQ(read.palette->GetColor(255), 0xFF120000U);
        for (const int count : {0, 257, -1, -32768}) {
            Put(bytes, endOfLevels, static_cast<std::int16_t>(count));
            EXPECT_EQ(mip.ReadFailure(bytes), CArchiveException::badIndex) << count;
        }
    }
}

TEST_F(MIPTest, AShortPaletteMustStillHoldEveryIndex) {
    Bytes bytes = FileWithTail(770);
    Put<std::int16_t>(bytes, endOfLevels, 20);
    EXPECT_EQ(mip.ReadFailure(bytes), CArchiveException::badIndex);
    std::fill(bytes.begin() + 40, bytes.begin() + endOfLevels, std::byte{19});
    EXPECT_EQ(mip.Read(bytes).palette->GetCount(), 20U);
}

TEST_F(MIPTest, LevelsMayLieAnywhere) {
    // Level 0 follows the others, and the palette follows it.
    Bytes bytes = FileWithTail(4096 + 770);
    std::copy_n(bytes.begin() + 40, 4096, bytes.begin() + endOfLevels);
    Put<std::uint32_t>(bytes, offsetsOffset, endOfLevels);
    Put<std::int16_t>(bytes, endOfLevels + 4096, 256);
    EXPECT_NE(mip.Read(bytes).palette, nullptr);
    // A level that ends beyond the file leaves no bytes for a palette, even past 32 bits.
    Put<std::uint32_t>(bytes, offsetsOffset + 4, 0xFFFFFFFF);
    const Texture read = mip.Read(bytes);
    EXPECT_EQ(read.palette, nullptr);
    EXPECT_TRUE(SamePixels(read, texture));
}

} // namespace keltavlo
