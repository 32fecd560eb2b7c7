#include "image/ImageDocuments.h"
#include "res/CommandIds.h"
#include "resources/Brush.h"
#include "resources/MenuItemList.h"
#include "resources/PaletteDocument.h"
#include "support/CodecHarness.h"
#include "support/TestApplication.h"

namespace keltavlo {

// A texture of 16 x 8 with two of the menus' lists.
class TavloDocumentCommandsTest : public WorkshopTest {
protected:
    TavloDocumentCommandsTest() {
        brushes.Init(ID_BRUSHES, ID_BRUSH_FIRST, ID_BRUSH_LAST + 1);
        brushes.SetItem(1, OpenBuiltIn<CDocument>(colorPickerFile));
        tables.Init(ID_PALETTE_TABLES, ID_COLOR_TABLE_FIRST, ID_COLOR_TABLE_LAST);
        tables.SetItem(0, OpenBuiltIn<CDocument>(quake2Palette));
    }

    void Send(CommandId id) { EXPECT_TRUE(document.OnCmdMsg(id, nullptr)); }

    WALDocument& document = *Open<WALDocument>(Put("floor.wal", MakeWal(16, 8)));
    DocumentMenuList brushes{BrushDocument::runtimeClass};
    DocumentMenuList tables{ColorTableDocument::runtimeClass};
};

TEST_F(TavloDocumentCommandsTest, ChoosesBrushesAndPalettesFromTheLists) {
    EXPECT_TRUE(StateOf(document, ID_BRUSH_NONE).checked && StateOf(document, ID_PALETTE_NONE).checked);
    Send(ID_BRUSH_FIRST + 1);
    EXPECT_EQ(document.GetCurrentBrush(), brushes.GetItem(ID_BRUSH_FIRST + 1));
    EXPECT_TRUE(StateOf(document, ID_BRUSH_FIRST + 1).checked);
    EXPECT_EQ(StateOf(document, ID_BRUSH_FIRST + 1).text, "Color Picker");
    Send(ID_BRUSH_LAST);
    EXPECT_FALSE(document.HasBrush()) << "nothing is listed there";
    Send(ID_COLOR_TABLE_FIRST);
    EXPECT_EQ(document.GetCurrentPalette()->GetTitle(), "Quake II");
    Send(ID_COLOR_TABLE_LAST);
    EXPECT_TRUE(StateOf(document, ID_COLOR_TABLE_FIRST).checked) << "no list has that id";
    for (const CommandId id : {ID_COLOR_SPACE_FIRST, ID_COLOR_SPACE_LAST})
        EXPECT_FALSE(document.OnCmdMsg(id, nullptr)) << "color spaces are listed, not chosen: " << id;
    Send(ID_PALETTE_NONE);
    EXPECT_FALSE(document.HasPalette() || document.IsModified());
}

TEST_F(TavloDocumentCommandsTest, ConvertsThePictureAsAnUndoableChange) {
    EXPECT_FALSE(StateOf(document, ID_FORMAT_NEAREST).enabled || StateOf(document, ID_FORMAT_DITHER).enabled);
    document.SetCurrentPalette(OpenBuiltIn<PaletteDocument>(grayScaleColors));
    document.GetTexture().SetPalette(GetQuakeIIPalette());
    const Texture original = document.GetTexture();
    for (const auto& [id, convert] : {std::pair(ID_FORMAT_NEAREST, &Image::ConvertToNearest),
                                      {ID_FORMAT_DITHER, &Image::ConvertByErrorDiffusion}}) {
        Image expected = original;
        (expected.*convert)(*document.GetPaletteColors());
        Send(id);
        EXPECT_TRUE(SamePixels(document.GetTexture(), expected));
        EXPECT_EQ(*document.GetTexture().palette, GetQuakeIIPalette());
        Send(ID_EDIT_UNDO);
    }
}

TEST_F(TavloDocumentCommandsTest, RecordsNoConversionThatChangesNothing) {
    for (auto* palette :
         {OpenBuiltIn<PaletteDocument>(quake2Palette), OpenBuiltIn<PaletteDocument>(rgbaColorSpace),
          Open<PaletteDocument>(Put("empty.kelcolors", {}))}) {
        document.SetCurrentPalette(palette);
        Send(ID_FORMAT_NEAREST);
        Send(ID_FORMAT_DITHER);
        EXPECT_FALSE(document.GetHistory().CanUndo() || document.IsModified()) << palette->GetTitle();
    }
}

} // namespace keltavlo
