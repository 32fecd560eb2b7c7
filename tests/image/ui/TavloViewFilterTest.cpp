#include "framework/ui/Commands.h"
#include "image/ui/TavloViewFixture.h"
#include "res/CommandIds.h"
#include "resources/BrushDocument.h"
#include "resources/BuiltInPath.h"
#include "resources/ColorTableDocument.h"

#include <QTest>

namespace {

constexpr Color black = 0xFF000000, white = 0xFFFFFFFF;

// The texture is grey all over; the palettes know black and white only.
class TavloViewFilterTest : public TavloViewFixture {
protected:
    TavloViewFilterTest() {
        std::ranges::fill(document->GetTexture().Pixels(), 0xFF808080);
        document->UpdateAllViews(nullptr);
        blackAndWhite = OpenTable("bw.kelcolors", {black, white});
        whiteOnly = OpenTable("w.kelcolors", {white});
    }

    PaletteDocument* OpenTable(const char* name, std::vector<Color> colors) {
        Bytes bytes;
        for (std::size_t i = 0; i < colors.size(); ++i) PutU32(bytes, 4 * i, colors[i]);
        const std::string path = folder.filePath(name).toStdString();
        WriteFile(path, bytes);
        return dynamic_cast<PaletteDocument*>(program.OpenDocumentFile(path));
    }
    bool Send(CommandId id) { return SendCommand(*program.GetMainFrame(), id); }
    CCmdUI StateOf(CommandId id) { return AskCommand(*program.GetMainFrame(), id); }

    PaletteDocument* blackAndWhite = nullptr;
    PaletteDocument* whiteOnly = nullptr;
};

} // namespace

TEST_F(TavloViewFilterTest, ShowsThePictureInThePalettesColors) {
    EXPECT_FALSE(Send(ID_FILTER_NEAREST) || Send(ID_FILTER_DITHER)) << "no palette is chosen";
    document->SetCurrentPalette(blackAndWhite);
    EXPECT_TRUE(Send(ID_FILTER_NEAREST));
    EXPECT_EQ(ColorShownAt(0, 0), white);
    EXPECT_EQ(ColorShownAt(1, 0), white);
    EXPECT_TRUE(Send(ID_FILTER_DITHER));
    EXPECT_TRUE(StateOf(ID_FILTER_NEAREST).checked && StateOf(ID_FILTER_DITHER).checked);
    EXPECT_EQ(ColorShownAt(1, 0), black) << "dithering wins";
    QTest::mouseMove(view, {1, 0});
    EXPECT_EQ(PaneText(3), "rgb: 80 80 80") << "the document's own colour";
    EXPECT_FALSE(document->IsModified());
    Send(ID_COLOR_TABLE_FIRST + 6);
    ASSERT_NE(document->GetCurrentPalette(), blackAndWhite);
    for (CommandId id = ID_COLOR_TABLE_FIRST; document->GetCurrentPalette() != whiteOnly; ++id)
        ASSERT_TRUE(Send(id));
    EXPECT_EQ(ColorShownAt(1, 0), white);
    Send(ID_PALETTE_NONE);
    EXPECT_EQ(ColorShownAt(1, 0), 0xFF808080U);
    EXPECT_FALSE(StateOf(ID_FILTER_DITHER).enabled);
}

TEST_F(TavloViewFilterTest, HalvesBrightnessBeforeGamma) {
    EXPECT_TRUE(Send(ID_FILTER_HALF));
    EXPECT_TRUE(StateOf(ID_FILTER_HALF).checked);
    EXPECT_EQ(ColorShownAt(0, 0), 0xFF404040U);
    program.GetMainFrame()->GetGamma().SetValues({2.0, 1.0, 1.0});
    EXPECT_EQ(ColorShownAt(0, 0), ApplyGamma({2.0, 1.0, 1.0}, 0xFF404040));
    document->SetCurrentPalette(whiteOnly);
    Send(ID_FILTER_NEAREST);
    EXPECT_EQ(ColorShownAt(0, 0), ApplyGamma({2.0, 1.0, 1.0}, 0xFF7F7F7F));
    Send(ID_FILTER_HALF);
    EXPECT_EQ(ColorShownAt(0, 0), white);
}

TEST_F(TavloViewFilterTest, StrokesShowAtOnceThroughTheFilter) {
    document->SetCurrentPalette(blackAndWhite);
    document->SetCurrentBrush(
        dynamic_cast<BrushDocument*>(BaseDocument::OpenReference(GetBuiltInPath(texelBrushFile))));
    program.SetCurrentColor(0xFF101010);
    Send(ID_FILTER_DITHER);
    QCoreApplication::processEvents();
    QTest::mousePress(view, Qt::LeftButton, {}, {2, 1});
    const QImage shown = view->grab().toImage();
    Image expected = document->GetTexture();
    expected.ConvertByErrorDiffusion(ColorList{black, white});
    for (int x = 0; x < 64; ++x) ASSERT_EQ(shown.pixel(x, 1), expected.GetPixel(x, 1)) << x;
    EXPECT_EQ(document->GetTexture().GetPixel(2, 1), 0xFF101010U);
}
