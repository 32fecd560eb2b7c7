#include "image/picture/DibSection.h"

#include "support/CodecHarness.h"

#include <limits>

namespace keltavlo {

TEST(DibSectionTest, RefusesWhatItCannotHoldAndStaysAsItWas) {
    DibSection bitmap(2, 2, 32);
    bitmap.SetPixel(1, 1, 0xFF123456);
    constexpr int largest = std::numeric_limits<int>::max(), smallest = std::numeric_limits<int>::min();
    for (const auto& [width, height] :
         {std::pair(0, 1), {1, 0}, {-1, 1}, {65536, 1}, {1, smallest}, {largest, largest}, {65535, 65535}})
        EXPECT_THROW(bitmap.Create(width, height, 32), BitmapError) << width << " x " << height;
    for (const int bitCount : {0, 2, 64, -8, 65536 + 32})
        EXPECT_THROW(bitmap.Create(1, 1, bitCount), BitmapError);
    DibHeader compressed = bitmap.GetHeader();
    compressed.compression = 1;
    EXPECT_THROW(bitmap.Create(compressed, {}), BitmapError);
    EXPECT_EQ(bitmap.GetPixel(1, 1), 0xFF123456U);
    Image(3, 4).RenderTo(bitmap, IdentityTransform{});
    EXPECT_EQ(bitmap.GetHeight(), 4) << "the picture's size";
    EXPECT_THROW(Image(0, 2).RenderTo(bitmap, IdentityTransform{}), BitmapError);
}

TEST(DibSectionTest, TablesOfColorsBeginAsGreys) {
    for (const int bitCount : {1, 4, 8}) {
        DibSection bitmap(1, 1, bitCount);
        bitmap.SetPixel(0, 0, 0xFFFFFFFF);
        EXPECT_EQ(bitmap.GetPixel(0, 0), 0xFFFFFFFF) << bitCount;
    }
}

} // namespace keltavlo
