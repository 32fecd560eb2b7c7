#include "app/ui/MainFrame.h"

#include "app/ui/CKelTavloToolBar.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StringTable.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/RecentFileMenu.h"
#include "image/picture/Color.h"
#include "image/ui/PaletteBar.h"
#include "res/CommandIds.h"
#include "res/Menus.h"
#include "res/ShellStrings.h"
#include "res/ToolBars.h"

#include <QScreen>

namespace keltavlo {

namespace {

constexpr std::size_t positionPane = 2;
constexpr std::size_t colorPane = 3;

std::string ColorText(std::uint32_t argb) {
    if (Alpha(argb) == 255) return FormatString(IDS_COLOR_OPAQUE, Red(argb), Green(argb), Blue(argb));
    if (Alpha(argb) == 0) return FormatString(IDS_COLOR_TRANSPARENT, Red(argb), Green(argb), Blue(argb));
    return FormatString(IDS_COLOR_ALPHA, Red(argb), Green(argb), Blue(argb), Alpha(argb));
}

} // namespace

MainFrame::MainFrame() {
    LoadFrame(IDR_MAINFRAME, AcceleratorRows());
    resize(QSize(1000, 720).boundedTo(screen()->availableSize() * 9 / 10));
    CreateBars();
    LoadSettings();
}

void MainFrame::CreateBars() {
    standardToolBar = new CKelTavloToolBar(ID_VIEW_TOOLBAR, LoadString(IDS_STANDARD_BAR), this);
    filterToolBar = new CKelTavloToolBar(ID_FILTER_BAR, LoadString(IDS_FILTER_BAR), this);
    paletteBar = new PaletteBar(ID_PALETTE_BAR, this);
    standardToolBar->LoadToolBar(ToolBarRows(IDR_STANDARD_BAR), *this);
    filterToolBar->LoadToolBar(ToolBarRows(IDR_FILTER_BAR), *this);
    DockControlBar(*standardToolBar);
    DockControlBar(*filterToolBar);
    DockControlBar(*paletteBar, Qt::RightDockWidgetArea);
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

// The palette bar comes before everybody else.
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

} // namespace keltavlo
