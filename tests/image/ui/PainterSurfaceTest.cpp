#include "image/ui/PainterSurface.h"

#include "image/picture/DibSection.h"

#include <QImage>

#include <gtest/gtest.h>

namespace keltavlo {

// Both rows of the bitmap appear twice as wide and three times as high.
TEST(PainterSurfaceTest, StretchesBitmapsOfEveryDepthAndRowOrder) {
    for (const int bitCount : {1, 4, 8, 16, 24, 32})
        for (const int height : {2, -2}) {
            DibSection bitmap(1, height, bitCount);
            bitmap.SetPixel(0, 1, bitCount == 32 ? 0x00FFFFFF : 0xFFFFFFFF); // alpha makes no difference
            QImage canvas(4, 8, QImage::Format_RGB32);
            canvas.fill(0xFF102030);
            {
                PainterSurface surface(canvas);
                bitmap.Draw(surface, QRect(1, 1, 2, 6));
            }
            for (int y = 0; y < 8; ++y)
                for (int x = 0; x < 4; ++x) {
                    const bool inside = x >= 1 && x < 3 && y >= 1 && y < 7;
                    const QRgb bitmapColor = y < 4 ? 0xFF000000 : 0xFFFFFFFF;
                    EXPECT_EQ(canvas.pixel(x, y), inside ? bitmapColor : 0xFF102030)
                        << bitCount << height << x << y;
                }
        }
}

} // namespace keltavlo
