#include "image/picture/Texture.h"

#include "image/picture/ColorList.h"

#include <gtest/gtest.h>

TEST(TextureTest, CopiesAreDeep) {
    Texture original(2, 2);
    original.SetPalette(ColorList{1, 2, 3});
    original.quakeName = "wall";
    original.quake2 = {"e1u1/wall", "e1u1/wall2", 1, 2, 3};
    Texture copy(original);
    original.SetPixel(1, 1, 5);
    original.palette->SetColor(0, 9);
    EXPECT_EQ(copy.GetPixel(1, 1), 0U);
    EXPECT_EQ(*copy.palette, (ColorList{1, 2, 3}));
    EXPECT_EQ(copy.quakeName, "wall");
    EXPECT_EQ(copy.quake2, original.quake2);
}
