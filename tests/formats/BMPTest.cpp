#include "formats/CodecHarness.h"

#include <gmock/gmock.h>

namespace {

// Offsets in a file.
constexpr std::size_t rowsOffsetField = 10;
constexpr std::size_t headerField = 14;
constexpr std::size_t widthField = 18;
constexpr std::size_t heightField = 22;
constexpr std::size_t planesField = 26;
constexpr std::size_t bitCountField = 28;
constexpr std::size_t compressionField = 30;
constexpr std::size_t imageSizeField = 34;
constexpr std::size_t colorsUsedField = 46;

using testing::ElementsAre;

// A file of a header of that size, what follows it and then the rows.
Bytes MakeBmp(std::uint32_t headerSize, int width, int height, std::uint16_t bitCount, const Bytes& table,
              const Bytes& rows) {
    Bytes bytes = ToBytes("BM");
    bytes.resize(headerField + headerSize);
    Put(bytes, headerField, headerSize);
    Put(bytes, widthField, width);
    Put(bytes, heightField, height);
    Put<std::uint16_t>(bytes, planesField, 1);
    Put(bytes, bitCountField, bitCount);
    bytes.insert(bytes.end(), table.begin(), table.end());
    Put(bytes, rowsOffsetField, static_cast<std::uint32_t>(bytes.size()));
    bytes.insert(bytes.end(), rows.begin(), rows.end());
    return bytes;
}

// The same file with a header of fewer bytes.
Bytes Shortened(Bytes bytes, std::uint32_t headerSize, std::uint32_t fewer) {
    Put(bytes, rowsOffsetField, std::to_integer<std::uint32_t>(bytes[rowsOffsetField]) - headerSize + fewer);
    Put(bytes, headerField, fewer);
    bytes.erase(bytes.begin() + headerField + fewer, bytes.begin() + headerField + headerSize);
    return bytes;
}

Bytes ToRow(std::initializer_list<int> values) {
    Bytes bytes;
    for (const int value : values) bytes.push_back(static_cast<std::byte>(value));
    return bytes;
}

Bytes Words(std::initializer_list<std::uint32_t> values) {
    Bytes bytes;
    for (const std::uint32_t value : values) PutU32(bytes, bytes.size(), value);
    return bytes;
}

class BMPTest : public testing::Test {
protected:
    std::vector<Color> Pixels(const Bytes& bytes) const {
        const Texture texture = bmp.Read(bytes);
        return {texture.Pixels().begin(), texture.Pixels().end()};
    }
    // The file with another value in one field.
    template <class T>
    CArchiveException::Cause FailureWith(Bytes bytes, std::size_t field, T value) const {
        Put(bytes, field, value);
        return bmp.ReadFailure(bytes);
    }

    CodecHarness bmp{"BMPDocument"};
    // 2 x 1 of one bit and 1 x 2 of 32.
    Bytes bits = MakeBmp(40, 2, 1, 1, Words({0x00112233, 0xFF445566}), ToRow({0x40, 0, 0, 0}));
    Bytes plain = MakeBmp(40, 1, 2, 32, {}, Words({0x00010203, 0x80040506}));
};

} // namespace

TEST_F(BMPTest, Writes32BitsFromTheBottomUp) {
    Texture texture(2, 2);
    texture.SetPixel(0, 1, 0x80112233);
    const Bytes bytes = bmp.Write(texture);
    ASSERT_EQ(bytes.size(), 70U);
    EXPECT_THAT(Tail({bytes.begin(), bytes.begin() + 58}, 0),
                ElementsAre('B', 'M', 70, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0, 2, 0, 0, 0, 2, 0, 0,
                            0, 1, 0, 32, 0, 0, 0, 0, 0, 16, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                            0, 0, 0x33, 0x22, 0x11, 0x80));
    EXPECT_THAT(Pixels(bytes), ElementsAre(0xFF000000, 0xFF000000, 0xFF112233, 0xFF000000));
}

TEST_F(BMPTest, ReadsEveryDepth) {
    EXPECT_THAT(Pixels(bits), ElementsAre(0xFF112233, 0xFF445566));
    EXPECT_THAT(Pixels(plain), ElementsAre(0xFF040506, 0xFF010203));
    Put(plain, heightField, -2);   // from the top
    Put(plain, imageSizeField, 1); // says nothing about rows that are not compressed
    EXPECT_THAT(Pixels(plain), ElementsAre(0xFF010203, 0xFF040506));
    const Bytes table = Words({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    EXPECT_THAT(Pixels(MakeBmp(40, 3, 1, 4, table, ToRow({0x0F, 0x70, 0, 0}))),
                ElementsAre(0xFF000001, 0xFF000010, 0xFF000008));
    Bytes large = table;
    large.resize(1024);
    EXPECT_THAT(Pixels(MakeBmp(40, 2, 1, 8, large, ToRow({15, 255, 0, 0}))),
                ElementsAre(0xFF000010, 0xFF000000));
    EXPECT_THAT(Pixels(MakeBmp(40, 2, 1, 16, {}, ToRow({0x08, 0x42, 0xFF, 0xFF}))),
                ElementsAre(0xFF848442, 0xFFFFFFFF));
    EXPECT_THAT(Pixels(MakeBmp(40, 1, 1, 24, {}, ToRow({1, 2, 3, 0}))), ElementsAre(0xFF030201));
}

TEST_F(BMPTest, ColorTablesMayBeShorterOrLongerThanTheIndices) {
    Put(bits, colorsUsedField, 1);
    EXPECT_THAT(Pixels(bits), ElementsAre(0xFF112233, 0xFF000000));
    Bytes longer = MakeBmp(40, 2, 1, 1, Words({1, 2, 3}), ToRow({0x40, 0, 0, 0}));
    Put(longer, colorsUsedField, 3);
    EXPECT_THAT(Pixels(longer), ElementsAre(0xFF000001, 0xFF000002));
    EXPECT_EQ(FailureWith(bits, colorsUsedField, 0xFFFFFFFF), CArchiveException::none);
}

TEST_F(BMPTest, MasksPlaceTheChannels) {
    const auto withMasks = [](std::uint32_t headerSize, std::uint16_t bitCount, const Bytes& masks,
                              const Bytes& rows) {
        Bytes bytes = MakeBmp(headerSize, 1, 1, bitCount, headerSize == 40 ? masks : Bytes(), rows);
        Put<std::uint32_t>(bytes, compressionField, 3);
        Put<std::uint32_t>(bytes, imageSizeField, 4);
        if (headerSize > 40) std::ranges::copy(masks, bytes.begin() + headerField + 40);
        return bytes;
    };
    const Bytes sixGreenBits = Words({0xF800, 0x07E0, 0x001F});
    const Bytes reversed = Words({0x000000FF, 0x0000FF00, 0x00FF0000});
    for (const std::uint32_t headerSize : {40U, 52U, 108U, 124U}) {
        EXPECT_THAT(Pixels(withMasks(headerSize, 16, sixGreenBits, ToRow({0x10, 0x84, 0, 0}))),
                    ElementsAre(0xFF848284));
        EXPECT_THAT(Pixels(withMasks(headerSize, 32, reversed, Words({0x80010203}))),
                    ElementsAre(0xFF030201));
    }
    // Wider than eight bits, and a channel that is missing.
    EXPECT_THAT(Pixels(withMasks(40, 32, Words({0x3FF00000, 0x000FFC00, 0}), Words({0x3FF80000}))),
                ElementsAre(0xFFFF8000));
    for (const Bytes& masks :
         {Words({0, 0, 0}), Words({0xF0F0, 0, 0}), Words({0xFF00, 0x0FF0, 1}), Words({0x10000, 1, 2})})
        EXPECT_EQ(bmp.ReadFailure(withMasks(40, 16, masks, Words({0}))), CArchiveException::badIndex);
    Bytes sizeless = withMasks(40, 16, sixGreenBits, Words({0}));
    EXPECT_EQ(FailureWith(sizeless, imageSizeField, 0), CArchiveException::badIndex);
    EXPECT_EQ(FailureWith(sizeless, bitCountField, std::uint16_t{24}), CArchiveException::badIndex);
}

TEST_F(BMPTest, HeadersOfEverySizeAreRead) {
    // 4 to 12: fields that are missing are 0, 0, 1 and 1.
    const Bytes old = ToRow({'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 32, 0, 0, 0, 12,   0, 0, 0,
                             2,   0,   1, 0, 1, 0, 1, 0, 1, 2, 3,  4, 5, 6, 0x40, 0, 0, 0});
    EXPECT_THAT(Pixels(old), ElementsAre(0xFF030201, 0xFF060504));
    for (const std::uint32_t size : {8U, 9U, 10U, 11U})
        EXPECT_THAT(Pixels(Shortened(old, 12, size)), ElementsAre(0xFF030201, 0xFF060504)) << size;
    for (const auto bitCount : std::initializer_list<std::uint16_t>{0, 2, 16, 32})
        EXPECT_EQ(FailureWith(old, widthField + 6, bitCount), CArchiveException::badIndex) << bitCount;
    // 13 to 39: fields that are missing are 0.
    for (std::uint32_t size = 13; size < 40; ++size) {
        const Bytes shorter = Shortened(plain, 40, size);
        if (size < 15)
            EXPECT_EQ(bmp.ReadFailure(shorter), CArchiveException::badIndex) << size;
        else
            EXPECT_THAT(Pixels(shorter), ElementsAre(0xFF040506, 0xFF010203)) << size;
    }
}

TEST_F(BMPTest, NamesTheCompressionThatItCannotRead) {
    Put<std::uint32_t>(plain, imageSizeField, 8);
    const std::pair<std::uint32_t, const char*> refusals[] = {
        {1, "Run-length"}, {2, "Run-length"}, {4, "JPEG"}, {5, "PNG"}, {6, "compression"}};
    for (const auto& [compression, word] : refusals) {
        Put(plain, compressionField, compression);
        EXPECT_THAT([&] { bmp.Read(plain); },
                    testing::ThrowsMessage<CArchiveException>(testing::HasSubstr(word)));
    }
}
