#include "framework/core/Text.h"
#include "framework/ui/CToolBar.h"
#include "framework/ui/PixelIcon.h"
#include "framework/ui/PlaceWindow.h"
#include "support/ui/WindowFixture.h"

namespace keltavlo {

constexpr std::string_view dot[] = {"#"};
constexpr ToolBarRow rows[] = {{mainCommand, dot}, {}, {documentCommand, dot}, {unknownCommand, dot}};

struct ControlBarsTest : WindowFixture {
    ControlBarsTest() {
        tools.LoadToolBar(rows, mainFrame);
        mainFrame.GetBars().Dock(tools);
        tools.show();
        panel.setWidget(new QLabel("panel"));
        mainFrame.GetBars().Dock(panel, Qt::RightDockWidgetArea);
    }

    QToolButton& Button(int row) {
        return dynamic_cast<QToolButton&>(*tools.widgetForAction(tools.actions().at(row)));
    }
    static std::vector<std::byte> WithOtherBit(std::vector<std::byte> bytes, std::size_t bit) {
        bytes[bit / 8] ^= std::byte{1} << bit % 8;
        return bytes;
    }
    // Returns everything that the state contains, as the user sees it.
    std::string Layout() const {
        return Format("%d %d%s%s%s%s", mainFrame.toolBarArea(&tools), mainFrame.dockWidgetArea(&panel),
                      tools.IsVisible() ? " tools" : "", panel.IsVisible() ? " panel" : "",
                      panel.isFloating() ? " floats" : "",
                      mainFrame.statusBar()->isHidden() ? "" : " status");
    }

    CToolBar& tools = *new CToolBar(ID_VIEW_TOOLBAR, "Tools", &mainFrame);
    CDialogBar& panel = *new CDialogBar(59401, "Panel", &mainFrame);
};

TEST_F(ControlBarsTest, ButtonsSendTheirCommandsAndShowHowTheyStand) {
    TestDocument& document = NewDocument();
    document.blocked = true;
    mainFrame.OnIdle();
    EXPECT_TRUE(Button(0).isEnabled() && !Button(2).isEnabled() && !Button(3).isEnabled());
    document.blocked = false;
    mainFrame.OnIdle();
    EXPECT_TRUE(Button(2).isEnabled());
    Log().clear();
    QTest::mouseClick(&Button(0), Qt::LeftButton);
    QTest::mouseClick(&Button(2), Qt::LeftButton);
    EXPECT_THAT(Log(), ElementsAre("main", "document"));
    panel.setFloating(true);
    QStatusTipEvent tip("panel prompt");
    QCoreApplication::sendEvent(panel.widget(), &tip);
    EXPECT_EQ(mainFrame.GetStatusBar().GetShownText(0), "panel prompt");
}

TEST_F(ControlBarsTest, PixelArtIsPaintedInTheColorsOfTheDesktop) {
    static constexpr std::string_view art[] = {"#wb", ".rn", "yg."};
    const QPalette colors = QGuiApplication::palette();
    const QColor text = colors.color(QPalette::Active, QPalette::ButtonText);
    const QImage icon = MakePixelIcon(art).pixmap(QSize(30, 36)).toImage();
    const QImage disabled = MakePixelIcon(art).pixmap(QSize(30, 36), QIcon::Disabled).toImage();
    const QColor base = colors.color(QPalette::Active, QPalette::Base);
    const std::tuple<int, int, QRgb> pixels[] = {{0, 0, text.rgb()}, {1, 0, base.rgb()}, {2, 0, 0xFF3B7DD8},
                                                 {1, 1, 0xFFD9483B}, {2, 1, 0xFF3AA655}, {0, 2, 0xFFE3A21A}};
    for (const auto& [x, y, color] : pixels) {
        EXPECT_EQ(icon.pixel(10 * x + 1, 10 * y + 4), color) << x << y;
        EXPECT_EQ(icon.pixel(10 * x + 8, 10 * y + 11), color) << x << y;
        EXPECT_NEAR(qAlpha(disabled.pixel(10 * x + 5, 10 * y + 8)), 0.35 * 255, 2) << x << y;
    }
    EXPECT_EQ(qAlpha(icon.pixel(5, 18)) + qAlpha(icon.pixel(25, 28)) + qAlpha(icon.pixel(5, 1)), 0);
}

// Qt itself would crash on some of these states.
TEST_F(ControlBarsTest, TheStateComesBackWholeOrNotAtAll) {
    panel.setFloating(true);
    tools.hide();
    mainFrame.statusBar()->hide();
    const std::string saved = Layout();
    mainFrame.GetBars().SaveState("Bars");
    const std::vector<std::byte> whole = *program.GetProfile().ReadBinary("Bars", "State");
    tools.show();
    panel.setFloating(false);
    mainFrame.addDockWidget(Qt::LeftDockWidgetArea, &panel);
    mainFrame.addToolBar(Qt::LeftToolBarArea, &tools);
    const std::string before = Layout();
    const auto layoutOf = [&](const std::vector<std::byte>& state) {
        program.GetProfile().WriteBinary("Bars", "State", state);
        mainFrame.GetBars().LoadState("Bars");
        return Layout();
    };
    for (std::size_t bit = 0; bit < whole.size() * 8; bit += 7) // in every byte
        ASSERT_EQ(layoutOf(WithOtherBit(whole, bit)), before) << "bit " << bit;
    for (auto end = whole.begin(); end != whole.end(); ++end)
        ASSERT_EQ(layoutOf({whole.begin(), end}), before) << end - whole.begin() << " bytes";
    EXPECT_EQ(layoutOf(whole), saved);
}

// Screens disappear and settings are damaged, but the window stays visible.
TEST_F(ControlBarsTest, PlacementsEndOnAScreen) {
    const QRect screen = mainFrame.screen()->availableGeometry();
    WindowPlacement placement;
    for (const WindowPlacement::Rectangle far : {WindowPlacement::Rectangle{50000, 50000, 50300, 50200},
                                                 {-2147483647, 0, 2147483647, 5},
                                                 {-900, -900, -400, -500}}) {
        placement.normal = far;
        SetWindowPlacement(mainFrame, placement);
        EXPECT_TRUE(screen.contains(mainFrame.geometry().center())) << far.left;
        EXPECT_LE(mainFrame.width(), screen.width());
    }
    placement.normal = {40, 50, 540, 450};
    SetWindowPlacement(mainFrame, placement);
    EXPECT_EQ(mainFrame.geometry(), QRect(40, 50, 500, 400));
    const std::vector<std::byte> whole = GetWindowPlacement(mainFrame).ToBytes();
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        if (const auto read = WindowPlacement::FromBytes(WithOtherBit(whole, bit)))
            SetWindowPlacement(mainFrame, *read);
        EXPECT_TRUE(screen.contains(mainFrame.geometry())) << "bit " << bit;
        EXPECT_GE(mainFrame.width(), mainFrame.minimumSizeHint().width());
    }
}

} // namespace keltavlo
