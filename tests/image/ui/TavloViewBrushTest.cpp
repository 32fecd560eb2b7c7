#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

constexpr Color red = 0xFFFF0000;

struct TavloViewBrushTest : TavloViewFixture {
    TavloViewBrushTest() { program.SetCurrentColor(red); }

    void Press(const QPoint& place) { QTest::mousePress(view, Qt::LeftButton, {}, place); }
    void Release(const QPoint& place) { QTest::mouseRelease(view, Qt::LeftButton, {}, place); }
    // Qt's own helper remembers buttons from one test to the next.
    void Drag(const QPoint& place, Qt::MouseButtons buttons = Qt::LeftButton) {
        QMouseEvent event(QEvent::MouseMove, place, view->mapToGlobal(place), Qt::NoButton, buttons, {});
        QCoreApplication::sendEvent(view, &event);
    }
    Color TexelAt(int x, int y) { return GetTexture().GetPixel(x, y); }
};

TEST_F(TavloViewBrushTest, StrokesGoAcrossTheSeam) {
    Choose(texelBrushFile);
    frame->SetZoom(2);
    view->SetScrollX(62);
    Press({1, 3});
    EXPECT_FALSE(document->IsModified()) << "not before the button is released";
    Drag({3, 4});
    Drag({4, 4});
    Release({6, 64});
    for (const auto& [x, y] : {std::pair{62, 1}, {63, 2}, {0, 2}, {1, 0}}) EXPECT_EQ(TexelAt(x, y), red) << x;
    EXPECT_TRUE(document->IsModified());
    EXPECT_FALSE(document->GetHistory().CanUndo());
    view->SetScrollX(0);
    Press({0, 10});
    Drag({-1, 12});
    EXPECT_EQ(TexelAt(0, 6), red) << "at -0.5";
    EXPECT_NE(TexelAt(63, 6), red);
    Release({-1, 12});
    Drag({40, 40});
    EXPECT_NE(TexelAt(20, 20), red) << "the stroke is over";
}

TEST_F(TavloViewBrushTest, StrokesRepaintWhatTheyChangeInAllViews) {
    Choose(texelBrushFile);
    Send(ID_WINDOW_NEW);
    QCoreApplication::processEvents();
    auto* other = dynamic_cast<TavloView*>(GetMainFrame().MDIGetActive()->GetActiveView());
    ASSERT_NE(other, view);
    dynamic_cast<TavloViewFrame*>(other->GetParentFrame())->SetZoom(8);
    Send(ID_WINDOW_TILE_VERT);
    frame->SetZoom(4);
    Press({200, 5});
    QCoreApplication::processEvents();
    EventSpy painted(*view), paintedToo(*other);
    Drag({9, 5});
    EXPECT_GT(painted.region.rectCount(), 1);
    for (const QRect& rect : painted.region) // in each tile of 256 x 128
        EXPECT_TRUE(QRect(8, 4, 4, 4).contains(rect.translated(-(rect.left() & ~255), -(rect.top() & ~127))));
    EXPECT_EQ(ColorShownAt(9, 5), red);
    QCoreApplication::processEvents();
    EXPECT_TRUE(paintedToo.region.contains(QRect(16, 8, 8, 8)));
    EXPECT_FALSE(paintedToo.region.contains(QPoint(24, 8)));
    painted.region = {};
    Drag({10, 6});
    EXPECT_TRUE(painted.region.isEmpty()) << "the texel has that color already";
    Release({10, 6});
    QCoreApplication::processEvents();
    EXPECT_TRUE(painted.region.isEmpty()) << "the steps have shown the whole stroke";
    EXPECT_TRUE(document->IsModified());
}

TEST_F(TavloViewBrushTest, OnlyTheLeftButtonPaintsAndOnlyWithABrush) {
    const Texture before = GetTexture();
    Press({1, 1});
    Choose(texelBrushFile);
    Drag({5, 5});
    Release({9, 9});
    EXPECT_TRUE(std::ranges::equal(GetTexture().Pixels(), before.Pixels()));
    QTest::mouseClick(view, Qt::MiddleButton, {}, {3, 3});
    Drag({3, 3}, Qt::MiddleButton);
    EXPECT_NE(TexelAt(3, 3), red);
    EXPECT_FALSE(document->IsModified());
    Press({3, 3});
    Drag({6, 6}, Qt::NoButton); // the button was released outside
    EXPECT_TRUE(document->IsModified());
    EXPECT_NE(TexelAt(6, 6), red);
}

TEST_F(TavloViewBrushTest, ThePickerTakesTheColorUnderTheMouse) {
    Choose(colorPickerFile);
    const Color first = TexelAt(7, 9), second = TexelAt(20, 9);
    Press({7, 9});
    EXPECT_EQ(program.GetCurrentColor(), first);
    Drag({20, 9});
    EXPECT_EQ(program.GetCurrentColor(), second);
    GetTexture().SetPixel(30, 9, 0x00123456);
    Release({30, 9});
    EXPECT_EQ(program.GetCurrentColor(), 0x00123456U) << "with its alpha";
    EXPECT_EQ(TexelAt(7, 9), first);
}

TEST_F(TavloViewBrushTest, ThePointerIsTheBrushsWithItsHotSpotOnTheTip) {
    for (const BuiltInFile brush : {texelBrushFile, colorPickerFile}) {
        Choose(brush);
        Drag({5, 5}, Qt::NoButton);
        const QImage image = view->cursor().pixmap().toImage();
        const QPoint tip = view->cursor().hotSpot();
        EXPECT_EQ(qAlpha(image.pixel(tip)), 255);
        for (int x = 0; x < image.width(); ++x)
            EXPECT_EQ(qAlpha(image.pixel(x, tip.y() + 2)), 0) << "below it";
    }
    document->SetCurrentBrush(nullptr);
    Drag({6, 6}, Qt::NoButton);
    EXPECT_EQ(view->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TavloViewBrushTest, TheContextMenuComesByMouseAndKeyboard) {
    const PopupAnswer answers([](QMenu& menu) { menu.actions().front()->menu()->actions().at(1)->trigger(); },
                              [](const QMenu& menu) { EXPECT_EQ(menu.actions().size(), 5); },
                              [](const QMenu& menu) { EXPECT_EQ(menu.actions().size(), 5); });
    const QPoint inWindow = view->mapTo(view->window(), QPoint(20, 20));
    QTest::mouseClick(view->window()->windowHandle(), Qt::RightButton, {}, inWindow);
    QCoreApplication::processEvents();
    ASSERT_TRUE(document->HasBrush());
    EXPECT_EQ(document->GetCurrentBrush()->GetTitle(), "Color Picker");
    // The windowing system sends this for the menu key.
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, view->mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(view, &menuKey);
    QTest::keyClick(view, Qt::Key_F10, Qt::ShiftModifier);
}

} // namespace keltavlo
