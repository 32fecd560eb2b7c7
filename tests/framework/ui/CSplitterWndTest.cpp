#include "framework/ui/CSplitterWnd.h"

#include "framework/ui/SplitHandle.h"
#include "framework/ui/SplitTracker.h"
#include "support/ui/WindowFixture.h"

namespace keltavlo {

constexpr auto rows = CSplitterWnd::rows;
constexpr auto columns = CSplitterWnd::columns;

struct CSplitterWndTest : WindowFixture {
    CSplitterWndTest() { frame.resize(400, 300); }

    static void Drag(QWidget& handle, const QPoint& way) {
        const QPoint start = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, {}, start);
        QTest::mouseMove(&handle, start + way / 2);
        QTest::mouseMove(&handle, start + way);
        QTest::mouseRelease(&handle, Qt::LeftButton, {}, start + way);
    }
    // Returns the visible handle of the direction, which is a box or a line.
    QWidget& Handle(CSplitterWnd::Direction direction) const {
        const Qt::CursorShape shape = direction == rows ? Qt::SplitVCursor : Qt::SplitHCursor;
        for (QWidget* widget : splitter.findChildren<QWidget*>())
            if (!widget->isHidden() && widget->cursor().shape() == shape &&
                dynamic_cast<SplitHandle*>(widget))
                return *widget;
        throw std::logic_error("no handle");
    }
    const CView& Pane(int row, int column) const { return *splitter.GetPane(row, column); }

    TestDocument& document = NewDocument();
    ChildFrame& frame = dynamic_cast<ChildFrame&>(FrameOf(document));
    CSplitterWnd& splitter = frame.GetSplitter();
};

TEST_F(CSplitterWndTest, BoxesAndLinesAreDragged) {
    Drag(Handle(rows), {0, 120});
    ASSERT_EQ(splitter.GetCount(rows), 2);
    EXPECT_EQ(splitter.GetSplit(rows), 120);
    Drag(Handle(columns), {150, 0});
    ASSERT_EQ(splitter.GetCount(columns), 2);
    EXPECT_EQ(document.GetViews().size(), 4U);
    EXPECT_EQ(frame.windowTitle(), "shown1[*]"); // one window shows all of them
    Drag(Handle(rows), {0, -40});
    EXPECT_EQ(splitter.GetSplit(rows), 80);
    const CView* lower = splitter.GetPane(1, 0);
    Drag(Handle(rows), {0, -200}); // removes the upper panes
    EXPECT_EQ(splitter.GetCount(rows), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), lower);
    EXPECT_EQ(document.GetViews().size(), 2U);
    EXPECT_NE(frame.GetActiveView(), nullptr);
    QTest::mouseDClick(&Handle(columns), Qt::LeftButton);
    EXPECT_EQ(document.GetViews().size(), 1U);
    QTest::mouseDClick(&Handle(columns), Qt::LeftButton);
    EXPECT_EQ(splitter.GetSplit(columns), splitter.GetExtent(columns) / 2);
}

TEST_F(CSplitterWndTest, PanesShareTheBarsOfTheirRowsAndColumns) {
    QScrollBar& first = Pane(0, 0).GetScrollBar(Qt::Horizontal);
    first.setRange(0, 99);
    first.setSliderPosition(37);
    splitter.SetSplit(rows, 100);
    splitter.SetSplit(columns, 150);
    EXPECT_EQ(&Pane(1, 0).GetScrollBar(Qt::Horizontal), &first);
    EXPECT_EQ(first.sliderPosition(), 37);
    EXPECT_EQ(&Pane(0, 0).GetScrollBar(Qt::Vertical), &Pane(0, 1).GetScrollBar(Qt::Vertical));
    EXPECT_NE(&Pane(0, 0).GetScrollBar(Qt::Vertical), &Pane(1, 0).GetScrollBar(Qt::Vertical));
    EXPECT_NE(&Pane(1, 0).GetScrollBar(Qt::Horizontal), &Pane(1, 1).GetScrollBar(Qt::Horizontal));
    const QScrollBar& right = Pane(1, 1).GetScrollBar(Qt::Horizontal);
    EXPECT_EQ(right.geometry().left(), Pane(1, 1).geometry().left());
    EXPECT_EQ(right.geometry().right(), Pane(1, 1).geometry().right());
    const CView* kept = splitter.GetPane(1, 1);
    const QScrollBar* bar = &kept->GetScrollBar(Qt::Vertical);
    splitter.SetSplit(rows, 0);
    EXPECT_EQ(splitter.GetPane(0, 1), kept);
    EXPECT_EQ(&kept->GetScrollBar(Qt::Vertical), bar);
    EXPECT_FALSE(bar->isHidden());
    splitter.SetSplit(columns, 300);
    frame.resize(150, 200);
    EXPECT_EQ(Pane(0, 1).width(), SplitAxis::minimumPart) << "small windows keep the second part";
}

TEST_F(CSplitterWndTest, TheSplitCommandWorksWithKeysAlone) {
    EXPECT_TRUE(Send(ID_WINDOW_SPLIT));
    SplitTracker& tracker = splitter.GetTracker();
    ASSERT_TRUE(tracker.isVisible());
    EXPECT_EQ(tracker.cursor().shape(), Qt::SizeAllCursor);
    const QImage lines = tracker.grab().toImage();
    const int x = splitter.GetExtent(columns) / 2, y = splitter.GetExtent(rows) / 2;
    for (const int thick : {0, Splitter::lineThickness - 1})
        EXPECT_TRUE(lines.pixel(9, y + thick) == lines.pixel(x, 9) &&
                    lines.pixel(x + thick, 9) == lines.pixel(x, 9));
    for (const int beside : {-1, +Splitter::lineThickness})
        EXPECT_TRUE(lines.pixel(9, y + beside) == lines.pixel(9, 9) &&
                    lines.pixel(x + beside, 9) == lines.pixel(9, 9));
    EXPECT_NE(lines.pixel(x, 9), lines.pixel(9, 9));
    QTest::keyClick(&tracker, Qt::Key_Escape);
    EXPECT_FALSE(tracker.isVisible());
    EXPECT_EQ(document.GetViews().size(), 1U);
    ASSERT_TRUE(Send(ID_WINDOW_SPLIT));
    QTest::keyClick(&tracker, Qt::Key_Down);
    QTest::keyClick(&tracker, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&tracker, Qt::Key_Return);
    EXPECT_EQ(document.GetViews().size(), 4U);
    EXPECT_EQ(splitter.GetSplit(rows), splitter.GetExtent(rows) / 2 + 10);
    EXPECT_EQ(splitter.GetSplit(columns), splitter.GetExtent(columns) / 2 + 1);
    EXPECT_TRUE(frame.GetActiveView()->hasFocus());
    ASSERT_TRUE(Send(ID_WINDOW_SPLIT)); // the mouse works, too
    QTest::mouseClick(mainFrame.windowHandle(), Qt::LeftButton, {},
                      tracker.mapTo(&mainFrame, QPoint(90, 70)));
    EXPECT_EQ(splitter.GetSplit(rows), 70);
    EXPECT_EQ(splitter.GetSplit(columns), 90);
}

TEST_F(CSplitterWndTest, NextPaneGoesRoundRowByRow) {
    EXPECT_FALSE(AskCommand(mainFrame, ID_NEXT_PANE).enabled);
    splitter.SetSplit(rows, 100);
    splitter.SetSplit(columns, 150);
    for (const auto& [row, column] : {std::pair{0, 1}, {1, 0}, {1, 1}, {0, 0}}) {
        EXPECT_TRUE(Send(ID_NEXT_PANE));
        EXPECT_EQ(frame.GetActiveView(), splitter.GetPane(row, column));
    }
    EXPECT_TRUE(Send(ID_PREV_PANE));
    EXPECT_EQ(frame.GetActiveView(), splitter.GetPane(1, 1));
    EXPECT_TRUE(frame.GetActiveView()->hasFocus());
    splitter.SetSplit(rows, 0);
    splitter.SetSplit(columns, splitter.GetExtent(columns));
    EXPECT_EQ(frame.GetActiveView(), splitter.GetPane(0, 0));
}

} // namespace keltavlo
