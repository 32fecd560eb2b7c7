#include "formats/CodecHarness.h"

#include <gmock/gmock.h>

namespace {

constexpr std::size_t widthOffset = 16;
constexpr std::size_t offsetsOffset = 24;
constexpr std::size_t levelsSize = 64 * 64 * 85 / 64;
constexpr std::size_t endOfLevels = 40 + levelsSize;

class MIPTest : public testing::Test {
protected:
    // A 64 x 64 file of a texture without a palette, and bytes of 0 after it.
    Bytes FileWithTail(std::size_t tail) const {
        Bytes bytes = mip.Write(RandomTexture(64, 64, CodecHarness::Palette()));
        bytes.resize(endOfLevels + tail);
        return bytes;
    }

    CodecHarness mip{"MIPDocument"};
};

} // namespace

TEST_F(MIPTest, WritesAPaletteOnlyForATextureThatHasOne) {
    Texture texture = RandomTexture(64, 64, CodecHarness::Palette());
    Bytes bytes = mip.Write(texture);
    ASSERT_EQ(bytes.size(), 5480U);
    std::uint32_t offsets[4];
    std::memcpy(offsets, bytes.data() + offsetsOffset, sizeof offsets);
    EXPECT_THAT(offsets, testing::ElementsAre(40U, 4136U, 5160U, 5416U));
    EXPECT_EQ(mip.Read(bytes).palette, nullptr);

    // The same colours as the default ones are still the texture's own.
    texture.SetPalette(CodecHarness::Palette());
    bytes = mip.Write(texture);
    ASSERT_EQ(bytes.size(), 6250U);
    EXPECT_EQ(bytes[endOfLevels], std::byte{0});
    EXPECT_EQ(bytes[endOfLevels + 1], std::byte{1});
    const Texture back = mip.Read(bytes);
    ASSERT_NE(back.palette, nullptr);
    EXPECT_EQ(*back.palette, CodecHarness::Palette());
    EXPECT_TRUE(SamePixels(back, texture));

    texture.palette->SetCount(20);
    bytes = mip.Write(texture);
    EXPECT_EQ(bytes.size(), endOfLevels + 62);
    EXPECT_EQ(mip.Read(bytes).palette, nullptr);
}

TEST_F(MIPTest, ATailOf770To772BytesIsAPalette) {
    for (const std::size_t tail : {0U, 1U, 769U, 773U, 5000U}) {
        Bytes bytes = FileWithTail(tail);
        EXPECT_EQ(mip.Read(bytes).palette, nullptr) << tail;
    }
    for (const std::size_t tail : {770U, 771U, 772U}) {
        Bytes bytes = FileWithTail(tail);
        Put<std::int16_t>(bytes, endOfLevels, 256);
        Put<std::uint8_t>(bytes, endOfLevels + 2 + 3 * 255, 0x12);
        const Texture texture = mip.Read(bytes);
        ASSERT_NE(texture.palette, nullptr) << tail;
        EXPECT_EQ(texture.palette->GetCount(), 256U);
        EXPECT_EQ((*texture.palette)[255], 0xFF120000U);
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
    Texture texture;
    texture.SetPalette(ColorList(19));
    EXPECT_EQ(mip.ReadFailure(FileWithTail(0), texture), CArchiveException::badIndex);
}

TEST_F(MIPTest, LevelsMayLieAnywhere) {
    // Level 0 behind the others, and the palette behind it.
    Bytes bytes = FileWithTail(4096 + 770);
    std::copy_n(bytes.begin() + 40, 4096, bytes.begin() + endOfLevels);
    Put<std::uint32_t>(bytes, offsetsOffset, endOfLevels);
    Put<std::int16_t>(bytes, endOfLevels + 4096, 256);
    EXPECT_NE(mip.Read(bytes).palette, nullptr);
    // An end beyond the file leaves a negative rest, not a large one, even past 32 bits.
    Put<std::uint32_t>(bytes, offsetsOffset + 4, 0xFFFFFFFF);
    const Texture texture = mip.Read(bytes);
    EXPECT_EQ(texture.palette, nullptr);
    EXPECT_TRUE(SamePixels(texture, RandomTexture(64, 64, CodecHarness::Palette())));
    Put<std::uint32_t>(bytes, offsetsOffset, 0xFFFFFFFF);
    EXPECT_EQ(mip.ReadFailure(bytes), CArchiveException::endOfFile);
}

TEST_F(MIPTest, NamesMayFillTheirField) {
    Texture texture(8, 8);
    texture.quakeName = "sixteen_letters_and_more";
    const Bytes bytes = mip.Write(texture);
    EXPECT_EQ(mip.Read(bytes).quakeName, "sixteen_letters_");
}

TEST_F(MIPTest, SidesAreMultiplesOf8UpTo256) {
    Bytes bytes = FileWithTail(0);
    for (const std::uint32_t side : {8U, 24U, 64U}) {
        Put(bytes, widthOffset, side);
        EXPECT_EQ(mip.Read(bytes).GetWidth(), static_cast<int>(side));
    }
    for (const std::uint32_t side : {0U, 12U, 264U, 0x80000000U, 0xFFFFFFF8U}) {
        Put(bytes, widthOffset, side);
        EXPECT_EQ(mip.ReadFailure(bytes), CArchiveException::badIndex) << side;
    }
    for (const auto& [width, height] : {std::pair(0, 8), std::pair(8, 12), std::pair(264, 8)})
        EXPECT_EQ(mip.WriteFailure(Texture(width, height)), CArchiveException::badIndex);
}

TEST_F(MIPTest, RefusesPalettesWithoutAnIndexForEachColor) {
    Texture texture(8, 8);
    texture.SetPalette(ColorList(257));
    EXPECT_EQ(mip.WriteFailure(texture), CArchiveException::badIndex);
    texture.SetPalette(ColorList());
    EXPECT_EQ(mip.WriteFailure(texture), CArchiveException::badIndex);
}
