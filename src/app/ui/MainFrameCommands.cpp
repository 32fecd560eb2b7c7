// The main window's commands on its bars and on the current colour, and its menus' runs.
#include "app/ui/COptionsSheet.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/CControlBar.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/ColorPrompt.h"
#include "image/picture/Color.h"
#include "res/CommandIds.h"
#include "resources/BaseDocument.h"
#include "resources/Shell.h"

namespace keltavlo {

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
    if (CControlBar* bar = menuRuns.toolbarMenu.GetBar(id)) bar->Show(!bar->IsVisible());
}

void MainFrame::OnUpdateBar(CCmdUI& state) {
    const CControlBar* bar = menuRuns.toolbarMenu.GetBar(state.id);
    state.Enable(bar != nullptr);
    state.SetCheck(bar && bar->IsVisible());
}

void MainFrame::OnToolsOptions() {
    COptionsSheet(*this).DoModal();
    OnViewRefresh();
}

// The dialog knows no alpha: the colour keeps its own.
void MainFrame::OnFormatColor() {
    Shell& shell = Shell::Get();
    const std::uint32_t alpha = shell.GetCurrentColor() & alphaMask;
    const std::optional<std::uint32_t> chosen = PromptColor(this, shell.GetCurrentColor());
    if (!chosen) return;
    shell.SetCurrentColor(*chosen | alpha);
    shell.UpdatePaletteBar(Shell::colorChanged);
}

} // namespace keltavlo
