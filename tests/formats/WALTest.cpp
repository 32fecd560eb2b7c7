#include "support/CodecHarness.h"

namespace keltavlo {

constexpr std::size_t offsetsOffset = 40, nextFrameOffset = 56, flagsOffset = 88;

struct WALTest : testing::Test {
    CodecHarness wal{"WALDocument"};
    Texture texture = RandomTexture(64, 64);
};

TEST_F(WALTest, LevelsFollowTheHeader) {
    const Bytes bytes = wal.Write(texture);
    ASSERT_EQ(bytes.size(), 5540U);
    const auto offsets = {100U, 4196U, 5220U, 5476U};
    EXPECT_EQ(Bytes(bytes.begin() + offsetsOffset, bytes.begin() + nextFrameOffset), Words(offsets));
    // Each level is made from the one before it.
    Image level = texture;
    for (const std::uint32_t offset : offsets) {
        const std::size_t index = CodecHarness::Palette().FindNearestIndex(level.GetPixel(3, 5));
        const auto place = offset + 5 * static_cast<std::size_t>(level.GetWidth()) + 3;
        EXPECT_EQ(std::to_integer<std::size_t>(bytes[place]), index) << offset;
        Image half;
        level.MakeHalfSize(half);
        level = half;
    }
}

TEST_F(WALTest, FlagsAndValueFollowTheNamesWhichKeepANulWhenWritten) {
    texture.quake2 = {"", "", 0x80000001, 0x40000002, 0xFFFFFFFD};
    Bytes bytes = wal.Write(texture);
    EXPECT_EQ(Bytes(bytes.begin() + flagsOffset, bytes.begin() + 100),
              Words({0x80000001, 0x40000002, 0xFFFFFFFD}));
    EXPECT_EQ(wal.Read(bytes).quake2, texture.quake2);
    std::fill_n(bytes.begin(), 32, std::byte{'n'});
    std::fill_n(bytes.begin() + nextFrameOffset, 32, std::byte{'f'});
    const Texture read = wal.Read(bytes);
    EXPECT_EQ(read.quake2.name, std::string(32, 'n'));
    EXPECT_EQ(read.quake2.nextFrameName, std::string(32, 'f'));
    EXPECT_EQ(wal.Read(wal.Write(read)).quake2.name, std::string(31, 'n'));
}

TEST_F(WALTest, IndicesBelongToThePaletteOfTheTexture) {
    Texture other;
    other.SetPalette(ColorList(std::vector<Color>(256, 0xFF123456)));
    other = wal.Read(wal.Write(texture), other);
    EXPECT_EQ(other.GetPixel(1, 1), 0xFF123456U);
    other.palette->SetCount(255);
    EXPECT_EQ(wal.ReadFailure(wal.Write(texture), other), CArchiveException::badIndex);
}

} // namespace keltavlo
