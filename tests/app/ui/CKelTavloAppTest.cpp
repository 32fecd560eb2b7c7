// The program from start to end.
#include "app/ui/CKelTavloApp.h"

#include "app/ui/CommandLine.h"
#include "framework/core/Text.h"
#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/ChildFrame.h"
#include "framework/ui/PlaceWindow.h"
#include "framework/ui/SplitTracker.h"
#include "image/TavloDocument.h"
#include "image/ui/InfiniteScrollView.h"
#include "support/ui/ProgramFixture.h"

#include <filesystem>

namespace keltavlo {

namespace fs = std::filesystem;

namespace {

// What a restart must restore.
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

} // namespace

using CKelTavloAppTest = ProgramFixture;
using MainFrameTest = ProgramFixture;

TEST_F(CKelTavloAppTest, AsksForATypeWhenThereIsNothingToOpen) {
    const DialogAnswer wal([&](QDialog& dialog) {
        auto* list = dialog.findChild<QListWidget*>();
        EXPECT_TRUE(GetMainFrame().isVisible());
        list->setCurrentRow(4);
        emit list->itemDoubleClicked(list->item(4));
    });
    EXPECT_TRUE(program.InitInstance({}));
    EXPECT_EQ(QGuiApplication::windowIcon().availableSizes().size(), 6);
    EXPECT_EQ(GetMainFrame().MDIGetActive()->GetActiveDocument()->GetTitle(), "wal1");
}

TEST_F(CKelTavloAppTest, EndsAtOnceWhenItsFileCannotBeOpened) {
    const DialogAnswer noted(Press(QDialogButtonBox::Ok));
    EXPECT_FALSE(program.InitInstance({PathTo("missing.wal")}));
}

TEST_F(CKelTavloAppTest, AsksAboutAChangedFileWhenItsWindowIsActivated) {
    Start();
    auto& first = *Open<TavloDocument>(Put("first.wal", MakeWal(16, 8)));
    auto& second = *Open<TavloDocument>(Put("second.wal", MakeWal(16, 8)));
    Put("first.wal", MakeWal(32, 8));
    Put("second.wal", MakeWal(32, 8));
    QEventLoop loop;
    const auto ask = [&](const char* words, const QString& button) {
        const DialogAnswer answer([&](QDialog& dialog) {
            EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialog).text().contains(words)) << words;
            FindButton(dialog, button).click();
            loop.quit();
        });
        QApplication::setActiveWindow(nullptr);
        QApplication::setActiveWindow(&GetMainFrame());
        loop.exec();
    };
    second.SetModifiedFlag();
    ask("Edit > Undo brings them back", "&Reload");
    EXPECT_EQ(second.GetTexture().GetWidth(), 32);
    first.GetFrame()->ActivateFrame();
    ask("first.wal", "&Keep");
    EXPECT_EQ(first.GetTexture().GetWidth(), 16);
    Put("second.wal", MakeWal(64, 8));
    second.GetFrame()->ActivateFrame();
    {
        QDialog open; // the question waits until the dialog is closed
        QTimer::singleShot(200, &open, &QDialog::reject);
        open.exec();
    }
    EXPECT_EQ(second.GetTexture().GetWidth(), 32);
    ask("second.wal", "&Reload");
    EXPECT_EQ(second.GetTexture().GetWidth(), 64);
    Put("second.wal", MakeWal(8, 8));
    const DialogAnswer cancel([](QDialog& dialog) { FindButton(dialog, "&Overwrite"), dialog.reject(); });
    EXPECT_TRUE(Send(ID_FILE_SAVE));
    EXPECT_EQ(ReadFile(PathTo("second.wal")), MakeWal(8, 8));
}

TEST_F(CKelTavloAppTest, OpensFilesThatAreDropped) {
    Start();
    const std::string path = Put("caf\xE9%.wal", MakeWal(8, 8)); // not UTF-8
    const QUrl page("http://example.invalid/x.wal");
    const QUrl file = QUrl::fromEncoded("file://" + QByteArray::fromStdString(PathTo("caf%E9%25.wal")));
    // Drops arrive at the native window, which finds their widget.
    const auto drag = [&](const QList<QUrl>& urls) {
        QMimeData files;
        files.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(GetMainFrame().windowHandle(), &enter);
        if (enter.isAccepted()) QCoreApplication::sendEvent(GetMainFrame().windowHandle(), &drop);
        return enter.isAccepted();
    };
    EXPECT_FALSE(drag({page}));
    EXPECT_TRUE(drag({file, page}));
    QCoreApplication::processEvents();
    ASSERT_EQ(program.GetRecentFiles().GetPaths(), std::vector<std::string>{path});
    EXPECT_TRUE(Send(ID_FILE_SAVE));
    EXPECT_EQ(std::distance(fs::directory_iterator(PathTo("")), {}), 2) << "the settings, and the same file";
    EXPECT_TRUE(fs::remove(path)); // Qt cannot remove it
}

TEST_F(MainFrameTest, MnemonicsOpenTheirMenusEveryTime) {
    Start();
    QApplication::setActiveWindow(&GetMainFrame());
    for (const auto& [key, title] :
         {std::pair{Qt::Key_F, "&File"}, {Qt::Key_F, "&File"}, {Qt::Key_H, "&Help"}}) {
        QTest::keyClick(&GetMainFrame(), key, Qt::AltModifier);
        const auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(popup);
        EXPECT_EQ(popup->title(), title);
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
    program.OpenDocumentFile(PathTo("a.wal"));
    GetMainFrame().findChild<QComboBox*>()->setFocus();
    EXPECT_TRUE(controlHasThem());
    GetMainFrame().MDIGetActive()->close();
    EXPECT_FALSE(controlHasThem());
}

// A pane beside another one shows the same rows from the start.
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
    // Settings of another version, and damaged ones, give defaults.
    ProfileStore profile(PathTo("settings.ini"));
    profile.WriteBinary("Application", "RegistryVersion", {std::byte{1}});
    EXPECT_EQ(layoutOfNext(), usual);
    profile.WriteBinary("ToolBarState", "State", std::vector<std::byte>(900, std::byte{0xFF}));
    profile.WriteBinary("Main", "WindowPlacement", std::vector<std::byte>(44, std::byte{0xFF}));
    EXPECT_EQ(layoutOfNext(), usual);
}

TEST(CommandLineTest, TellsPathsFromOptions) {
    const CommandLine line = ParseCommandLine({"keltavlo", "caf\xE9.wal", "", "--", "-b.wal"});
    EXPECT_EQ(line.paths, (std::vector<std::string>{"caf\xE9.wal", "", "-b.wal"}));
    EXPECT_TRUE(line.error.empty());
    const CommandLine toolkit =
        ParseCommandLine({"keltavlo", "-platform", "offscreen", "-reverse", "a", "--style=fusion", "--help"});
    EXPECT_EQ(toolkit.error, "");
    EXPECT_EQ(toolkit.paths, std::vector<std::string>{"a"});
    EXPECT_TRUE(toolkit.help && !toolkit.version);
    for (const char* option : {"--bogus", "--help-all"})
        EXPECT_FALSE(ParseCommandLine({"keltavlo", option}).error.empty()) << option;
    EXPECT_EQ(HelpText().find("--help-all"), std::string::npos);
}

} // namespace keltavlo
