#include "resources/Brush.h"
#include "resources/PaletteDocument.h"
#include "support/TestApplication.h"

namespace keltavlo {

using namespace std::literals;

using ReferenceDocumentsTest = WorkshopTest;

TEST_F(ReferenceDocumentsTest, PaletteLumps) {
    Bytes lump = Words({0xFF563412});
    lump.resize(800);
    auto* palette = Open<LMPDocument>(Put("my colors.lmp", lump));
    ASSERT_NE(palette, nullptr);
    EXPECT_EQ(palette->GetTitle(), "my colors");
    EXPECT_EQ(palette->GetColor(0), 0xFF123456U);
    EXPECT_THROW(palette->GetColor(256), std::out_of_range);
    EXPECT_TRUE(application.GetRecentFiles().GetPaths().empty());
}

TEST_F(ReferenceDocumentsTest, ColorTables) {
    const auto* document = Open<ColorTableDocument>(Put("a.kelcolors", Words({0x80112233})));
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetColor(0), 0x80112233U);
    EXPECT_EQ(Open<ColorTableDocument>(Put("empty.kelcolors", {}))->GetColorCount(), 0U);
    EXPECT_THAT(Try<ColorTableDocument>(Bytes(6), ".kelcolors"), testing::HasSubstr(".kelcolors"));
}

TEST_F(ReferenceDocumentsTest, BuiltInColorsFollowTheirRulesOrTheGames) {
    const auto& safe = *OpenBuiltIn<ColorTableDocument>(internetSafeColors);
    EXPECT_EQ(safe.GetColorCount(), 216U);
    for (const auto& [index, color] :
         {std::pair(1U, 0xFF003300U), {6, 0xFF330000}, {36, 0xFF000033}, {215, 0xFFFFFFFF}})
        EXPECT_EQ(safe.GetColor(index), color) << index;
    EXPECT_EQ(OpenBuiltIn<ColorTableDocument>(alphaScaleColors)->GetColor(254), 0xFEFEFEFEU);
    EXPECT_FALSE(OpenBuiltIn<ColorSpaceDocument>(rgbaColorSpace)->IsColorTable());
    EXPECT_EQ(GetQuakeIIPalette()[255], 0xFF9F5B53U);
    EXPECT_EQ(GetQuakePalette()[252], 0xFFFFF393U);
    EXPECT_EQ(OpenBuiltIn<LMPDocument>(hexen2Palette)->GetColor(253), 0xFFFC8000U);
    EXPECT_FALSE(OpenBuiltIn<LMPDocument>(quakePalette)->DoFileSave()) << "it has no disk status";
}

TEST_F(ReferenceDocumentsTest, BrushesHaveTheirCursors) {
    EXPECT_NE(OpenBuiltIn<BrushDocument>(colorPickerFile)->GetCursor(),
              OpenBuiltIn<BrushDocument>(texelBrushFile)->GetCursor());
    const Bytes none = ToBytes("KEL\xE5\xD0TAVBrsh\0\0\0\0"sv);
    EXPECT_EQ(Open<BrushDocument>(Put("none.kelbrush", none))->GetCursor(), BrushDocument::arrowCursor);
}

} // namespace keltavlo
