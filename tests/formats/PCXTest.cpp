#include "formats/CodecHarness.h"

#include <gmock/gmock.h>

namespace {

constexpr std::size_t headerSize = 128;
constexpr std::size_t trailerSize = 769;

class PCXTest : public testing::Test {
protected:
    // A file without a palette whose rows are coded in these bytes.
    Bytes FileOf(std::uint16_t width, std::uint16_t height, std::initializer_list<unsigned> rows) const {
        Bytes bytes = pcx.Write(Texture(width, height));
        bytes.resize(headerSize);
        for (const unsigned byte : rows) bytes.push_back(static_cast<std::byte>(byte));
        return bytes;
    }
    // The indices that the file's pixels have in the default palette.
    std::vector<std::size_t> Indices(const Bytes& bytes) const {
        const Texture texture = pcx.Read(bytes);
        std::vector<std::size_t> indices;
        for (const Color pixel : texture.Pixels())
            indices.push_back(CodecHarness::Palette().FindNearestIndex(pixel));
        return indices;
    }

    CodecHarness pcx{"PCXDocument"};
};

} // namespace

TEST_F(PCXTest, CodesEveryPixelByItself) {
    Texture texture(2, 1);
    texture.SetPalette(CodecHarness::Palette());
    texture.SetPixel(0, 0, CodecHarness::Palette()[5]);
    texture.SetPixel(1, 0, CodecHarness::Palette()[200]);
    const Bytes bytes = pcx.Write(texture);
    ASSERT_EQ(bytes.size(), headerSize + 3 + trailerSize);
    EXPECT_THAT(Tail({bytes.begin(), bytes.begin() + headerSize + 4}, headerSize),
                testing::ElementsAre(5, 0xC1, 0xC8, 12));
    const Bytes header(bytes.begin(), bytes.begin() + 16);
    EXPECT_THAT(Tail(header, 0), testing::ElementsAre(10, 5, 1, 8, 0, 0, 0, 0, 1, 0, 0, 0, 72, 0, 72, 0));
    EXPECT_EQ(bytes[16 + 3], std::byte{1}); // red of the second colour
    EXPECT_EQ(bytes[65], std::byte{1});
    EXPECT_EQ(bytes[66], std::byte{2});
    texture.palette = nullptr;
    EXPECT_EQ(pcx.Write(texture).size(), headerSize + 3);
}

TEST_F(PCXTest, OddWidthsArePadded) {
    const Texture texture = RandomTexture(3, 2, ColorList{CodecHarness::Palette()[7]});
    const Bytes bytes = pcx.Write(texture);
    EXPECT_THAT(Tail(bytes, headerSize), testing::ElementsAre(7, 7, 7, 0, 7, 7, 7, 0));
    EXPECT_EQ(bytes[66], std::byte{4});
}

TEST_F(PCXTest, RowsMayHoldMoreThanTheirPixels) {
    Bytes bytes = FileOf(2, 2, {1, 2, 3, 4});
    Put<std::uint16_t>(bytes, 4, 1); // the first of the two columns
    EXPECT_THAT(Indices(bytes), testing::ElementsAre(1, 3));
    EXPECT_EQ(pcx.WriteFailure(Texture(65535, 1)), CArchiveException::badIndex);
}

TEST_F(PCXTest, RunsStayWithinTheirRow) {
    EXPECT_THAT(Indices(FileOf(4, 1, {0xC3, 9, 8})), testing::ElementsAre(9, 9, 9, 8));
    EXPECT_THAT(Indices(FileOf(4, 1, {0xC0, 1, 2, 0xC0, 0xFF, 0xC2, 0xC5, 3})),
                testing::ElementsAre(2, 0xC5, 0xC5, 3));
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 2, {1, 0xC5, 7, 0, 0, 0, 0, 0})), CArchiveException::badIndex);
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 1, {0xC5, 7})), CArchiveException::badIndex);
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 1, {0xC3, 9})), CArchiveException::endOfFile);
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 1, {1, 2, 3, 0xC1})), CArchiveException::endOfFile);
}

TEST_F(PCXTest, AFileWithoutAPaletteGetsTheDefaultOne) {
    EXPECT_EQ(*pcx.Read(pcx.Write(Texture(1, 1))).palette, CodecHarness::Palette());
    // A file of 769 bytes has no room for one, whatever it starts with; one byte more and it has.
    Bytes bytes = FileOf(2, 1, {1, 2});
    bytes.resize(trailerSize);
    bytes[0] = std::byte{10};
    EXPECT_EQ(*pcx.Read(bytes).palette, CodecHarness::Palette());
    bytes.resize(headerSize + 2 + trailerSize);
    bytes[headerSize + 2] = std::byte{12};
    EXPECT_EQ(*pcx.Read(bytes).palette, ColorList(std::vector<Color>(256, 0xFF000000)));
}

TEST_F(PCXTest, ShortPalettesEndInBlack) {
    Texture texture(2, 2);
    texture.SetPalette(ColorList{0xFF102030});
    texture.Pixels()[0] = 0xFF102030;
    const Bytes bytes = pcx.Write(texture);
    const Texture back = pcx.Read(bytes);
    ASSERT_EQ(back.palette->GetCount(), 256U);
    EXPECT_EQ((*back.palette)[0], 0xFF102030U);
    EXPECT_EQ((*back.palette)[255], 0xFF000000U);
    texture.SetPalette(ColorList(257));
    EXPECT_EQ(pcx.WriteFailure(texture), CArchiveException::badIndex);
}
