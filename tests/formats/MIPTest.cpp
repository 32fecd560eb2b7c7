#include "formats/CodecHarness.h"

#include <gmock/gmock.h>

namespace {

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
    EXPECT_EQ(*mip.Read(bytes).palette, CodecHarness::Palette());
    texture.palette->SetCount(20);
    bytes = mip.Write(texture);
    EXPECT_EQ(bytes.size(), endOfLevels + 62);
    EXPECT_EQ(mip.Read(bytes).palette, nullptr);
}

TEST_F(MIPTest, WritesWhatFitsIntoTheFields) {
    Texture texture(8, 8);
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
}
