#include "framework/core/StandardIds.h"
#include "framework/ui/CDialogBar.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/CToolBar.h"
#include "framework/ui/Commands.h"
#include "framework/ui/WindowFixture.h"

#include <QAction>
#include <QImage>
#include <QLabel>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr std::string_view dot[] = {"#"};
constexpr ToolBarRow rows[] = {{mainCommand, dot}, {}, {documentCommand, dot}, {unknownCommand, dot}};

class ControlBarsTest : public WindowFixture {
protected:
    ControlBarsTest() {
        tools.LoadToolBar(rows, mainFrame);
        mainFrame.DockControlBar(tools);
        tools.show();
        panel.setWidget(new QLabel("panel"));
        mainFrame.DockControlBar(panel, Qt::RightDockWidgetArea);
    }

    QToolButton& Button(int row) {
        return dynamic_cast<QToolButton&>(*tools.widgetForAction(tools.actions().at(row)));
    }
    std::vector<std::byte> Stored() { return *program.GetProfile()->ReadBinary("Bars", "State"); }
    // Everything that the state holds, as people see it.
    std::string Layout() const {
        return std::to_string(mainFrame.toolBarArea(&tools)) + "," +
               std::to_string(mainFrame.dockWidgetArea(&panel)) + (tools.IsVisible() ? " tools" : "") +
               (panel.IsVisible() ? " panel" : "") + (panel.isFloating() ? " floats" : "") +
               (mainFrame.statusBar()->isHidden() ? "" : " status");
    }

    CToolBar& tools = *new CToolBar(ID_VIEW_TOOLBAR, "Tools", &mainFrame);
    CDialogBar& panel = *new CDialogBar(59401, "Panel", &mainFrame);
};

TEST_F(ControlBarsTest, ButtonsSendTheirCommandsAndShowHowTheyStand) {
    TestDocument& document = NewDocument();
    document.blocked = true;
    mainFrame.OnIdle();
    EXPECT_TRUE(Button(0).isEnabled());
    EXPECT_FALSE(Button(2).isEnabled());
    EXPECT_FALSE(Button(3).isEnabled());
    document.blocked = false;
    mainFrame.OnIdle();
    EXPECT_TRUE(Button(2).isEnabled());
    Log().clear();
    QTest::mouseClick(&Button(0), Qt::LeftButton);
    QTest::mouseClick(&Button(2), Qt::LeftButton);
    EXPECT_THAT(Log(), ElementsAre("main", "document"));
    EXPECT_EQ(Button(0).toolTip(), "Main tip");
    EXPECT_EQ(Button(0).statusTip(), "Main prompt");
}

TEST_F(ControlBarsTest, PromptsReachTheStatusBarFromFloatingBars) {
    panel.setFloating(true);
    QStatusTipEvent tip("panel prompt");
    QCoreApplication::sendEvent(panel.widget(), &tip);
    EXPECT_EQ(mainFrame.GetStatusBar().GetShownText(0), "panel prompt");
}

TEST_F(ControlBarsTest, IconsFillTheirSquareAtEveryScaleAndFadeWhenDisabled) {
    const QIcon icon = tools.actions().front()->icon();
    for (const int side : {16, 32}) {
        const QImage picture = icon.pixmap(side, side).toImage();
        ASSERT_EQ(picture.width(), side);
        EXPECT_EQ(picture.pixelColor(0, 0), mainFrame.palette().color(QPalette::ButtonText));
        EXPECT_EQ(picture.pixelColor(side - 1, side - 1).alpha(), 255);
    }
    EXPECT_LT(icon.pixmap(16, 16, QIcon::Disabled).toImage().pixelColor(8, 8).alpha(), 128);
}

TEST_F(ControlBarsTest, TheToolbarsOwnCommandShowsAndHidesIt) {
    EXPECT_TRUE(AskCommand(mainFrame, ID_VIEW_TOOLBAR).checked);
    EXPECT_TRUE(SendCommand(mainFrame, ID_VIEW_TOOLBAR));
    EXPECT_FALSE(tools.isVisible());
    EXPECT_FALSE(AskCommand(mainFrame, ID_VIEW_TOOLBAR).checked);
    EXPECT_TRUE(SendCommand(mainFrame, ID_VIEW_TOOLBAR));
    EXPECT_TRUE(tools.isVisible());
}

TEST_F(ControlBarsTest, TheStateBringsBackWhatPeopleMovedAndHid) {
    const std::string created = Layout();
    mainFrame.SaveBarState("Created");
    mainFrame.addToolBar(Qt::LeftToolBarArea, &tools);
    mainFrame.addDockWidget(Qt::LeftDockWidgetArea, &panel);
    panel.hide();
    mainFrame.statusBar()->hide();
    const std::string moved = Layout();
    mainFrame.SaveBarState("Bars");
    mainFrame.LoadBarState("Created");
    EXPECT_EQ(Layout(), created);
    mainFrame.LoadBarState("Bars");
    EXPECT_EQ(Layout(), moved);
    mainFrame.LoadBarState("Nothing of that name");
    EXPECT_EQ(Layout(), moved);
}

// The toolkit would crash on some of these states.
TEST_F(ControlBarsTest, DamagedStatesChangeNothing) {
    panel.setFloating(true);
    tools.hide();
    mainFrame.SaveBarState("Bars");
    const std::vector<std::byte> whole = Stored();
    tools.show();
    panel.setFloating(false);
    const std::string before = Layout();
    ProfileStore& profile = *program.GetProfile();
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::vector<std::byte> damaged = whole;
        damaged[bit / 8] ^= std::byte{1} << bit % 8;
        profile.WriteBinary("Bars", "State", damaged);
        mainFrame.LoadBarState("Bars");
        ASSERT_EQ(Layout(), before) << "bit " << bit;
    }
    for (std::size_t size = 0; size < whole.size(); ++size) {
        profile.WriteBinary("Bars", "State",
                            {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});
        mainFrame.LoadBarState("Bars");
        ASSERT_EQ(Layout(), before) << size << " bytes";
    }
    profile.WriteBinary("Bars", "State", whole);
    mainFrame.LoadBarState("Bars");
    EXPECT_NE(Layout(), before);
}

// Screens go and settings are damaged: the window is found all the same.
TEST_F(ControlBarsTest, PlacementsEndOnAScreen) {
    const QRect screen = mainFrame.screen()->availableGeometry();
    WindowPlacement placement;
    for (const WindowPlacement::Rectangle& far : {WindowPlacement::Rectangle{50000, 50000, 50300, 50200},
                                                  WindowPlacement::Rectangle{-2147483647, 0, 2147483647, 5},
                                                  WindowPlacement::Rectangle{-900, -900, -400, -500}}) {
        placement.normal = far;
        mainFrame.SetWindowPlacement(placement);
        EXPECT_TRUE(screen.contains(mainFrame.geometry().center())) << far.left;
        EXPECT_LE(mainFrame.width(), screen.width());
    }
    placement.normal = {40, 50, 540, 450};
    mainFrame.SetWindowPlacement(placement);
    EXPECT_EQ(mainFrame.geometry(), QRect(40, 50, 500, 400));
    const std::vector<std::byte> whole = mainFrame.GetWindowPlacement().ToBytes();
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::vector<std::byte> damaged = whole;
        damaged[bit / 8] ^= std::byte{1} << bit % 8;
        if (const auto read = WindowPlacement::FromBytes(damaged)) mainFrame.SetWindowPlacement(*read);
        EXPECT_TRUE(screen.contains(mainFrame.geometry())) << "bit " << bit;
        EXPECT_GE(mainFrame.width(), mainFrame.minimumSizeHint().width());
    }
    mainFrame.SetWindowPlacement(placement);
    mainFrame.showMaximized();
    const WindowPlacement maximized = mainFrame.GetWindowPlacement();
    EXPECT_EQ(maximized.showCommand, WindowPlacement::showMaximized);
    EXPECT_EQ(maximized.normal, placement.normal);
}

} // namespace
