#include "formats/PCXRows.h"
#include "support/CodecHarness.h"

namespace keltavlo {

using testing::ElementsAre;

constexpr std::size_t headerSize = 128, trailerSize = 769;

struct PCXTest : testing::Test {
    // Builds a file without a palette from coded rows.
    Bytes FileOf(std::uint16_t width, std::uint16_t height, std::initializer_list<int> rows) const {
        return Join({CutTo(pcx.Write(Texture(width, height)), headerSize), FromNumbers(rows)});
    }
    // Reads the file's pixels as indices of the default palette.
    std::vector<std::size_t> Indices(const Bytes& bytes) const {
        const Texture texture = pcx.Read(bytes);
        std::vector<std::size_t> indices;
        for (const Color pixel : texture.Pixels())
            indices.push_back(CodecHarness::Palette().FindNearestIndex(pixel));
        return indices;
    }

    CodecHarness pcx{"PCXDocument"};
};

TEST_F(PCXTest, CodesEveryPixelByItselfAndEvenRows) {
    Texture texture(3, 1);
    texture.SetPalette(CodecHarness::Palette());
    for (const auto& [x, index] : {std::pair(0, 5U), {1, 200}, {2, 7}})
        texture.SetPixel(x, 0, CodecHarness::Palette()[index]);
    const Bytes bytes = pcx.Write(texture);
    ASSERT_EQ(bytes.size(), headerSize + 5 + trailerSize);
    EXPECT_THAT(Numbers(bytes, 0, 16), ElementsAre(10, 5, 1, 8, 0, 0, 0, 0, 2, 0, 0, 0, 72, 0, 72, 0));
    EXPECT_EQ(bytes[16 + 3], std::byte{1});                         // red of the second color
    EXPECT_THAT(Numbers(bytes, 65, 5), ElementsAre(1, 4, 0, 1, 0)); // planes, bytes of a row, colors
    EXPECT_THAT(Numbers(bytes, headerSize, 6), ElementsAre(5, 0xC1, 0xC8, 7, 0, 12));
    texture.palette = nullptr;
    EXPECT_EQ(pcx.Write(texture).size(), headerSize + 5);
}

TEST_F(PCXTest, RowsMayHoldMoreThanTheirPixels) {
    Bytes bytes = FileOf(2, 2, {1, 2, 3, 4});
    Put<std::uint16_t>(bytes, 4, 1); // the first of the two columns
    EXPECT_THAT(Indices(bytes), ElementsAre(1, 3));
}

TEST_F(PCXTest, RunsStayWithinTheirRow) {
    EXPECT_THAT(Indices(FileOf(4, 1, {0xC3, 9, 8})), ElementsAre(9, 9, 9, 8));
    EXPECT_THAT(Indices(FileOf(4, 1, {0xC0, 1, 2, 0xC0, 0xFF, 0xC2, 0xC5, 3})),
                ElementsAre(2, 0xC5, 0xC5, 3));
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 2, {1, 0xC5, 7, 0, 0, 0, 0, 0})), CArchiveException::badIndex);
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 1, {0xC5, 7})), CArchiveException::badIndex);
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 1, {0xC3, 9})), CArchiveException::endOfFile);
    EXPECT_EQ(pcx.ReadFailure(FileOf(4, 1, {1, 2, 3, 0xC1})), CArchiveException::endOfFile);
}

TEST_F(PCXTest, RowsMayBeCodedInTheFewestBytes) {
    constexpr int longestRun = 63;
    for (std::uint16_t width = 2; width <= 520; width += 2) {
        Bytes bytes = FileOf(width, 3, {});
        for (int y = 0; y < 3; ++y)
            for (int left = width; left > 0; left -= longestRun) {
                if (left > 1) bytes.push_back(static_cast<std::byte>(0xC0 + std::min(left, longestRun)));
                bytes.push_back(std::byte{7});
            }
        EXPECT_THAT(pcx.Read(bytes).Pixels(), testing::Each(CodecHarness::Palette()[7])) << width;
        bytes.pop_back();
        EXPECT_EQ(pcx.ReadFailure(bytes), CArchiveException::endOfFile) << width;
    }
}

// The file is longer than the pieces that are read and decoded at a time.
TEST_F(PCXTest, RunsAndSinglePixelsMayFollowEachOtherInAnyOrder) {
    constexpr int width = 298, height = 150;
    std::mt19937 random(1);
    std::vector<std::size_t> pixels;
    Bytes bytes = FileOf(width, height, {});
    while (pixels.size() < std::size_t{width} * height) {
        const std::size_t left = width - pixels.size() % width;
        const std::size_t count = std::min<std::size_t>(random() % 9 == 0 ? random() % 64 : 1, left);
        const auto index = static_cast<std::uint8_t>(random());
        if (count != 1 || index >= 0xC0) bytes.push_back(static_cast<std::byte>(0xC0 + count));
        bytes.push_back(std::byte{index});
        pixels.insert(pixels.end(), count, index);
    }
    EXPECT_EQ(Indices(bytes), pixels);
}

TEST_F(PCXTest, KernelsDecodeSinglePixelsUntilTheLastByte) {
    using Plane = std::vector<std::uint8_t>;
    std::mt19937 random(1);
    for (const PCXKernels* kernels : AvailableKernels<PCXKernels>())
        for (std::size_t count = 0; count < 150; ++count)
            for (const Plane& next : {Plane{}, {0xC1}, {0xC2, 0xC1}})
                for (const std::size_t roomSize : {count / 2, count, count + 40}) {
                    Plane pixels(count), coded, room(roomSize);
                    for (std::uint8_t& pixel : pixels) {
                        pixel = static_cast<std::uint8_t>(random());
                        if (pixel >= 0xC0 || pixel % 8 == 0) coded.push_back(0xC1);
                        coded.push_back(pixel);
                    }
                    const std::size_t singles = coded.size();
                    coded.insert(coded.end(), next.begin(), next.end());
                    coded.shrink_to_fit();
                    PCXKernels::Rest rest{coded.data(), coded.data() + coded.size(), room.data(),
                                          room.data() + roomSize};
                    kernels->decodeSingles(rest);
                    const std::size_t decoded = std::min(roomSize, count);
                    ASSERT_EQ(rest.room, room.data() + decoded);
                    ASSERT_TRUE(std::equal(room.data(), rest.room, pixels.data()));
                    ASSERT_TRUE(decoded < count || rest.coded == coded.data() + singles);
                }
}

TEST_F(PCXTest, AFileWithoutAPaletteGetsTheDefaultOne) {
    // A file of 769 bytes has no room for a palette, whatever it starts with; one of 770 bytes has.
    Bytes bytes = FileOf(2, 1, {1, 2});
    bytes.resize(trailerSize);
    EXPECT_EQ(*pcx.Read(bytes).palette, CodecHarness::Palette());
    bytes.resize(headerSize + 2 + trailerSize);
    bytes[headerSize + 2] = std::byte{12};
    EXPECT_EQ(*pcx.Read(bytes).palette, ColorList(std::vector<Color>(256, 0xFF000000)));
}

TEST_F(PCXTest, WritesPalettesOf256ColorsOnly) {
    Texture texture(2, 2);
    for (const std::size_t count : {0U, 1U, 16U, 255U, 257U}) {
        texture.SetPalette(ColorList(count));
        EXPECT_EQ(pcx.WriteFailure(texture), CArchiveException::badIndex) << count;
        EXPECT_THAT([&] { pcx.Write(texture); },
                    testing::ThrowsMessage<CArchiveException>(testing::HasSubstr("256 colors")));
    }
    EXPECT_EQ(pcx.WriteFailure(Texture(65535, 1)), CArchiveException::badIndex) << "no even number of bytes";
}

} // namespace keltavlo
