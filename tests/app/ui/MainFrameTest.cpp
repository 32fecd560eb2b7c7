#include "app/ui/MainFrame.h"

#include "framework/ui/CControlBar.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/SplitTracker.h"
#include "image/ui/InfiniteScrollView.h"
#include "res/CommandIds.h"
#include "res/Menus.h"
#include "res/ToolBars.h"
#include "support/ui/ProgramFixture.h"

#include <QDockWidget>
#include <QMenuBar>
#include <QProcess>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>

#include <set>

namespace {

constexpr const char* settingsVariable = "KELTAVLO_TEST_SETTINGS";

void Collect(std::span<const MenuRow> rows, std::set<CommandId>& ids) {
    for (const MenuRow& row : rows) {
        if (row.id) ids.insert(row.id);
        Collect(row.items, ids);
    }
}

// What a restart is to bring back.
std::string Layout(const MainFrame& frame) {
    const auto* tools = frame.findChild<QToolBar*>("bar59392");
    const auto* filters = frame.findChild<QToolBar*>("bar59398");
    auto* palette = frame.findChild<QDockWidget*>("bar59401");
    const WindowPlacement::Rectangle normal = frame.GetWindowPlacement().normal;
    return std::to_string(frame.toolBarArea(tools)) + " " + std::to_string(frame.toolBarArea(filters)) + " " +
           std::to_string(frame.dockWidgetArea(palette)) + (tools->isHidden() ? " no tools" : "") +
           (palette->isHidden() ? " no palette" : "") + (frame.isMaximized() ? " maximized" : "") + " " +
           std::to_string(normal.left) + " " + std::to_string(normal.top) + " " +
           std::to_string(normal.right) + " " + std::to_string(normal.bottom);
}

class MainFrameTest : public ProgramFixture {
protected:
    // The layout with which another process starts.
    QString LayoutOfFreshProcess() const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(settingsVariable, QString::fromStdString(PathTo("settings.ini")));
        process.setProcessEnvironment(environment);
        process.start(
            QCoreApplication::applicationFilePath(),
            {"--gtest_filter=MainFrameTest.DISABLED_TellsItsLayout", "--gtest_also_run_disabled_tests"});
        process.waitForFinished();
        EXPECT_EQ(process.exitCode(), 0);
        const QString output = QString::fromUtf8(process.readAllStandardOutput());
        return output.section("layout: ", 1, 1).section('\n', 0, 0);
    }
};

TEST_F(MainFrameTest, EveryCommandHasAPromptAndAToolTip) {
    Start();
    std::set<CommandId> ids;
    Collect(MenuBarRows(IDR_MAINFRAME), ids);
    Collect(MenuBarRows(IDR_DOCUMENT), ids);
    for (const AcceleratorRow& row : AcceleratorRows()) ids.insert(row.id);
    for (const unsigned bar : {IDR_STANDARD_BAR, IDR_FILTER_BAR})
        for (const ToolBarRow& row : ToolBarRows(bar))
            if (row.id) ids.insert(row.id);
    for (const CommandId id : ids) {
        EXPECT_FALSE(CommandPrompt(id).empty()) << id;
        EXPECT_FALSE(CommandToolTip(id).empty()) << id;
    }
}

TEST_F(MainFrameTest, BarsAreDockedAsCreatedAtTheFirstStart) {
    Start();
    EXPECT_EQ(Layout(GetMainFrame()).substr(0, 5), "4 4 2");
    for (const ToolBarRow& row : ToolBarRows(IDR_STANDARD_BAR))
        for (const std::string_view line : row.icon) EXPECT_EQ(line.size(), 16U) << row.id << " " << line;
    for (const QToolBar* bar : GetMainFrame().findChildren<QToolBar*>()) EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(GetMainFrame().findChild<QDockWidget*>()->isVisible());
}

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
    QScrollBar& shared = pane(0, 1)->GetScrollBar(Qt::Vertical);
    shared.setSliderPosition(33);
    EXPECT_EQ(pane(0, 0)->GetScrollY(), 33);
    EXPECT_EQ(pane(0, 1)->GetScrollY(), 33);
}

TEST_F(MainFrameTest, SettingsAreWrittenBeforeTheQuestion) {
    Start();
    GetMainFrame().setGeometry(60, 70, 640, 480);
    CDocument* document = program.OpenDocumentFile(Put("a.wal", MakeWal(8, 8)));
    document->SetModifiedFlag();
    {
        const DialogAnswer cancel([&](QDialog& dialog) {
            EXPECT_TRUE(program.GetProfile()->ReadBinary("Main", "WindowPlacement"));
            EXPECT_TRUE(program.GetProfile()->ReadBinary("ToolBarState", "State"));
            dialog.reject();
        });
        EXPECT_FALSE(GetMainFrame().close());
    }
    EXPECT_TRUE(GetMainFrame().isVisible());
    document->SetModifiedFlag(false);
    EXPECT_TRUE(GetMainFrame().close());
}

TEST_F(MainFrameTest, AFreshProcessStartsAsTheLastOneWasLeft) {
    Start();
    const std::string usual = Layout(GetMainFrame());
    GetMainFrame().setGeometry(60, 70, 640, 480);
    GetMainFrame().addToolBar(Qt::BottomToolBarArea, GetMainFrame().findChild<QToolBar*>("bar59398"));
    GetMainFrame().findChild<QDockWidget*>()->hide();
    GetMainFrame().showMaximized();
    const std::string left = Layout(GetMainFrame());
    EXPECT_TRUE(GetMainFrame().close());
    EXPECT_EQ(LayoutOfFreshProcess().toStdString(), left);
    EXPECT_TRUE(left.starts_with("4 8")) << left;
    EXPECT_TRUE(left.ends_with("no palette maximized 60 70 700 550")) << left;
    // Damaged settings give defaults.
    ProfileStore profile(PathTo("settings.ini"));
    profile.WriteBinary("ToolBarState", "State", std::vector<std::byte>(900, std::byte{0xFF}));
    profile.WriteBinary("Main", "WindowPlacement", std::vector<std::byte>(44, std::byte{0xFF}));
    EXPECT_EQ(LayoutOfFreshProcess().toStdString(), usual);
}

// Run by the test before, in a process of its own.
TEST_F(MainFrameTest, DISABLED_TellsItsLayout) {
    CKelTavloApp other(std::make_unique<ProfileStore>(qEnvironmentVariable(settingsVariable).toStdString()));
    Start(other);
    std::printf("layout: %s\n", Layout(*other.GetMainFrame()).c_str());
}

} // namespace
