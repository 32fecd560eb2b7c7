#include "framework/core/MenuItems.h"
#include "image/ImageDocuments.h"
#include "res/CommandIds.h"
#include "resources/BrushDocument.h"
#include "resources/BuiltInPalettes.h"
#include "resources/BuiltInPath.h"
#include "resources/ColorSpaceDocument.h"
#include "resources/ColorTableDocument.h"
#include "resources/DocumentMenuList.h"
#include "support/TestApplication.h"

#include <gtest/gtest.h>

namespace {

// Entries are what these tests need, not items.
struct NoMenu : MenuItems {
    bool HasItem(CommandId) const override { return false; }
    void ModifyItem(CommandId, CommandId, const std::string&) override {}
    void InsertItem(CommandId, CommandId, const std::string&) override {}
    void RemoveItem(CommandId) override {}
    void SetItemPrompt(CommandId, const std::string&) override {}
};

// A texture of 16 x 8 with the lists of the menus.
class TavloDocumentCommandsTest : public WorkshopTest {
protected:
    TavloDocumentCommandsTest() {
        brushes.Init(ID_BRUSHES, ID_BRUSH_FIRST, ID_BRUSH_LAST + 1);
        tables.Init(ID_PALETTE_TABLES, ID_COLOR_TABLE_FIRST, ID_COLOR_TABLE_LAST + 1);
        spaces.Init(ID_PALETTE_SPACES, ID_COLOR_SPACE_FIRST, ID_COLOR_SPACE_LAST + 1);
        NoMenu menu;
        MenuItemList::UpdateAll(menu, &document);
    }

    CCmdUI StateOf(CommandId id) {
        CCmdUI state(id);
        EXPECT_TRUE(document.OnCmdMsg(id, &state));
        return state;
    }
    void Send(CommandId id) { EXPECT_TRUE(document.OnCmdMsg(id, nullptr)); }
    PaletteDocument& OpenPalette(const std::string& path) { return *Open<PaletteDocument>(path); }

    WALDocument& document = *Open<WALDocument>(Put("floor.wal", MakeWal(16, 8)));
    DocumentMenuList brushes{BrushDocument::runtimeClass};
    DocumentMenuList tables{ColorTableDocument::runtimeClass};
    DocumentMenuList spaces{ColorSpaceDocument::runtimeClass};
};

TEST_F(TavloDocumentCommandsTest, ChoosesBrushesAndPalettesFromTheLists) {
    EXPECT_TRUE(StateOf(ID_BRUSH_NONE).checked && StateOf(ID_PALETTE_NONE).checked);
    Send(ID_BRUSH_FIRST + 1);
    EXPECT_EQ(document.GetCurrentBrush()->GetTitle(), "Color Picker");
    EXPECT_TRUE(StateOf(ID_BRUSH_FIRST + 1).checked);
    EXPECT_EQ(StateOf(ID_BRUSH_FIRST).text, "Texel Brush");
    EXPECT_FALSE(StateOf(ID_BRUSH_FIRST).checked || StateOf(ID_BRUSH_NONE).checked);
    Send(ID_BRUSH_LAST);
    EXPECT_FALSE(document.HasBrush()) << "nothing is listed there";
    Send(ID_COLOR_TABLE_FIRST + 3);
    EXPECT_EQ(document.GetCurrentPalette(), tables.GetItem(ID_COLOR_TABLE_FIRST + 3));
    Send(ID_COLOR_SPACE_FIRST);
    EXPECT_EQ(document.GetCurrentPalette()->GetTitle(), "RGBA");
    EXPECT_TRUE(StateOf(ID_COLOR_SPACE_FIRST).checked);
    Send(ID_PALETTE_NONE);
    EXPECT_FALSE(document.HasPalette() || document.IsModified());
}

TEST_F(TavloDocumentCommandsTest, ConvertsThePictureAsAnUndoableChange) {
    EXPECT_FALSE(StateOf(ID_FORMAT_NEAREST).enabled || StateOf(ID_FORMAT_DITHER).enabled);
    document.SetCurrentPalette(&OpenPalette(GetBuiltInPath(grayScaleColors)));
    ASSERT_TRUE(StateOf(ID_FORMAT_NEAREST).enabled && StateOf(ID_FORMAT_DITHER).enabled);
    document.GetTexture().SetPalette(GetQuakeIIPalette());
    const Texture original = document.GetTexture();
    const auto expectConverted = [&](CommandId id, void (Image::*convert)(const ColorList&),
                                     const char* undo) {
        Image expected = original;
        (expected.*convert)(*document.GetPaletteColors());
        Send(id);
        EXPECT_TRUE(std::ranges::equal(document.GetTexture().Pixels(), expected.Pixels()));
        EXPECT_EQ(*document.GetTexture().palette, GetQuakeIIPalette());
        EXPECT_EQ(StateOf(ID_EDIT_UNDO).text, undo);
        Send(ID_EDIT_UNDO);
        EXPECT_TRUE(std::ranges::equal(document.GetTexture().Pixels(), original.Pixels()));
    };
    expectConverted(ID_FORMAT_NEAREST, &Image::ConvertToNearest, "&Undo Nearest Color\tCtrl+Z");
    expectConverted(ID_FORMAT_DITHER, &Image::ConvertByErrorDiffusion,
                    "&Undo Error Diffusion Dithering\tCtrl+Z");
    EXPECT_EQ(StateOf(ID_EDIT_REDO).text, "&Redo Error Diffusion Dithering\tCtrl+Y");
}

TEST_F(TavloDocumentCommandsTest, RecordsNoConversionThatChangesNothing) {
    for (PaletteDocument* palette :
         {&OpenPalette(GetBuiltInPath(quake2Palette)), &OpenPalette(GetBuiltInPath(rgbaColorSpace)),
          &OpenPalette(Put("empty.kelcolors", {}))}) {
        document.SetCurrentPalette(palette);
        Send(ID_FORMAT_NEAREST);
        Send(ID_FORMAT_DITHER);
        EXPECT_FALSE(document.GetHistory().CanUndo() || document.IsModified()) << palette->GetTitle();
    }
}

} // namespace
