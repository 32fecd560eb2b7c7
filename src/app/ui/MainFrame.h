#pragma once

#include "app/GammaSettings.h"
#include "app/ui/MenuRuns.h"
#include "framework/core/WindowPlacement.h"
#include "framework/ui/CMDIFrameWnd.h"

#include <cstdint>
#include <string>

namespace keltavlo {

class BaseDocument;
class CKelTavloToolBar;
class DocumentView;
class PaletteBar;

// The program's main window.
class MainFrame : public Dynamic<"MainFrame", MainFrame, CMDIFrameWnd> {
public:
    MainFrame();

    // The status bar's pane for positions, in texels.
    void SetPositionText(double x, double y);
    // The status bar's pane for colors, 0xAARRGGBB.
    void SetColorText(std::uint32_t argb);
    // Tells every view of every open document but the sender.
    void UpdateAllDocuments(DocumentView* sender, std::intptr_t hint, CObject* hintObject);
    // Tells the palette bar that something changed, unless it is the sender: Shell::colorChanged or 0.
    void UpdatePaletteBar(const QWidget* sender, unsigned hint, CObject* hintObject);
    // Brings the runs of the menu bar's menu up to date.
    void UpdateMenus(BaseDocument* activeDocument);
    GammaSettings& GetGamma() { return gamma; }
    // Shows the window in its normal place, then as it was left, and paints it.
    void ShowAsLeft();
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

protected:
    std::span<const MenuRow> GetMenuRows(unsigned menuId) const override;
    void OnInitMenuPopup(CMenu& menu) override;
    const CommandMap& GetCommandMap() const override;
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateBars();
    void LoadSettings();
    void SaveSettings();
    void OnViewRefresh();
    void OnFormatColor();
    void OnToolsOptions();
    void OnCancel() {} // a menu's way out
    void OnBar(CommandId id);
    void OnUpdateBar(CCmdUI& state);

    GammaSettings gamma;
    std::uint32_t showCommand = WindowPlacement::show; // once the window has been shown
    CKelTavloToolBar* standardToolBar = nullptr;       // children of this window
    CKelTavloToolBar* filterToolBar = nullptr;
    PaletteBar* paletteBar = nullptr;
    std::vector<CControlBar*> controlBars; // children of this window, in the order of the menu
    MenuRuns menuRuns{controlBars};
};

} // namespace keltavlo
