
#include "framework/core/Text.h"
#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/PlaceWindow.h"
#include "framework/ui/SplitTracker.h"
#include "image/ui/InfiniteScrollView.h"
#include "support/ui/ProgramFixture.h"

#include <QDockWidget>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolBar>

namespace keltavlo {

namespace {

// What a restart is to bring back.
std::string Layout(const MainFrame& frame) {
    const auto* tools = frame.findChild<QToolBar*>("bar59392");
    const auto* filters = frame.findChild<QToolBar*>("bar59398");
    auto* palette = frame.findChild<QDockWidget*>("bar59401");
    const WindowPlacement::Rectangle normal = GetWindowPlacement(frame).normal;
    return Format("%d %d %d%s%s%s %d %d %d %d", frame.toolBarArea(tools), frame.toolBarArea(filters),
                  frame.dockWidgetArea(palette), tools->isHidden() ? " no tools" : "",
                  palette->isHidden() ? " no palette" : "", frame.isMaximized() ? " maximized" : "",
                  normal.left, normal.top, normal.right, normal.bottom);
}

using MainFrameTest = ProgramFixture;

TEST_F(MainFrameTest, AltFOpensTheFileMenuEveryTime) {
    Start();
    QApplication::setActiveWindow(&GetMainFrame());
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&GetMainFrame(), Qt::Key_F, Qt::AltModifier);
        const auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(popup);
        EXPECT_EQ(popup->title(), "&File");
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(GetMainFrame().menuBar(), Qt::Key_Escape);
    }
}

TEST_F(MainFrameTest, WithoutADocumentNoControlHasTheKeys) {
    Start();
    QApplication::setActiveWindow(&GetMainFrame());
    const auto* bar = GetMainFrame().findChild<QDockWidget*>("bar59401");
    const auto controlHasThem = [&] { return bar->isAncestorOf(QApplication::focusWidget()); };
    EXPECT_FALSE(controlHasThem());
    program.OpenDocumentFile(Put("a.wal", MakeWal(8, 8)))->OnCloseDocument();
    EXPECT_FALSE(controlHasThem());
}

// A pane beside another one shows the same rows from its first moment.
TEST_F(MainFrameTest, PanesOfARowScrollTogether) {
    Start();
    program.OpenDocumentFile(Put("a.wal", MakeWal(64, 64)));
    const CSplitterWnd& splitter = dynamic_cast<ChildFrame&>(*GetMainFrame().MDIGetActive()).GetSplitter();
    const auto pane = [&](int row, int column) {
        return dynamic_cast<InfiniteScrollView*>(splitter.GetPane(row, column));
    };
    pane(0, 0)->SetScrollY(20);
    Send(ID_WINDOW_SPLIT);
    QTest::keyClick(&splitter.GetTracker(), Qt::Key_Return);
    ASSERT_TRUE(pane(1, 1));
    EXPECT_EQ(pane(0, 1)->GetScrollY(), 20);
    EXPECT_EQ(pane(1, 1)->GetScrollY(), 0);
    pane(0, 1)->GetScrollBar(Qt::Vertical).setSliderPosition(33);
    EXPECT_EQ(pane(0, 0)->GetScrollY() + pane(0, 1)->GetScrollY(), 2 * 33);
}

TEST_F(MainFrameTest, WritesItsSettingsBeforeTheQuestionAndStaysWhileADialogIsOpen) {
    Start();
    CDocument* document = program.OpenDocumentFile(Put("a.wal", MakeWal(8, 8)));
    document->SetModifiedFlag();
    EXPECT_FALSE(program.GetProfile().ReadBinary("Main", "WindowPlacement"));
    const DialogAnswer cancel(
        [&](QDialog& question) {
            EXPECT_TRUE(program.GetProfile().ReadBinary("Main", "WindowPlacement"));
            EXPECT_TRUE(program.GetProfile().ReadBinary("ToolBarState", "State"));
            question.reject();
        },
        [&](QDialog& options) {
            EXPECT_FALSE(GetMainFrame().close());
            options.reject();
        });
    EXPECT_FALSE(GetMainFrame().close());
    EXPECT_TRUE(GetMainFrame().isVisible());
    document->SetModifiedFlag(false);
    Send(ID_TOOLS_OPTIONS);
}

TEST_F(MainFrameTest, StartsAsItWasLeft) {
    const auto layoutOfNext = [&] {
        CKelTavloApp next(ProfileStore(PathTo("settings.ini")));
        Start(next);
        return Layout(*next.GetMainFrame());
    };
    Start();
    const std::string usual = Layout(GetMainFrame());
    EXPECT_TRUE(usual.starts_with("4 4 2 ")) << usual;
    GetMainFrame().setGeometry(60, 70, 640, 480);
    GetMainFrame().addToolBar(Qt::BottomToolBarArea, GetMainFrame().findChild<QToolBar*>("bar59398"));
    GetMainFrame().findChild<QDockWidget*>()->hide();
    GetMainFrame().showMaximized();
    const std::string left = Layout(GetMainFrame());
    EXPECT_TRUE(GetMainFrame().close());
    EXPECT_EQ(layoutOfNext(), left);
    EXPECT_TRUE(left.starts_with("4 8")) << left;
    EXPECT_TRUE(left.ends_with("no palette maximized 60 70 700 550")) << left;
    // Damaged settings give defaults.
    ProfileStore profile(PathTo("settings.ini"));
    profile.WriteBinary("ToolBarState", "State", std::vector<std::byte>(900, std::byte{0xFF}));
    profile.WriteBinary("Main", "WindowPlacement", std::vector<std::byte>(44, std::byte{0xFF}));
    EXPECT_EQ(layoutOfNext(), usual);
}

} // namespace

} // namespace keltavlo
