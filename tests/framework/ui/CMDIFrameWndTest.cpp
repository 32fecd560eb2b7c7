#include "framework/ui/CMenu.h"
#include "support/ui/WindowFixture.h"

namespace keltavlo {

using CMDIFrameWndTest = WindowFixture;

TEST_F(CMDIFrameWndTest, RoutesCommandsFromTheViewOutwards) {
    for (const CommandId id : {viewCommand, documentCommand, frameCommand})
        EXPECT_FALSE(Send(id)) << "without a document: " << id;
    NewDocument();
    Log().clear();
    for (const CommandId id :
         {viewCommand, documentCommand, frameCommand, mainCommand, appCommand, everywhereCommand})
        EXPECT_TRUE(Send(id)) << id;
    EXPECT_THAT(Log(), ElementsAre("view", "document", "frame", "main", "application", "document"));
    EXPECT_FALSE(AskCommand(mainFrame, unknownCommand).enabled);
    EXPECT_FALSE(Send(unknownCommand));
    QWidget other; // leaves the commands with the document
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_TRUE(AskCommand(mainFrame, viewCommand).enabled);
}

TEST_F(CMDIFrameWndTest, ShowsTheMenuOfTheDocumentInFront) {
    CDocument& hidden = NewDocument(1);
    EXPECT_FALSE(hidden.GetFrame()->IsShown());
    EXPECT_EQ(mainFrame.menuBar()->actions().front()->text(), "&Own");
    TestDocument& first = NewDocument();
    TestDocument& second = NewDocument();
    EXPECT_EQ(mainFrame.menuBar()->actions().front()->text(), "&File");
    hidden.GetFrame()->ActivateFrame();
    EXPECT_EQ(mainFrame.MDIGetActive(), second.GetFrame());
    FrameOf(second).showMaximized();
    second.OnCloseDocument();
    EXPECT_EQ(mainFrame.MDIGetActive(), first.GetFrame());
    first.OnCloseDocument();
    EXPECT_EQ(mainFrame.MDIGetActive(), nullptr);
    EXPECT_EQ(mainFrame.menuBar()->actions().front()->text(), "&Own");
    EXPECT_EQ(program.GetDocuments().size(), 1U);
}

TEST_F(CMDIFrameWndTest, TellsViewsWhichOneIsActive) {
    TestDocument& first = NewDocument();
    TestDocument& second = NewDocument();
    first.GetFrame()->ActivateFrame();
    EXPECT_THAT(Log(), ElementsAre("activate shown1", "deactivate shown1", "activate shown2",
                                   "deactivate shown2", "activate shown1"));
    Log().clear();
    first.OnCloseDocument();
    EXPECT_THAT(Log(), ElementsAre("deactivate shown1", "activate shown2", "end shown1"));
    EXPECT_EQ(mainFrame.MDIGetActive(), second.GetFrame());
}

TEST_F(CMDIFrameWndTest, AsksEveryDocumentBeforeItClosesOne) {
    for (TestDocument* document : {&NewDocument(), &NewDocument()}) document->SetModifiedFlag();
    {
        const DialogAnswer answers(Press(QDialogButtonBox::No), Press(QDialogButtonBox::Cancel));
        EXPECT_FALSE(mainFrame.close());
    }
    EXPECT_EQ(program.GetDocuments().size(), 2U);
    for (CDocument* document : program.GetDocuments()) document->SetModifiedFlag(false);
    EXPECT_TRUE(mainFrame.close());
    EXPECT_TRUE(program.GetDocuments().empty());
}

TEST_F(CMDIFrameWndTest, AcceleratorsAskForTheStateWhenTheyFire) {
    TestDocument& document = NewDocument();
    Log().clear();
    const auto pressCtrl = [&](Qt::Key key) { QTest::keyClick(&mainFrame, key, Qt::ControlModifier); };
    pressCtrl(Qt::Key_D);
    document.blocked = true;
    pressCtrl(Qt::Key_D);
    EXPECT_THAT(Log(), ElementsAre("document"));
    document.blocked = false;
    // The item's text contains the same keys, which must stay unambiguous. In Qt, Ctrl+W closes a child.
    mainFrame.GetCurrentMenu().UpdateAll();
    EXPECT_EQ(mainFrame.GetCurrentMenu().FindItem(documentCommand)->text(), "&Renamed\tCtrl+D");
    pressCtrl(Qt::Key_D);
    pressCtrl(Qt::Key_W);
    EXPECT_THAT(Log(), ElementsAre("document", "document", "main"));
}

TEST_F(CMDIFrameWndTest, OpenMenusFollowTheCommandsStatesAndPrompt) {
    TestDocument& document = NewDocument();
    CMenu& menu = mainFrame.GetCurrentMenu();
    CStatusBar& bar = mainFrame.GetStatusBar();
    QMenu& popup = *menu.GetPopups().front();
    popup.popup({});
    popup.setActiveAction(menu.FindItem(documentCommand));
    bar.SetPaneText(0, "idle");
    bar.SetPaneText(2, "1.00, 2.00");
    EXPECT_EQ(bar.GetShownText(0), "Document prompt");
    EXPECT_EQ(bar.GetShownText(2), "1.00, 2.00") << "only the messages are covered";
    EXPECT_TRUE(menu.FindItem(documentCommand)->isEnabled());
    document.blocked = true;
    mainFrame.OnIdle();
    EXPECT_FALSE(menu.FindItem(documentCommand)->isEnabled());
    popup.close();
    EXPECT_EQ(bar.GetShownText(0), "idle");
}

TEST_F(CMDIFrameWndTest, ListsItsWindows) {
    TestDocument& first = NewDocument();
    first.SetTitle("a&b\tc[*]");
    NewDocument();
    CMenu& menu = mainFrame.GetCurrentMenu();
    menu.UpdateAll();
    EXPECT_EQ(menu.FindItem(ID_WINDOW_CHILD_FIRST)->text(), "&1 a&&b c[*]");
    EXPECT_TRUE(menu.FindItem(ID_WINDOW_CHILD_FIRST + 1)->isChecked());
    menu.FindItem(ID_WINDOW_CHILD_FIRST)->trigger();
    EXPECT_EQ(mainFrame.MDIGetActive(), first.GetFrame());
    first.OnCloseDocument();
    menu.UpdateAll();
    EXPECT_EQ(menu.FindItem(ID_WINDOW_CHILD_FIRST)->text(), "&1 shown2");
    EXPECT_FALSE(menu.FindItem(ID_WINDOW_CHILD_FIRST + 1));
    EXPECT_FALSE(AskCommand(mainFrame, ID_WINDOW_CHILD_FIRST + 1).enabled);
}

TEST_F(CMDIFrameWndTest, TilesWithoutGapsAndLeavesIconsAtTheLowerEdge) {
    std::vector<QMdiSubWindow*> windows;
    for (int i = 0; i < 7; ++i) windows.push_back(&FrameOf(NewDocument()));
    const QRect room = windows[0]->mdiArea()->viewport()->rect();
    for (const std::size_t i : {5U, 6U}) {
        windows[i]->showMinimized();
        windows[i]->move(30, 20);
    }
    ASSERT_TRUE(Send(ID_WINDOW_ARRANGE));
    EXPECT_EQ(windows[5]->geometry().bottomLeft(), room.bottomLeft());
    EXPECT_TRUE(room.contains(windows[6]->geometry()));
    EXPECT_FALSE(windows[6]->geometry().intersects(windows[5]->geometry()));
    for (const CommandId id : {ID_WINDOW_TILE_VERT, ID_WINDOW_TILE_HORZ}) {
        ASSERT_TRUE(Send(id));
        int area = 0;
        for (const QMdiSubWindow* window : windows)
            if (!window->isMinimized()) area += window->width() * window->height();
        EXPECT_EQ(area, room.width() * room.height());
        EXPECT_EQ(windows[4]->geometry().bottomRight(), room.bottomRight());
    }
    EXPECT_NEAR(windows[4]->height() * 3, windows[0]->height() * 2, 3);
}

TEST_F(CMDIFrameWndTest, ListsRecentFilesInThePlaceholdersPlace) {
    NewDocument();
    CMenu& menu = mainFrame.GetCurrentMenu();
    const QMenu& file = *menu.GetPopups().front();
    UpdateRecentFileMenu(menu, {"/x/a&b.wal", "/x/c.pcx", "/x/d.pcx"});
    EXPECT_EQ(file.actions().at(2)->text(), "&1 /x/a&&b.wal");
    EXPECT_EQ(file.actions().at(4)->text(), "&3 /x/d.pcx");
    UpdateRecentFileMenu(menu, {"/x/c.pcx"});
    EXPECT_EQ(file.actions().size(), 5);
    EXPECT_EQ(file.actions()[2]->text(), "&1 /x/c.pcx");
    UpdateRecentFileMenu(menu, {"/x/" + std::string(300, 'y') + "/c.pcx"});
    const QString longest = file.actions()[2]->text();
    EXPECT_TRUE(longest.startsWith("&1 /x/") && longest.endsWith("/c.pcx")) << longest.toStdString();
    EXPECT_LT(longest.size(), 150);
}

TEST_F(CMDIFrameWndTest, NumbersTheWindowsOfADocument) {
    TestDocument& document = NewDocument();
    document.SetTitle("a&b\tc[*]");
    CMDIChildWnd& first = FrameOf(document);
    // Qt shows a doubled mark once, and replaces a single one with the sign of changes.
    EXPECT_EQ(first.windowTitle(), "a&b\tc[*][*][*]");
    ASSERT_TRUE(Send(ID_WINDOW_NEW));
    CMDIChildWnd& second = *mainFrame.MDIGetActive();
    document.SetTitle("d");
    EXPECT_EQ(first.windowTitle(), "d:1[*]");
    EXPECT_EQ(second.windowTitle(), "d:2[*]");
    for (const bool modified : {true, false}) {
        document.SetModifiedFlag(modified);
        for (const QWidget* window : std::initializer_list<const QWidget*>{&first, &second, &mainFrame})
            EXPECT_EQ(window->isWindowModified(), modified) << window->windowTitle().toStdString();
    }
    EXPECT_FALSE(first.close()); // the window closes later
    EXPECT_EQ(second.windowTitle(), "d[*]");
    EXPECT_THAT(document.GetViews(), ElementsAre(second.GetActiveView()));
    EXPECT_THAT(mainFrame.GetChildren(), ElementsAre(&second));
}

TEST_F(CMDIFrameWndTest, TheMainTitleNamesTheActiveWindow) {
    TestDocument& document = NewDocument();
    const auto title = [&] { return mainFrame.windowTitle().toStdString(); };
    EXPECT_EQ(title(), "KelTavlo - shown1[*]");
    FrameOf(document).showMaximized();
    EXPECT_EQ(title(), "KelTavlo - [shown1[*]]");
    TestDocument& second = NewDocument();
    EXPECT_EQ(title(), "KelTavlo - [shown2[*]]");
    second.SetTitle("b&c");
    EXPECT_EQ(title(), "KelTavlo - [b&c[*]]");
    FrameOf(second).showNormal();
    EXPECT_EQ(title(), "KelTavlo - b&c[*]");
    FrameOf(second).showMaximized();
    second.SetModifiedFlag();
    EXPECT_TRUE(mainFrame.isWindowModified());
    second.OnCloseDocument();
    EXPECT_EQ(title(), "KelTavlo - [shown1[*]]");
    EXPECT_FALSE(mainFrame.isWindowModified());
    document.SetModifiedFlag();
    document.OnCloseDocument();
    EXPECT_EQ(title(), "KelTavlo");
    EXPECT_FALSE(mainFrame.isWindowModified());
}

TEST_F(CMDIFrameWndTest, CtrlF6GoesRoundTheWindowsAndCtrlF4ClosesOne) {
    NewDocument(1); // hidden
    for (int i = 0; i < 3; ++i) NewDocument();
    const std::vector<CMDIChildWnd*> windows = mainFrame.GetChildren();
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QApplication::setActiveWindow(&mainFrame); // again after a dialog
        QTest::keyClick(&mainFrame, key, Qt::ControlModifier | keys);
        return mainFrame.MDIGetActive();
    };
    EXPECT_EQ(press(Qt::Key_F6), windows[0]);
    EXPECT_EQ(press(Qt::Key_F6), windows[1]);
    EXPECT_EQ(press(Qt::Key_F6, Qt::ShiftModifier), windows[0]);
    EXPECT_EQ(press(Qt::Key_F6, Qt::ShiftModifier), windows[2]);
    windows[2]->GetActiveDocument()->SetModifiedFlag();
    {
        const DialogAnswer answers(Press(QDialogButtonBox::Cancel), Press(QDialogButtonBox::No));
        EXPECT_EQ(press(Qt::Key_F4), windows[2]);
        EXPECT_NE(press(Qt::Key_F4, Qt::ShiftModifier), windows[2]);
    }
    press(Qt::Key_F4);
    EXPECT_EQ(mainFrame.GetChildren().size(), 1U);
    for (int i = 0; i < 2; ++i) EXPECT_FALSE(press(Qt::Key_F4));
    EXPECT_EQ(program.GetDocuments().size(), 1U) << "the last window takes its document along";
    EXPECT_FALSE(press(Qt::Key_F6));
}

} // namespace keltavlo
