#include "image/ImageDocuments.h"
#include "res/CommandIds.h"
#include "resources/PaletteDocument.h"
#include "support/CodecHarness.h"
#include "support/TestApplication.h"

namespace keltavlo {

struct TavloDocumentCommandsTest : WorkshopTest {
    void Send(CommandId id) { EXPECT_TRUE(document.OnCmdMsg(id, nullptr)); }

    WALDocument& document = *Open<WALDocument>(Put("floor.wal", MakeWal(16, 8)));
};

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
