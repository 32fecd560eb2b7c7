#include "image/picture/NearestSearch.h"

#include "image/picture/NearestKernels.h"
#include "support/PlainDiffusion.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace keltavlo {

namespace {

// Bits of the alphas that are always set.
constexpr Color opaque = alphaMask, fewAlphas = 0x7E000000, anyAlpha = 0;

// Coarse channels make duplicates and ties.
ColorList RandomList(std::size_t count, Color alphas, Color channelBits, std::mt19937& random) {
    std::vector<Color> colors(count);
    for (Color& color : colors) color = (static_cast<Color>(random()) & (channelBits | alphaMask)) | alphas;
    return ColorList(colors);
}

// Random colors, a ramp, corners of cells, and the list's own entries.
std::vector<Color> MakePixels(const ColorList& list, Color alphas, std::mt19937& random) {
    std::vector<Color> pixels;
    for (std::uint32_t i = 0; i < 200; ++i) {
        const Color color = static_cast<Color>(random()) | alphas;
        for (const Color each :
             {color, color & 0xFFF0F0F0, color | 0x000F0F0F, Compose(i, i, i), list[i % list.GetCount()]})
            pixels.push_back(each);
    }
    return pixels;
}

// Tests each kernel on lists of every kind.
struct NearestSearchTest : testing::TestWithParam<const NearestKernels*> {
    void SetUp() override {
        if (!GetParam()) GTEST_SKIP() << "not on this processor";
    }

    template <typename Check>
    void ForEachList(Check check) {
        constexpr Color channelBits[] = {0xFFFFFF, 0x707070, 0x1F0F07};
        std::mt19937 random(11);
        std::size_t turn = 0;
        for (const std::size_t count : {1U, 2U, 16U, 200U, 256U, 300U, 2100U}) {
            for (const Color alphas : {opaque, fewAlphas, anyAlpha}) {
                const ColorList list = RandomList(count, alphas, channelBits[turn++ % 4 % 3], random);
                SCOPED_TRACE(testing::Message() << count << " entries, alphas " << alphas);
                for (const Color sought : {opaque, anyAlpha}) check(list, MakePixels(list, sought, random));
                if (HasFatalFailure()) return;
            }
        }
    }
};

} // namespace

TEST_P(NearestSearchTest, FindsWhatTheListFinds) {
    ForEachList([](const ColorList& list, const std::vector<Color>& pixels) {
        NearestSearch search(list, *GetParam());
        std::vector<Color> replaced(pixels);
        search.Replace(replaced);
        std::vector<std::uint8_t> indices(pixels.size());
        if (list.GetCount() <= 256) search.FindIndices(pixels, indices);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const std::size_t expected = list.FindNearestIndex(pixels[i]);
            ASSERT_EQ(search.FindIndex(pixels[i]), expected) << std::hex << pixels[i];
            ASSERT_EQ(replaced[i], list[expected]) << std::hex << pixels[i];
            ASSERT_TRUE(list.GetCount() > 256 || indices[i] == expected) << std::hex << pixels[i];
        }
    });
}

TEST_P(NearestSearchTest, DiffusesAsDefined) {
    const auto check = [](const ColorList& list, std::vector<Color> pixels, std::size_t width) {
        std::vector<Color> expected(pixels);
        for (std::size_t start = 0; start < expected.size(); start += width)
            DiffusePlainly(std::span(expected).subspan(start, width), list);
        NearestSearch(list, *GetParam()).Diffuse(pixels, width);
        ASSERT_EQ(pixels, expected);
    };
    ForEachList([&](const ColorList& list, const std::vector<Color>& pixels) { check(list, pixels, 100); });
    std::vector<Color> row(1000, 0xFFFFFFFF);
    row.resize(1200, 0xFF000000);
    check({0xFF000000, 0xFF010101}, row, row.size()); // errors beyond 16 bits
}

TEST_P(NearestSearchTest, SearchesListsTooLongForItsGrid) {
    std::vector<Color> colors(70000, 0xFFFFFFFF);
    colors[69000] = colors[69999] = 0xFF000000;
    const ColorList list(colors);
    NearestSearch search(list, *GetParam());
    EXPECT_EQ(search.FindIndex(0xFF000001), 69000U);
    EXPECT_EQ(search.FindIndex(0xFFFFFFFE), 0U);
}

TEST_P(NearestSearchTest, RefusesWhatItCannotFind) {
    const ColorList nothing;
    NearestSearch search(nothing, *GetParam());
    std::vector<Color> pixels(1);
    std::vector<std::uint8_t> indices(1);
    EXPECT_THROW(search.FindIndex(0), std::out_of_range);
    EXPECT_THROW(search.Replace(pixels), std::out_of_range);
    EXPECT_THROW(search.Diffuse(pixels, 1), std::out_of_range);
    EXPECT_NO_THROW(search.Diffuse({}, 0));
    const ColorList tooLong(257);
    EXPECT_THROW(NearestSearch(tooLong, *GetParam()).FindIndices(pixels, indices), std::length_error);
}

INSTANTIATE_TEST_SUITE_P(Kernels, NearestSearchTest, testing::ValuesIn(AvailableKernels<NearestKernels>()),
                         [](const auto& kernels) { return kernels.index == 0 ? "Portable" : "Vectors"; });

TEST(ColorListTest, FindsTheFirstOfTheNearest) {
    const ColorList list{0xFF000010, 0xFF000020, 0xFF000010, 0xFE123456, 0xFF123456};
    EXPECT_EQ(list.FindNearestIndex(0xFF000018), 0U);
    EXPECT_EQ(list.FindNearestIndex(0xFF123456), 4U);
    EXPECT_EQ(list.FindNearestIndex(0x00000000), 0U);
    EXPECT_EQ(ColorDistance(0, 0xFFFFFFFF), 390150U);
    EXPECT_EQ(ColorDistance(0x01000000, 0x00000001), 4U);
}

TEST(ColorListTest, TheCacheChangesNoResultAndEndsWithTheList) {
    std::mt19937 random(3);
    ColorList list;
    for (int i = 0; i < 40; ++i) list.Append(static_cast<Color>(random()));
    list.CreateCache(1021);
    ColorList other(list);
    EXPECT_FALSE(other.HasCache());
    for (int i = 0; i < 5000; ++i) {
        const Color color = static_cast<Color>(random() % 3000);
        ASSERT_EQ(list.FindNearestIndex(color), other.FindNearestIndex(color));
    }
    other.CreateCache(1021);
    other = list;
    EXPECT_FALSE(other.HasCache());
    list.Append(0xFF800000);
    EXPECT_FALSE(list.HasCache());
}

} // namespace keltavlo
