#include "app/ui/MainFrame.h"

#include "app/ui/CKelTavloApp.h"
#include "framework/ui/CControlBar.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/Commands.h"
#include "framework/ui/SplitTracker.h"
#include "image/ui/InfiniteScrollView.h"
#include "res/CommandIds.h"
#include "res/Menus.h"
#include "res/ToolBars.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QMenuBar>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>
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

// A run of the program with its windows.
struct Session {
    explicit Session(const std::string& settings) : program(std::make_unique<ProfileStore>(settings)) {
        const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
        program.InitInstance({});
    }
    MainFrame& Frame() { return *program.GetMainFrame(); }

    CKelTavloApp program;
};

class MainFrameTest : public testing::Test {
protected:
    std::string Settings() const { return folder.filePath("settings.ini").toStdString(); }
    // The layout with which another process starts.
    QString LayoutOfFreshProcess() const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(settingsVariable, QString::fromStdString(Settings()));
        process.setProcessEnvironment(environment);
        process.start(
            QCoreApplication::applicationFilePath(),
            {"--gtest_filter=MainFrameTest.DISABLED_TellsItsLayout", "--gtest_also_run_disabled_tests"});
        process.waitForFinished();
        EXPECT_EQ(process.exitCode(), 0);
        const QString output = QString::fromUtf8(process.readAllStandardOutput());
        return output.section("layout: ", 1, 1).section('\n', 0, 0);
    }

    QTemporaryDir folder;
};

TEST_F(MainFrameTest, EveryCommandHasAPromptAndAToolTip) {
    const Session run(Settings());
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
    Session run(Settings());
    EXPECT_EQ(Layout(run.Frame()).substr(0, 5), "4 4 2");
    for (const ToolBarRow& row : ToolBarRows(IDR_STANDARD_BAR))
        for (const std::string_view line : row.icon) EXPECT_EQ(line.size(), 16U) << row.id << " " << line;
    for (const QToolBar* bar : run.Frame().findChildren<QToolBar*>()) EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(run.Frame().findChild<QDockWidget*>()->isVisible());
}

TEST_F(MainFrameTest, AltFOpensTheFileMenuEveryTime) {
    Session run(Settings());
    QApplication::setActiveWindow(&run.Frame());
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&run.Frame(), Qt::Key_F, Qt::AltModifier);
        const auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(popup);
        EXPECT_EQ(popup->title(), "&File");
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(run.Frame().menuBar(), Qt::Key_Escape);
    }
}

// A pane beside another one shows the same rows from its first moment.
TEST_F(MainFrameTest, PanesOfARowScrollTogether) {
    Session run(Settings());
    const std::string path = folder.filePath("a.wal").toStdString();
    WriteFile(path, MakeWal(64, 64));
    run.program.OpenDocumentFile(path);
    const CSplitterWnd& splitter = dynamic_cast<ChildFrame&>(*run.Frame().MDIGetActive()).GetSplitter();
    const auto pane = [&](int row, int column) {
        return dynamic_cast<InfiniteScrollView*>(splitter.GetPane(row, column));
    };
    pane(0, 0)->SetScrollY(20);
    SendCommand(run.Frame(), ID_WINDOW_SPLIT);
    QTest::keyClick(&splitter.GetTracker(), Qt::Key_Return);
    ASSERT_TRUE(pane(1, 1));
    EXPECT_EQ(pane(0, 1)->GetScrollY(), 20);
    EXPECT_EQ(pane(1, 1)->GetScrollY(), 0);
    QScrollBar& shared = pane(0, 1)->GetScrollBar(Qt::Vertical);
    shared.setSliderPosition(33);
    EXPECT_EQ(pane(0, 0)->GetScrollY(), 33);
    EXPECT_EQ(pane(0, 1)->GetScrollY(), 33);
    QApplication::setActiveWindow(&run.Frame());
    QTest::keyClick(&run.Frame(), Qt::Key_F6);
    EXPECT_EQ(run.Frame().MDIGetActive()->GetActiveView(), pane(0, 1));
}

TEST_F(MainFrameTest, SettingsAreWrittenBeforeTheQuestion) {
    Session run(Settings());
    run.Frame().setGeometry(60, 70, 640, 480);
    const std::string path = folder.filePath("a.wal").toStdString();
    WriteFile(path, MakeWal(8, 8));
    CDocument* document = run.program.OpenDocumentFile(path);
    document->SetModifiedFlag();
    {
        const DialogAnswer cancel([&](QDialog& dialog) {
            EXPECT_TRUE(run.program.GetProfile()->ReadBinary("Main", "WindowPlacement"));
            EXPECT_TRUE(run.program.GetProfile()->ReadBinary("ToolBarState", "State"));
            dialog.reject();
        });
        EXPECT_FALSE(run.Frame().close());
    }
    EXPECT_TRUE(run.Frame().isVisible());
    document->SetModifiedFlag(false);
    EXPECT_TRUE(run.Frame().close());
}

TEST_F(MainFrameTest, AFreshProcessStartsAsTheLastOneWasLeft) {
    std::string left;
    {
        Session run(Settings());
        run.Frame().setGeometry(60, 70, 640, 480);
        run.Frame().addToolBar(Qt::BottomToolBarArea, run.Frame().findChild<QToolBar*>("bar59398"));
        run.Frame().findChild<QDockWidget*>()->hide();
        run.Frame().showMaximized();
        left = Layout(run.Frame());
        EXPECT_TRUE(run.Frame().close());
    }
    EXPECT_EQ(LayoutOfFreshProcess().toStdString(), left);
    EXPECT_NE(left.find("4 8"), std::string::npos) << left;
    EXPECT_NE(left.find("no palette maximized 60 70 700 550"), std::string::npos) << left;
}

// Run by the test before, in a process of its own.
TEST_F(MainFrameTest, DISABLED_TellsItsLayout) {
    Session run(qEnvironmentVariable(settingsVariable).toStdString());
    std::printf("layout: %s\n", Layout(run.Frame()).c_str());
}

TEST_F(MainFrameTest, DamagedSettingsGiveDefaults) {
    std::string usual;
    {
        Session run(Settings());
        usual = Layout(run.Frame());
        EXPECT_TRUE(run.Frame().close());
    }
    ProfileStore profile(Settings());
    profile.WriteBinary("ToolBarState", "State", std::vector<std::byte>(900, std::byte{0xFF}));
    profile.WriteBinary("Main", "WindowPlacement", std::vector<std::byte>(44, std::byte{0xFF}));
    Session run(Settings());
    EXPECT_EQ(Layout(run.Frame()), usual);
    EXPECT_TRUE(run.Frame().isVisible());
}

} // namespace
