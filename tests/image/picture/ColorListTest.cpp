#include "image/picture/ColorList.h"

#include "image/picture/Image.h"

#include <gtest/gtest.h>
#include <random>

namespace {

constexpr Color black = 0xFF000000;
constexpr Color white = 0xFFFFFFFF;

ColorList RandomList(std::size_t count, std::mt19937& random) {
    ColorList list(count);
    for (std::size_t i = 0; i < count; ++i) list.SetColor(i, static_cast<Color>(random()));
    return list;
}

} // namespace

TEST(ColorListTest, FindsTheFirstOfTheNearest) {
    const ColorList list{0xFF000010, 0xFF000020, 0xFF000010, 0xFE123456, 0xFF123456};
    EXPECT_EQ(list.FindNearestIndex(0xFF000018), 0U);
    EXPECT_EQ(list.FindNearestIndex(0xFF123456), 4U);
    EXPECT_EQ(list.FindNearestIndex(0x00000000), 0U);
    EXPECT_EQ(ColorDistance(0, 0xFFFFFFFF), 390150U);
    EXPECT_EQ(ColorDistance(0x01000000, 0x00000001), 4U);
}

TEST(ColorListTest, RefusesIndicesOutsideAndSearchesInNothing) {
    ColorList list{1, 2};
    EXPECT_THROW(list.GetColor(2), std::out_of_range);
    EXPECT_THROW(list.SetColor(2, 0), std::out_of_range);
    EXPECT_THROW(ColorList().FindNearest(0), std::out_of_range);
    EXPECT_THROW(list.CreateCache(0), std::invalid_argument);
}

TEST(ColorListTest, TheCacheChangesNoResult) {
    std::mt19937 random(3);
    const ColorList list = RandomList(40, random);
    const ColorList cached(list);
    const NearestColorCacheScope cacheScope(cached);
    for (int i = 0; i < 5000; ++i) {
        const Color color = static_cast<Color>(random() % 3000);
        ASSERT_EQ(cached.FindNearestIndex(color), list.FindNearestIndex(color));
    }
}

TEST(ColorListTest, CopiesAndChangesLeaveNoCacheBehind) {
    ColorList list{black, white};
    list.CreateCache();
    EXPECT_FALSE(ColorList(list).HasCache());
    ColorList target{white};
    target.CreateCache();
    EXPECT_EQ(*target.FindNearest(black), white);
    target = list;
    EXPECT_FALSE(target.HasCache());
    EXPECT_EQ(*target.FindNearest(black), black);
    EXPECT_TRUE(list.HasCache());
    list.Append(0xFF800000);
    EXPECT_FALSE(list.HasCache());
}

TEST(ColorConversionTest, NearestReplacesEveryPixelAndGivesTheCacheBack) {
    const ColorList list{black, white};
    Image picture(2, 1);
    picture.SetPixel(0, 0, 0xFF7F7F7F);
    picture.SetPixel(1, 0, 0xFF808080);
    picture.ConvertToNearest(list);
    EXPECT_EQ(picture.GetPixel(0, 0), black);
    EXPECT_EQ(picture.GetPixel(1, 0), white);
    EXPECT_FALSE(list.HasCache());
    const ColorList nothing;
    EXPECT_THROW(picture.ConvertByErrorDiffusion(nothing), std::out_of_range);
    EXPECT_FALSE(nothing.HasCache());
}

TEST(ColorConversionTest, DiffusionCarriesTheErrorAlongItsRowOnly) {
    Image picture(2, 2);
    for (Color& pixel : picture.Pixels()) pixel = 0xFF808080;
    picture.ConvertByErrorDiffusion(ColorList{black, white});
    EXPECT_EQ(picture.GetPixel(0, 0), white);
    EXPECT_EQ(picture.GetPixel(1, 0), black);
    EXPECT_EQ(picture.GetPixel(0, 1), white);
}
