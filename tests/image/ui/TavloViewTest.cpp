#include "resources/PaletteDocument.h"
#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

constexpr Color black = 0xFF000000, white = 0xFFFFFFFF;

struct TavloViewTest : TavloViewFixture {
    void Wheel(int delta, Qt::KeyboardModifiers keys = Qt::NoModifier,
               Qt::MouseButtons buttons = Qt::NoButton) {
        const QPointF place(10, 10);
        QWheelEvent event(place, view->mapToGlobal(place), {}, {0, delta}, buttons, keys, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(view, &event);
    }
};

// The texture is gray all over; the palettes know black and white only.
struct TavloViewFilterTest : TavloViewFixture {
    TavloViewFilterTest() {
        std::ranges::fill(GetTexture().Pixels(), 0xFF808080);
        document->UpdateAllViews(nullptr);
    }

    PaletteDocument* blackAndWhite = Open<PaletteDocument>(Put("bw.kelcolors", Words({black, white})));
    PaletteDocument* whiteOnly = Open<PaletteDocument>(Put("w.kelcolors", Words({white})));
};

TEST_F(TavloViewTest, ScrollingGoesRound) {
    QScrollBar& bar = view->GetScrollBar(Qt::Horizontal);
    EXPECT_EQ(bar.maximum(), 63);
    view->SetScrollX(63);
    for (const auto& [action, position] : {std::pair{QAbstractSlider::SliderSingleStepAdd, 0},
                                           {QAbstractSlider::SliderSingleStepSub, 63},
                                           {QAbstractSlider::SliderPageStepAdd, 31},
                                           {QAbstractSlider::SliderToMaximum, 0}}) {
        bar.triggerAction(action);
        EXPECT_EQ(view->GetScrollX(), position);
        EXPECT_EQ(bar.value(), position);
    }
    bar.setSliderPosition(40);
    bar.triggerAction(QAbstractSlider::SliderMove);
    EXPECT_EQ(view->GetScrollX(), 40);
    view->SetScrollY(-33);
    EXPECT_EQ(view->GetScrollBar(Qt::Vertical).value(), 31);
    const std::tuple<Qt::Key, int, int> steps[] = {
        {Qt::Key_Right, 41, 31},   {Qt::Key_Down, 41, 0}, {Qt::Key_PageUp, 41, 16},
        {Qt::Key_PageDown, 41, 0}, {Qt::Key_Up, 41, 31},  {Qt::Key_Left, 40, 31},
        {Qt::Key_Home, 0, 0},      {Qt::Key_Left, 63, 0}, {Qt::Key_End, 0, 0}};
    for (const auto& [key, x, y] : steps) {
        QTest::keyClick(view, key);
        EXPECT_EQ(std::pair(view->GetScrollX(), view->GetScrollY()), std::pair(x, y)) << key;
    }
}

TEST_F(TavloViewTest, PaintsTheTilingFromTheScrollPosition) {
    const std::pair<CommandId, int> zooms[] = {
        {ID_ZOOM_100, 1}, {ID_ZOOM_200, 2}, {ID_ZOOM_800, 8}, {ID_ZOOM_1600, 16}, {ID_ZOOM_400, 4}};
    for (const auto& [chosen, zoom] : zooms) {
        Send(chosen);
        EXPECT_EQ(frame->GetZoom(), zoom);
        GetMainFrame().GetCurrentMenu().UpdateAll();
        for (const auto& [id, itemZoom] : zooms) {
            const QAction& item = *GetMainFrame().GetCurrentMenu().FindItem(id);
            EXPECT_EQ(item.isChecked(), id == chosen) << id;
            EXPECT_TRUE(!item.isChecked() || item.actionGroup()) << id;
        }
        EXPECT_FALSE(GetMainFrame().GetCurrentMenu().FindItem(ID_VIEW_STATUS_BAR)->actionGroup());
    }
    view->SetScrollX(3);
    view->SetScrollY(30);
    EXPECT_EQ(ColorShownAt(9, 5), GetTexture().GetPixel(5, 31));
    EXPECT_EQ(ColorShownAt(9, 8), GetTexture().GetPixel(5, 0));
    const QImage shown = view->grab().toImage();
    const QPoint last = shown.rect().bottomRight();
    EXPECT_EQ(shown.pixel(last), GetTexture().GetPixel((3 + last.x() / 4) % 64, (30 + last.y() / 4) % 32));
    GetTexture().SetSize(8, 8);
    GetTexture().SetPixel(7, 6, 0x00FF8040); // alpha does not hide colors
    document->UpdateAllViews(nullptr);
    EXPECT_EQ(view->GetScrollY(), 30) << "the position is not wrapped again when the picture shrinks";
    EXPECT_EQ(view->GetScrollBar(Qt::Vertical).maximum(), 7);
    EXPECT_EQ(ColorShownAt(16, 0), 0xFFFF8040U);
    GetTexture().SetSize(64, 32);
    document->UpdateAllViews(nullptr);
    EXPECT_EQ(view->GetScrollBar(Qt::Vertical).value(), 30);
}

TEST_F(TavloViewTest, TellsPositionAndColorUnderTheMouse) {
    frame->SetZoom(4);
    view->SetScrollX(3);
    QTest::mouseMove(view, {9, 5});
    EXPECT_EQ(PaneText(2), "5.25, 1.25");
    GetTexture().SetPixel(5, 1, 0xFF0A1B2C);
    QTest::mouseMove(view, {9, 6});
    EXPECT_EQ(PaneText(3), "rgb: 0A 1B 2C");
    QTest::mouseClick(view, Qt::LeftButton, {}, {11, 3});
    EXPECT_EQ(PaneText(2), "5.75, 0.75");
    EXPECT_FALSE(document->IsModified());
}

TEST_F(TavloViewTest, TheWheelZoomsWithCtrlAndScrollsWithout) {
    Wheel(60, Qt::ControlModifier);
    EXPECT_EQ(frame->GetZoom(), 1);
    Wheel(60, Qt::ControlModifier);
    EXPECT_EQ(frame->GetZoom(), 2);
    Wheel(5 * 120, Qt::ControlModifier);
    Wheel(-120, Qt::ControlModifier | Qt::ShiftModifier);
    Wheel(-120, Qt::ControlModifier, Qt::LeftButton);
    EXPECT_EQ(frame->GetZoom(), 16);
    EXPECT_EQ(view->GetScrollY(), 0);
    Wheel(-120);
    Wheel(120, Qt::ShiftModifier);
    EXPECT_EQ(view->GetScrollX(), 61);
    EXPECT_EQ(view->GetScrollY(), 3);
    for (int i = 0; i < 12; ++i) Wheel(-10); // as a touchpad does
    EXPECT_EQ(view->GetScrollY(), 6);
    Wheel(-10 * 120, Qt::ControlModifier);
    EXPECT_EQ(frame->GetZoom(), 1);
}

TEST_F(TavloViewTest, PaintsWhatChanges) {
    document->SetCurrentPalette(Open<PaletteDocument>(Put("bw.kelcolors", Words({black, white}))));
    const std::function<void()> changes[] = {
        [&] { Send(ID_FILTER_HALF); },   [&] { Send(ID_FILTER_NEAREST); },
        [&] { Send(ID_FILTER_DITHER); }, [&] { document->UpdateAllViews(nullptr); },
        [&] { frame->SetZoom(4); },      [&] { view->SetScrollX(3); },
        [&] { view->SetScrollY(3); },    [&] { Send(ID_PALETTE_NONE); }};
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        QCoreApplication::processEvents();
        const EventSpy painted(*view);
        changes[i]();
        QCoreApplication::processEvents();
        EXPECT_EQ(painted.region, QRegion(view->rect())) << i;
    }
}

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
    EXPECT_EQ(PaneText(3), "rgb: 80 80 80") << "the document's own color";
    EXPECT_FALSE(document->IsModified());
    for (CommandId id = ID_COLOR_TABLE_FIRST; document->GetCurrentPalette() != whiteOnly; ++id)
        ASSERT_TRUE(Send(id));
    EXPECT_EQ(ColorShownAt(1, 0), white);
    Send(ID_PALETTE_NONE);
    EXPECT_EQ(ColorShownAt(1, 0), 0xFF808080U);
    EXPECT_FALSE(StateOf(ID_FILTER_DITHER).enabled);
}

TEST_F(TavloViewFilterTest, HalvesBrightnessBeforeGamma) {
    constexpr GammaValues gamma{2.0, 1.0, 1.0};
    EXPECT_TRUE(Send(ID_FILTER_HALF));
    EXPECT_EQ(ColorShownAt(0, 0), 0xFF404040U);
    GetMainFrame().GetGamma().SetValues(gamma);
    EXPECT_EQ(ColorShownAt(0, 0), ApplyGamma(gamma, 0xFF404040));
    document->SetCurrentPalette(whiteOnly);
    Send(ID_FILTER_NEAREST);
    EXPECT_EQ(ColorShownAt(0, 0), ApplyGamma(gamma, 0xFF7F7F7F));
}

TEST_F(TavloViewFilterTest, StrokesShowAtOnceThroughTheFilter) {
    document->SetCurrentPalette(blackAndWhite);
    Choose(texelBrushFile);
    program.SetCurrentColor(0xFF101010);
    Send(ID_FILTER_DITHER);
    QCoreApplication::processEvents();
    QTest::mousePress(view, Qt::LeftButton, {}, {2, 1});
    const QImage shown = view->grab().toImage();
    Image expected = GetTexture();
    expected.ConvertByErrorDiffusion(ColorList{black, white});
    for (int x = 0; x < 64; ++x) ASSERT_EQ(shown.pixel(x, 1), expected.GetPixel(x, 1)) << x;
    EXPECT_EQ(GetTexture().GetPixel(2, 1), 0xFF101010U);
}

} // namespace keltavlo
