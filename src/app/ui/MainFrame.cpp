#include "app/ui/MainFrame.h"

#include "framework/core/CWinApp.h"
#include "framework/core/StringTable.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/RecentFileMenu.h"
#include "image/picture/Color.h"
#include "res/Menus.h"
#include "res/ShellStrings.h"

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
    resize(1000, 720);
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

std::span<const MenuRow> MainFrame::GetMenuRows(unsigned menuId) const {
    return MenuBarRows(menuId);
}

void MainFrame::OnInitMenuPopup(CMenu& menu) {
    CMDIFrameWnd::OnInitMenuPopup(menu);
    MenuItemList::UpdateAll(menu, nullptr);
    UpdateRecentFileMenu(menu, CWinApp::Get().GetRecentFiles().GetPaths());
}
