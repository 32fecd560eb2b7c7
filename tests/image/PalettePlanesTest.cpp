#include "image/PalettePlanes.h"

#include <array>
#include <gtest/gtest.h>

namespace keltavlo {

constexpr auto plane = PalettePlanes::plane;
constexpr auto strip1 = PalettePlanes::strip1;
constexpr auto strip2 = PalettePlanes::strip2;
constexpr PalettePlanes::Look look{0xFFEEEEEE, 0xFF111111, 0xFF222222, 0xFF333333, 0xFF444444};
constexpr Color current = 0x40C86432; // red 200, green 100, blue 50

struct PalettePlanesTest : testing::Test {
    void Show(PalettePlanes::Mode mode, const std::uint32_t* table = nullptr) {
        planes.SetMode(mode);
        planes.Rebuild(current);
        planes.Render(table, look);
    }
    Color Seen(PalettePlanes::Part part, int x, int y) const {
        return planes.GetBitmap(part).Row(y)[static_cast<std::size_t>(x)];
    }

    PalettePlanes planes;
};

TEST_F(PalettePlanesTest, NoModeShowsTheCurrentColor) {
    Show(PalettePlanes::none);
    EXPECT_EQ(Seen(plane, 9, 9), current);
    EXPECT_EQ(Seen(strip2, 9, 9), Composite(current, look.face));
    EXPECT_EQ(Seen(plane, 0, 0), look.shadow);
    EXPECT_EQ(Seen(plane, 255, 9), look.highlight);
    EXPECT_EQ(Seen(strip1, 9, 15), look.highlight);
    std::array<std::uint32_t, 256> inverse{};
    for (std::uint32_t v = 0; v < 256; ++v) inverse[v] = Compose(255 - v, 255 - v, 255 - v, v);
    Show(PalettePlanes::none, inverse.data());
    EXPECT_EQ(Seen(plane, 9, 9), 0x40379BCDU);
    EXPECT_EQ(Seen(strip2, 9, 9), Composite(0x40379BCD, look.face));
    for (const PalettePlanes::Part part : {plane, strip1, strip2})
        EXPECT_EQ(planes.HitTest(part, 9, 9), current) << "gamma is seen and not picked";
}

TEST_F(PalettePlanesTest, ATableFillsItsCellsAndLeavesTheOthersToTheFace) {
    ColorList colors(200);
    for (std::size_t i = 0; i < colors.GetCount(); ++i)
        colors.SetColor(i, 0xFF000000 + static_cast<Color>(i));
    colors.SetColor(17, current);
    planes.SetColors(colors);
    Show(PalettePlanes::colorTable);
    EXPECT_EQ(planes.HitTest(plane, 3 * 16 + 15, 2 * 16), 0xFF000023);
    EXPECT_EQ(planes.HitTest(plane, 255, 255), current);
    EXPECT_EQ(Seen(plane, 255, 255), look.face);
    EXPECT_EQ(Seen(plane, 8 * 16, 12 * 16), look.face); // entry 200
    EXPECT_EQ(Seen(plane, 7 * 16, 12 * 16), look.shadow);
    EXPECT_EQ(Seen(plane, 7 * 16 + 1, 12 * 16 + 1), 0xFF0000C7); // a thin edge
    EXPECT_EQ(Seen(plane, 16 + 1, 16 + 1), look.darkShadow);     // the full edge of the current color
    EXPECT_EQ(Seen(plane, 31 - 1, 31 - 1), look.light);
    EXPECT_EQ(Seen(plane, 16 + 2, 16 + 2), current);
    EXPECT_EQ(planes.HitTest(strip1, 0, 0), current);
}

TEST_F(PalettePlanesTest, RampsRunThroughTheChannels) {
    Show(PalettePlanes::rgba);
    for (const auto& [x, y, color] :
         {std::tuple{30, 40, 0x40281E32U}, {0, 0, 0x40000032U}, {255, 0, 0x4000FF32U}, {0, 255, 0x40FF0032U}})
        EXPECT_EQ(planes.HitTest(plane, x, y), color);
    EXPECT_EQ(planes.HitTest(strip1, 255, 15), 0x40C864FFU);
    EXPECT_EQ(planes.HitTest(strip2, 0, 0), 0x00C86432U);
    EXPECT_EQ(Seen(strip2, 1, 0), look.shadow);
    EXPECT_EQ(Seen(strip2, 10, 8), Composite(0x0AC86432, look.face));
    for (const auto& [part, x, y] : {std::tuple{plane, 93, 193}, {strip1, 43, 1}, {strip2, 57, 1}}) {
        EXPECT_EQ(Seen(part, x, y), look.shadow) << part;
        EXPECT_NE(Seen(part, x + 1, y + 1), look.shadow) << part;
    }
    EXPECT_EQ(Seen(plane, 106, 206), look.highlight);
    EXPECT_EQ(Seen(strip1, 56, 14), look.highlight);
    for (const Color corner : {0x00000000U, 0xFFFFFFFFU}) {
        planes.Rebuild(corner);
        planes.Render(nullptr, look);
        EXPECT_EQ(planes.HitTest(strip2, static_cast<int>(Alpha(corner)), 5), corner);
    }
    EXPECT_EQ(Seen(plane, 248, 248), look.shadow);
}

TEST_F(PalettePlanesTest, OutsideNothingIsHit) {
    for (const auto& [part, x, y] :
         {std::tuple{plane, -1, 0}, {plane, 0, 256}, {plane, 256, 0}, {strip1, 0, 16}, {strip2, 5, -1}})
        EXPECT_FALSE(planes.HitTest(part, x, y)) << part << " " << x << " " << y;
}

} // namespace keltavlo
