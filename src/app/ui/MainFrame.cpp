#include "app/ui/MainFrame.h"

#include "app/Settings.h"
#include "app/ui/CKelTavloToolBar.h"
#include "app/ui/COptionsSheet.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StringTable.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/ColorPrompt.h"
#include "framework/ui/PlaceWindow.h"
#include "image/picture/Color.h"
#include "image/ui/PaletteBar.h"
#include "res/CommandIds.h"
#include "res/Menus.h"
#include "res/ShellStrings.h"
#include "res/ToolBars.h"
#include "resources/BaseDocument.h"
#include "resources/Shell.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QWindow>

namespace keltavlo {

namespace {

// The strings that determine the widths of the panes, from pane 1 on.
constexpr unsigned paneSamples[] = {IDS_SAMPLE_ZOOM, IDS_SAMPLE_POSITION, IDS_SAMPLE_COLOR};
constexpr std::size_t positionPane = 2;
constexpr std::size_t colorPane = 3;

constexpr const char* placementValue = "WindowPlacement";
constexpr const char* barStateName = "ToolBarState";
constexpr int paintPatience = 500; // milliseconds

std::string ColorText(std::uint32_t argb) {
    if (Alpha(argb) == 255) return FormatString(IDS_COLOR_OPAQUE, Red(argb), Green(argb), Blue(argb));
    if (Alpha(argb) == 0) return FormatString(IDS_COLOR_TRANSPARENT, Red(argb), Green(argb), Blue(argb));
    return FormatString(IDS_COLOR_ALPHA, Red(argb), Green(argb), Blue(argb), Alpha(argb));
}

} // namespace

MainFrame::MainFrame() : Dynamic(paneSamples) {
    LoadFrame(IDR_MAINFRAME, AcceleratorRows());
    resize(QSize(1000, 720).boundedTo(screen()->availableSize() * 9 / 10));
    CreateBars();
    LoadSettings();
}

void MainFrame::CreateBars() {
    standardToolBar = new CKelTavloToolBar(ID_VIEW_TOOLBAR, LoadString(IDS_STANDARD_BAR), this);
    filterToolBar = new CKelTavloToolBar(ID_FILTER_BAR, LoadString(IDS_FILTER_BAR), this);
    paletteBar = new PaletteBar(ID_PALETTE_BAR, this);
    standardToolBar->LoadToolBar(StandardBarRows(), *this);
    filterToolBar->LoadToolBar(FilterBarRows(), *this);
    GetBars().Dock(*standardToolBar);
    GetBars().Dock(*filterToolBar);
    GetBars().Dock(*paletteBar, Qt::RightDockWidgetArea);
    controlBars = {paletteBar, standardToolBar, filterToolBar};
}

void MainFrame::SetPositionText(double x, double y) {
    GetStatusBar().SetPaneText(positionPane, FormatString(IDS_POSITION, x, y));
}

void MainFrame::SetColorText(std::uint32_t argb) {
    GetStatusBar().SetPaneText(colorPane, ColorText(argb));
}

void MainFrame::UpdateAllDocuments(DocumentView* sender, std::intptr_t hint, CObject* hintObject) {
    for (CDocument* document : CWinApp::Get().GetDocuments())
        document->UpdateAllViews(sender, hint, hintObject);
}

void MainFrame::UpdatePaletteBar(const QWidget* sender, unsigned hint, CObject* hintObject) {
    if (sender != paletteBar) paletteBar->OnUpdate(sender, hint, hintObject);
}

// The palette bar gets commands first.
bool MainFrame::OnCmdMsg(CommandId id, CCmdUI* state) {
    return (paletteBar && paletteBar->OnCmdMsg(id, state)) || CMDIFrameWnd::OnCmdMsg(id, state);
}

std::span<const MenuRow> MainFrame::GetMenuRows(unsigned menuId) const {
    return MenuBarRows(menuId);
}

void MainFrame::OnInitMenuPopup(CMenu& menu) {
    CMDIFrameWnd::OnInitMenuPopup(menu);
    MenuItemList::UpdateAll(menu, nullptr);
    UpdateRecentFileMenu(menu, CWinApp::Get().GetRecentFiles().GetPaths());
}

const CommandMap& MainFrame::GetCommandMap() const {
    using Self = MainFrame;
    static const CommandMap map{
        CMDIFrameWnd::GetCommandMap(),
        {Command<&Self::OnViewRefresh>(ID_VIEW_REFRESH), Command<&Self::OnFormatColor>(ID_FORMAT_COLOR),
         Command<&Self::OnToolsOptions>(ID_TOOLS_OPTIONS), Command<&Self::OnCancel>(ID_CANCEL),
         CommandRange<&Self::OnBar, &Self::OnUpdateBar>(ID_BAR_FIRST, ID_BAR_LAST)}};
    return map;
}

void MainFrame::UpdateMenus(BaseDocument* activeDocument) {
    MenuItemList::UpdateAll(GetCurrentMenu(), activeDocument);
}

void MainFrame::OnViewRefresh() {
    UpdateAllDocuments(nullptr, 0, nullptr);
    UpdatePaletteBar(nullptr, 0, nullptr);
}

void MainFrame::OnBar(CommandId id) {
    CControlBar::OnToggle(menuRuns.toolbarMenu.GetBar(id));
}

void MainFrame::OnUpdateBar(CCmdUI& state) {
    CControlBar::OnUpdateToggle(menuRuns.toolbarMenu.GetBar(state.id), state);
}

void MainFrame::OnToolsOptions() {
    COptionsSheet(this, gamma, [this] { OnViewRefresh(); }).DoModal();
    OnViewRefresh();
}

// Keeps the color's alpha, which the dialog does not support.
void MainFrame::OnFormatColor() {
    Shell& shell = Shell::Get();
    const std::uint32_t alpha = shell.GetCurrentColor() & alphaMask;
    const std::optional<std::uint32_t> chosen = PromptColor(this, shell.GetCurrentColor());
    if (!chosen) return;
    shell.SetCurrentColor(*chosen | alpha);
    shell.UpdatePaletteBar(Shell::colorChanged);
}

void MainFrame::LoadSettings() {
    const ProfileStore& profile = CWinApp::Get().GetProfile();
    const auto bytes = profile.ReadBinary(mainSection, placementValue);
    if (const auto placement = bytes ? WindowPlacement::FromBytes(*bytes) : std::nullopt) {
        showCommand = placement->showCommand;
        SetWindowPlacement(*this, *placement);
    }
    if (const auto values = ReadGamma(profile)) gamma.SetValues(*values);
    if (const auto colors = ReadCustomColors(profile, mainSection)) SetCustomColors(*colors);
    GetBars().LoadState(barStateName);
}

void MainFrame::SaveSettings() {
    GetBars().SaveState(barStateName);
    ProfileStore& profile = CWinApp::Get().GetProfile();
    WriteCustomColors(profile, mainSection, GetCustomColors());
    WriteGamma(profile, gamma.GetValues());
    profile.WriteBinary(mainSection, placementValue, GetWindowPlacement(*this).ToBytes());
}

// Saves the settings before the program asks about documents, and keeps them whatever the answer.
void MainFrame::closeEvent(QCloseEvent* event) {
    SaveSettings();
    CMDIFrameWnd::closeEvent(event);
}

// Waits until the system has exposed the window, because the next steps keep the program busy. Continues
// after a while if the system does not respond.
void MainFrame::ShowAsLeft() {
    ShowWindow(*this, WindowPlacement::showNormal);
    ShowWindow(*this, showCommand);
    OnIdle();
    QElapsedTimer clock;
    clock.start();
    do {
        QThread::msleep(1);
        QGuiApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } while (!isMinimized() && !windowHandle()->isExposed() && !clock.hasExpired(paintPatience));
    GetBars().LiftFloating();
}

} // namespace keltavlo
