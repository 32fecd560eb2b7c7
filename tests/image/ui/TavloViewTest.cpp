#include "image/ui/TavloView.h"

#include "framework/core/Text.h"
#include "framework/ui/Commands.h"
#include "image/ui/TavloViewFixture.h"
#include "res/CommandIds.h"

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace {

class TavloViewTest : public TavloViewFixture {
protected:
    void Wheel(int delta, Qt::KeyboardModifiers keys = Qt::NoModifier,
               Qt::MouseButtons buttons = Qt::NoButton) {
        const QPointF place(10, 10);
        QWheelEvent event(place, view->mapToGlobal(place), {}, {0, delta}, buttons, keys, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(view, &event);
    }
    QScrollBar& Bar(Qt::Orientation orientation) { return view->GetScrollBar(orientation); }
};

} // namespace

TEST_F(TavloViewTest, ScrollingGoesRound) {
    QScrollBar& bar = Bar(Qt::Horizontal);
    EXPECT_EQ(bar.maximum(), 63);
    view->SetScrollX(63);
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(view->GetScrollX(), 0);
    EXPECT_EQ(bar.value(), 0);
    bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(view->GetScrollX(), 63);
    EXPECT_EQ(bar.value(), 63);
    bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(view->GetScrollX(), 31);
    bar.triggerAction(QAbstractSlider::SliderToMaximum);
    EXPECT_EQ(view->GetScrollX(), 0);
    bar.setSliderPosition(40);
    bar.triggerAction(QAbstractSlider::SliderMove);
    EXPECT_EQ(view->GetScrollX(), 40);
    view->SetScrollY(-33);
    EXPECT_EQ(Bar(Qt::Vertical).value(), 31);
}

TEST_F(TavloViewTest, PaintsTheTilingFromTheScrollPosition) {
    const Texture& texture = document->GetTexture();
    SendCommand(*program.GetMainFrame(), ID_ZOOM_400);
    view->SetScrollX(3);
    view->SetScrollY(30);
    EXPECT_EQ(ColorShownAt(9, 5), texture.GetPixel(5, 31));
    EXPECT_EQ(ColorShownAt(9, 8), texture.GetPixel(5, 0));
    document->GetTexture().SetSize(8, 8);
    document->GetTexture().SetPixel(7, 6, 0x00FF8040); // alpha does not hide colours
    document->UpdateAllViews(nullptr);
    EXPECT_EQ(view->GetScrollY(), 30) << "the position is not wrapped again when the picture shrinks";
    EXPECT_EQ(Bar(Qt::Vertical).maximum(), 7);
    EXPECT_EQ(ColorShownAt(16, 0), 0xFFFF8040U);
}

TEST_F(TavloViewTest, TellsPositionAndColorUnderTheMouse) {
    frame->SetZoom(4);
    view->SetScrollX(3);
    QTest::mouseMove(view, {9, 5});
    EXPECT_EQ(PaneText(2), "5.25, 1.25");
    const Color color = document->GetTexture().GetPixel(5, 1);
    EXPECT_EQ(PaneText(3), Format("rgb: %.2X %.2X %.2X", Red(color), Green(color), Blue(color)));
    EXPECT_EQ(view->TexelAt({11, 3}).x, 5.75);
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
    EXPECT_EQ(frame->GetZoom(), 16);
    Wheel(-120, Qt::ControlModifier | Qt::ShiftModifier);
    Wheel(-120, Qt::ControlModifier, Qt::LeftButton);
    EXPECT_EQ(frame->GetZoom(), 16);
    EXPECT_EQ(view->GetScrollY(), 0);
    Wheel(-120);
    EXPECT_EQ(view->GetScrollY(), 3);
    Wheel(120, Qt::ShiftModifier);
    EXPECT_EQ(view->GetScrollX(), 61);
    EXPECT_EQ(view->GetScrollY(), 3);
    Wheel(-10 * 120, Qt::ControlModifier);
    EXPECT_EQ(frame->GetZoom(), 1);
}

TEST_F(TavloViewTest, ZoomItemsShowTheZoom) {
    MainFrame& mainFrame = *program.GetMainFrame();
    const auto stateOf = [&](CommandId id) {
        CCmdUI state(id);
        EXPECT_TRUE(mainFrame.OnCmdMsg(id, &state));
        return state;
    };
    EXPECT_TRUE(stateOf(ID_ZOOM_100).radio);
    SendCommand(mainFrame, ID_ZOOM_1600);
    EXPECT_EQ(frame->GetZoom(), 16);
    EXPECT_TRUE(stateOf(ID_ZOOM_1600).radio);
    EXPECT_FALSE(stateOf(ID_ZOOM_100).radio);
}
