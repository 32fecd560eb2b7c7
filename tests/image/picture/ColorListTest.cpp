#include "image/picture/ColorList.h"

#include "image/picture/Image.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr Color black = 0xFF000000;
constexpr Color white = 0xFFFFFFFF;

} // namespace

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
    ColorList list(40);
    for (std::size_t i = 0; i < 40; ++i) list.SetColor(i, static_cast<Color>(random()));
    list.CreateCache();
    ColorList other(list);
    EXPECT_FALSE(other.HasCache());
    for (int i = 0; i < 5000; ++i) {
        const Color color = static_cast<Color>(random() % 3000);
        ASSERT_EQ(list.FindNearestIndex(color), other.FindNearestIndex(color));
    }
    other.CreateCache();
    other = list;
    EXPECT_FALSE(other.HasCache());
    list.Append(0xFF800000);
    EXPECT_FALSE(list.HasCache());
}

TEST(ColorConversionTest, BothWaysReplaceEveryPixelAndGiveTheCacheBack) {
    const ColorList list{black, white};
    Image picture(2, 2);
    std::ranges::copy(std::initializer_list<Color>{0xFF7F7F7F, 0xFF808080, 0xFF808080, 0xFF808080},
                      picture.Pixels().begin());
    Image diffused = picture;
    picture.ConvertToNearest(list);
    EXPECT_TRUE(
        std::ranges::equal(picture.Pixels(), std::initializer_list<Color>{black, white, white, white}));
    diffused.ConvertByErrorDiffusion(list); // along each row
    EXPECT_TRUE(
        std::ranges::equal(diffused.Pixels(), std::initializer_list<Color>{black, white, white, black}));
    EXPECT_FALSE(list.HasCache());
    EXPECT_THROW(picture.ConvertByErrorDiffusion(ColorList()), std::out_of_range);
}
