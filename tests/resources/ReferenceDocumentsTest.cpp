#include "framework/core/Path.h"
#include "resources/BrushDocument.h"
#include "resources/BuiltInPalettes.h"
#include "resources/BuiltInPath.h"
#include "resources/ColorSpaceDocument.h"
#include "resources/LMPDocument.h"
#include "support/TestApplication.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class ReferenceDocumentsTest : public WorkshopTest {
protected:
    Bytes Lump(std::size_t size) const {
        Bytes lump(size);
        for (std::size_t i = 0; i < size; ++i) lump[i] = static_cast<std::byte>(0x12 + 0x22 * (i % 3));
        return lump;
    }
    template <class Document>
    Document* OpenBuiltIn(BuiltInFile file) {
        return Open<Document>(GetBuiltInPath(file));
    }
};

} // namespace

TEST_F(ReferenceDocumentsTest, PaletteLumps) {
    auto* palette = Open<LMPDocument>(Put("my colours.lmp", Lump(800)));
    ASSERT_NE(palette, nullptr);
    EXPECT_EQ(palette->GetTitle(), "my colours");
    EXPECT_EQ(palette->GetColorCount(), 256U);
    EXPECT_EQ(palette->GetColor(0), 0xFF123456U);
    EXPECT_THROW(palette->GetColor(256), std::out_of_range);
    EXPECT_TRUE(application.GetRecentFiles().GetPaths().empty());
    EXPECT_THAT(Try<LMPDocument>(Lump(767), ".lmp"), HasSubstr(".lmp\".\nThe file ends too early."));
}

TEST_F(ReferenceDocumentsTest, ColorTables) {
    Bytes table;
    PutU32(table, 0, 0x80112233);
    const auto* document = Open<ColorTableDocument>(Put("a.kelcolors", table));
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetColor(0), 0x80112233U);
    EXPECT_EQ(Open<ColorTableDocument>(Put("empty.kelcolors", {}))->GetColorCount(), 0U);
    EXPECT_THAT(Try<ColorTableDocument>(Bytes(6), ".kelcolors"), HasSubstr(".kelcolors"));
}

TEST_F(ReferenceDocumentsTest, BuiltInTablesFollowTheirRules) {
    const auto& safe = *OpenBuiltIn<ColorTableDocument>(internetSafeColors);
    EXPECT_EQ(safe.GetColorCount(), 216U);
    for (const auto& [index, color] :
         {std::pair(1U, 0xFF003300U), {6, 0xFF330000}, {36, 0xFF000033}, {215, 0xFFFFFFFF}})
        EXPECT_EQ(safe.GetColor(index), color) << index;
    const auto& alpha = *OpenBuiltIn<ColorTableDocument>(alphaScaleColors);
    EXPECT_EQ(alpha.GetTitle(), "Alpha Scale Colors");
    EXPECT_EQ(alpha.GetColor(0), 0U);
    EXPECT_EQ(alpha.GetColor(255), 0xFFFFFFFFU);
    const auto& space = *OpenBuiltIn<ColorSpaceDocument>(rgbaColorSpace);
    EXPECT_EQ(space.GetTitle(), "RGBA");
    EXPECT_FALSE(space.IsColorTable());
}

TEST_F(ReferenceDocumentsTest, BuiltInPalettesAreReadOnce) {
    const ColorList& palette = GetQuakeIIPalette();
    EXPECT_EQ(palette.GetCount(), 256U);
    EXPECT_EQ(palette[255], 0xFF9F5B53U);
    EXPECT_EQ(&GetQuakeIIPalette(), &palette);
    EXPECT_EQ(GetQuakePalette()[252], 0xFFFFF393U);
    EXPECT_EQ(OpenBuiltIn<LMPDocument>(hexen2Palette)->GetColor(253), 0xFFFC8000U);
    auto* quake = OpenBuiltIn<LMPDocument>(quakePalette);
    EXPECT_EQ(quake->GetTitle(), "Quake");
    EXPECT_FALSE(quake->DoFileSave())
        << "a path inside the program has no disk status, so a name is asked for";
}

TEST_F(ReferenceDocumentsTest, BrushAndSpaceFilesThatAreNone) {
    EXPECT_NE(OpenBuiltIn<BrushDocument>(colorPickerFile)->GetCursor(),
              OpenBuiltIn<BrushDocument>(texelBrushFile)->GetCursor());
    const std::string none = "KEL\xE5\xD0TAVBrsh" + std::string(4, '\0');
    const std::string third = "KEL\xE5\xD0TAVBrsh" + std::string("\1\0\0\0id\0\0\3\0\0\0", 12);
    const std::string rgb = "KEL\xE5\xD0TAVClSp" + std::string("\1\0\0\0id\0\0RGB ", 12);
    EXPECT_EQ(Open<BrushDocument>(Put("none.kelbrush", ToBytes(none)))->GetCursor(),
              BrushDocument::arrowCursor);
    EXPECT_THAT(Try<BrushDocument>(ToBytes(third), ".kelbrush"), HasSubstr(badVersion));
    EXPECT_NE(Try<ColorSpaceDocument>(ToBytes(rgb), ".kelcolorspace"), "");
}
