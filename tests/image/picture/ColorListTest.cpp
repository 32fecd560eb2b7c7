#include "image/picture/ColorList.h"

#include <gtest/gtest.h>
#include <random>

namespace keltavlo {

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
