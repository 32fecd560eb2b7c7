#include "support/CodecHarness.h"

namespace keltavlo {

namespace {

// Offsets of the fields.
constexpr std::size_t rowsOffset = 10, headerSize = 14, width = 18, height = 22, planes = 26, bitCount = 28,
                      compression = 30, imageSize = 34, colorsUsed = 46;

using testing::ElementsAre;

struct Header {
    std::uint32_t size;
    int width, height;
    std::uint16_t bitCount;
};

// Builds a file from the header, or the first bytes of a short one, what follows it, and the rows.
Bytes MakeBmp(const Header& header, const Bytes& table, const Bytes& rows) {
    Bytes bytes = ToBytes("BM");
    bytes.resize(headerSize + 40);
    Put(bytes, headerSize, header.size);
    Put(bytes, width, header.width);
    Put(bytes, height, header.height);
    Put<std::uint16_t>(bytes, planes, 1);
    Put(bytes, bitCount, header.bitCount);
    bytes.resize(headerSize + header.size);
    Put(bytes, rowsOffset, static_cast<std::uint32_t>(bytes.size() + table.size()));
    return Join({bytes, table, rows});
}

Bytes WithMasks(std::uint32_t size, std::uint16_t bits, const Bytes& masks, const Bytes& rows) {
    Bytes bytes = MakeBmp({size, 1, 1, bits}, size == 40 ? masks : Bytes(), rows);
    std::ranges::copy(masks, bytes.begin() + headerSize + 40);
    Put<std::uint32_t>(bytes, compression, 3);
    Put<std::uint32_t>(bytes, imageSize, 4);
    return bytes;
}

struct BMPTest : testing::Test {
    std::vector<Color> Pixels(const Bytes& bytes) const {
        const Texture texture = bmp.Read(bytes);
        return {texture.Pixels().begin(), texture.Pixels().end()};
    }
    // Reads the file with another value in one field.
    template <class T>
    int FailureWith(Bytes bytes, std::size_t field, T value) const {
        Put(bytes, field, value);
        return bmp.ReadFailure(bytes);
    }

    CodecHarness bmp{"BMPDocument"};
    Bytes bits = MakeBmp({40, 2, 1, 1}, Words({0x00112233, 0xFF445566}), FromNumbers({0x40, 0, 0, 0}));
    Bytes plain = MakeBmp({40, 1, 2, 32}, {}, Words({0x00010203, 0x80040506}));
};

} // namespace

TEST_F(BMPTest, Writes32BitsFromTheBottomUp) {
    Texture texture(2, 2);
    texture.SetPixel(0, 1, 0x80112233);
    const Bytes bytes = bmp.Write(texture);
    ASSERT_EQ(bytes.size(), 70U);
    EXPECT_THAT(Numbers(bytes, 0, 58),
                ElementsAre('B', 'M', 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0,
                            0, 1, 0, 32, 0, 0, 0, 0, 0, 16, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                            0, 0, 0x33, 0x22, 0x11, 0x80));
}

TEST_F(BMPTest, ReadsEveryDepth) {
    EXPECT_THAT(Pixels(bits), ElementsAre(0xFF112233, 0xFF445566));
    EXPECT_THAT(Pixels(plain), ElementsAre(0xFF040506, 0xFF010203));
    Put(plain, height, -2);   // rows from the top
    Put(plain, imageSize, 1); // ignored, because the rows are not compressed
    EXPECT_THAT(Pixels(plain), ElementsAre(0xFF010203, 0xFF040506));
    Bytes table = Words({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    EXPECT_THAT(Pixels(MakeBmp({40, 3, 1, 4}, table, FromNumbers({0x0F, 0x70, 0, 0}))),
                ElementsAre(0xFF000001, 0xFF000010, 0xFF000008));
    table.resize(1024);
    EXPECT_THAT(Pixels(MakeBmp({40, 2, 1, 8}, table, FromNumbers({15, 255, 0, 0}))),
                ElementsAre(0xFF000010, 0xFF000000));
    EXPECT_THAT(Pixels(MakeBmp({40, 2, 1, 16}, {}, FromNumbers({0x08, 0x42, 0xFF, 0xFF}))),
                ElementsAre(0xFF848442, 0xFFFFFFFF));
    EXPECT_THAT(Pixels(MakeBmp({40, 1, 1, 24}, {}, FromNumbers({1, 2, 3, 0}))), ElementsAre(0xFF030201));
    Put(bits, colorsUsed, 1); // fewer than the indices
    EXPECT_THAT(Pixels(bits), ElementsAre(0xFF112233, 0xFF000000));
    EXPECT_EQ(FailureWith(bits, colorsUsed, 0xFFFFFFFF), -1);
}

TEST_F(BMPTest, MasksPlaceTheChannels) {
    const Bytes sixGreenBits = Words({0xF800, 0x07E0, 0x001F}), reversed = Words({0xFF, 0xFF00, 0xFF0000});
    for (const std::uint32_t size : {40U, 52U, 108U, 124U}) {
        EXPECT_THAT(Pixels(WithMasks(size, 16, sixGreenBits, Words({0x8410}))), ElementsAre(0xFF848284));
        EXPECT_THAT(Pixels(WithMasks(size, 32, reversed, Words({0x80010203}))), ElementsAre(0xFF030201));
    }
    // Wider than eight bits, and a channel that is missing.
    EXPECT_THAT(Pixels(WithMasks(40, 32, Words({0x3FF00000, 0x000FFC00, 0}), Words({0x3FF80000}))),
                ElementsAre(0xFFFF8000));
    for (const Bytes& masks :
         {Words({0, 0, 0}), Words({0xF0F0, 0, 0}), Words({0xFF00, 0x0FF0, 1}), Words({0x10000, 1, 2})})
        EXPECT_EQ(bmp.ReadFailure(WithMasks(40, 16, masks, Words({0}))), CArchiveException::badIndex);
    const Bytes good = WithMasks(40, 16, sixGreenBits, Words({0}));
    EXPECT_EQ(FailureWith(good, imageSize, 0), CArchiveException::badIndex);
    EXPECT_EQ(FailureWith(good, bitCount, std::uint16_t{24}), CArchiveException::badIndex);
}

TEST_F(BMPTest, FieldsThatAShortHeaderLacksAreZero) {
    for (std::uint32_t size = 15; size < 40; ++size)
        EXPECT_THAT(Pixels(MakeBmp({size, 1, 2, 32}, {}, Words({1, 2}))),
                    ElementsAre(0xFF000002, 0xFF000001));
}

// Such headers have 16-bit sides and colors of three bytes. Missing fields at the end count as 1.
TEST_F(BMPTest, ReadsHeadersOfAtMost12Bytes) {
    const Bytes file = FromNumbers({'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0, 0, 12,   0, 0, 0,
                                    2,   0,   1, 0, 1, 0, 1, 0, 1, 2, 3,  4, 5, 6, 0x40, 0, 0, 0});
    for (std::uint8_t size = 8; size <= 12; ++size) {
        Bytes shorter = file;
        Put(shorter, rowsOffset, static_cast<std::uint8_t>(size + 20));
        Put(shorter, headerSize, size);
        shorter.erase(shorter.begin() + headerSize + size, shorter.begin() + headerSize + 12);
        EXPECT_THAT(Pixels(shorter), ElementsAre(0xFF030201, 0xFF060504));
    }
    for (const int bad : {0, 2, 16, 32})
        EXPECT_EQ(FailureWith(file, 24, static_cast<std::uint16_t>(bad)), CArchiveException::badIndex) << bad;
}

} // namespace keltavlo
