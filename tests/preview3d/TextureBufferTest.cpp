#include "preview3d/TextureBuffer.h"

#include "image/ImageDocuments.h"
#include "support/CodecHarness.h"
#include "support/TestApplication.h"

namespace keltavlo {

struct TextureBufferTest : WorkshopTest {
    // Opens a document of the type, with a picture of one color.
    CDocument& OpenPicture(const std::string& name, Color color) {
        auto& document = *Open<TavloDocument>(Put(name, MakeWal(32, 16)));
        std::ranges::fill(document.GetTexture().Pixels(), color);
        return document;
    }
    static Color LastColor() { return TakeLastPicture().GetPixel(5, 5); }
};

TEST_F(TextureBufferTest, SidesArePowersOfTwoFrom16To256) {
    const int sides[][2] = {{1, 16},    {8, 16},    {16, 16},   {17, 32},  {64, 64},
                            {100, 128}, {194, 256}, {256, 256}, {512, 256}};
    for (const auto& [side, expected] : sides) {
        const Texture picture = RandomTexture(side, 20);
        TextureBuffer texture;
        texture.TakePicture(picture);
        ASSERT_EQ(texture.GetWidth(), expected) << side;
        ASSERT_EQ(texture.GetHeight(), 32) << side;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < expected; ++x)
                ASSERT_EQ(texture.GetPixel(x, y), picture.GetPixel(std::min(x, side - 1), std::min(y, 19)))
                    << side;
    }
    TextureBuffer texture;
    texture.TakePicture(Image(0, 0));
    EXPECT_EQ(texture.GetPixel(15, 15), 0U);
}

TEST_F(TextureBufferTest, TakesTheLastPictureByTypeAndThenByTime) {
    EXPECT_EQ(LastColor(), 0xFF808080U);
    CDocument& first = OpenPicture("first.wal", 0xFF000001);
    EXPECT_EQ(LastColor(), 0xFF000001U);
    EXPECT_EQ(TakeLastPicture().GetWidth(), 32);
    CDocument& second = OpenPicture("second.wal", 0xFF000002);
    ASSERT_TRUE(application.GetTemplates().front()->OpenDocumentFile({})); // a BMP
    EXPECT_EQ(LastColor(), 0xFF000002U);
    second.OnCloseDocument();
    EXPECT_EQ(LastColor(), 0xFF000001U);
    first.OnCloseDocument();
    EXPECT_EQ(LastColor(), 0U) << "of the new BMP";
}

} // namespace keltavlo
