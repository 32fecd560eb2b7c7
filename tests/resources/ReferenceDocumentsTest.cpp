#include "framework/core/Path.h"
#include "image/picture/Image.h"
#include "resources/BrushDocument.h"
#include "resources/BuiltInPalettes.h"
#include "resources/BuiltInPath.h"
#include "resources/ColorSpaceDocument.h"
#include "resources/LMPDocument.h"
#include "support/FakeShell.h"
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
    // Saving such a document fails with a message and leaves nothing behind.
    void ExpectReadOnly(BaseDocument& document) {
        application.fileName = PathTo("copy");
        EXPECT_FALSE(document.DoFileSaveAs());
        EXPECT_THAT(TakeMessage(), HasSubstr("Cannot save"));
        CFileStatus status;
        EXPECT_FALSE(CFile::GetStatus(PathTo("copy"), status));
    }
};

struct FakeTarget : BrushTarget {
    Color GetTexel(unsigned x, unsigned y) const override { return picture.GetPixelWrapped(x, y); }
    void SetTexel(unsigned x, unsigned y, Color color) override { picture.SetPixelWrapped(x, y, color); }
    Image picture{4, 4};
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
    ExpectReadOnly(*palette);
    EXPECT_EQ(Open<LMPDocument>(Put("short.lmp", Lump(767))), nullptr);
    EXPECT_THAT(TakeMessage(), HasSubstr("short.lmp\".\nThe file ends too early."));
}

TEST_F(ReferenceDocumentsTest, ColorTables) {
    Bytes table;
    PutU32(table, 0, 0x80112233);
    const auto* document = Open<ColorTableDocument>(Put("a.kelcolors", table));
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetColor(0), 0x80112233U);
    EXPECT_EQ(Open<ColorTableDocument>(Put("empty.kelcolors", {}))->GetColorCount(), 0U);
    EXPECT_EQ(Open<ColorTableDocument>(Put("odd.kelcolors", Bytes(6))), nullptr);
    EXPECT_THAT(TakeMessage(), HasSubstr("odd.kelcolors"));
}

TEST_F(ReferenceDocumentsTest, BuiltInTablesFollowTheirRules) {
    const auto& safe = *OpenBuiltIn<ColorTableDocument>(internetSafeColors);
    EXPECT_EQ(safe.GetColorCount(), 216U);
    EXPECT_EQ(safe.GetColor(1), 0xFF003300U);
    EXPECT_EQ(safe.GetColor(6), 0xFF330000U);
    EXPECT_EQ(safe.GetColor(36), 0xFF000033U);
    EXPECT_EQ(safe.GetColor(215), 0xFFFFFFFFU);
    const auto& alpha = *OpenBuiltIn<ColorTableDocument>(alphaScaleColors);
    EXPECT_EQ(alpha.GetColor(0), 0U);
    EXPECT_EQ(alpha.GetColor(255), 0xFFFFFFFFU);
    EXPECT_EQ(alpha.GetTitle(), "Alpha Scale Colors");
    const auto& space = *OpenBuiltIn<ColorSpaceDocument>(rgbaColorSpace);
    EXPECT_EQ(space.GetTitle(), "RGBA");
    EXPECT_EQ(space.GetColorCount(), 0U);
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

TEST_F(ReferenceDocumentsTest, BrushesPaintAndPickAcrossTheSeam) {
    FakeShell shell;
    FakeTarget target;
    shell.color = 0xFF00FF00;
    auto* texel = OpenBuiltIn<BrushDocument>(texelBrushFile);
    EXPECT_EQ(texel->GetTitle(), "Texel Brush");
    texel->Apply(target, {-0.5, 1}, 255, {});
    texel->Apply(target, {6, 2.9}, 255, {});
    texel->Apply(target, {3, 3}, 0, {});
    EXPECT_EQ(target.picture.GetPixel(0, 1), shell.color);
    EXPECT_EQ(target.picture.GetPixel(2, 2), shell.color);
    EXPECT_EQ(target.picture.GetPixel(3, 3), 0U);
    auto* picker = OpenBuiltIn<BrushDocument>(colorPickerFile);
    EXPECT_NE(picker->GetCursor(), texel->GetCursor());
    picker->Apply(target, {3, 3}, 255, {});
    EXPECT_EQ(shell.color, 0U);
    EXPECT_EQ(shell.lastHint, Shell::colorChanged);
}

TEST_F(ReferenceDocumentsTest, BrushAndSpaceFilesThatAreNone) {
    const std::string brush = "KEL\xE5\xD0TAVBrsh\1" + std::string(3, '\0') + std::string("id\0\0", 4);
    EXPECT_EQ(Open<BrushDocument>(Put("three.kelbrush", ToBytes(brush + std::string("\3\0\0\0", 4)))),
              nullptr);
    EXPECT_THAT(TakeMessage(), HasSubstr("version"));
    auto* kindless =
        Open<BrushDocument>(Put("none.kelbrush", ToBytes("KEL\xE5\xD0TAVBrsh" + std::string(4, '\0'))));
    ASSERT_NE(kindless, nullptr);
    EXPECT_EQ(kindless->GetCursor(), BrushDocument::arrowCursor);
    const std::string space = "KEL\xE5\xD0TAV"
                              "ClSp\1" +
                              std::string(3, '\0') + std::string("id\0\0RGB ", 8);
    EXPECT_EQ(Open<ColorSpaceDocument>(Put("rgb.kelcolorspace", ToBytes(space))), nullptr);
    TakeMessage();
}
