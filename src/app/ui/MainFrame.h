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

    // Shows a position in texels in the status bar.
    void SetPositionText(double x, double y);
    // Shows a color, 0xAARRGGBB, in the status bar.
    void SetColorText(std::uint32_t argb);
    // Notifies every view of every open document but the sender.
    void UpdateAllDocuments(DocumentView* sender, std::intptr_t hint, CObject* hintObject);
    // Notifies the palette bar, unless it is the sender. `hint` is Shell::colorChanged or 0.
    void UpdatePaletteBar(const QWidget* sender, unsigned hint, CObject* hintObject);
    // Updates the runs of the current menu.
    void UpdateMenus(BaseDocument* activeDocument);
    GammaSettings& GetGamma() { return gamma; }
    // Shows the window at its normal position, then in its last state, and paints it.
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
    void OnCancel() {} // closes a menu
    void OnBar(CommandId id);
    void OnUpdateBar(CCmdUI& state);

    GammaSettings gamma;
    std::uint32_t showCommand = WindowPlacement::show; // the state for the first showing
    CKelTavloToolBar* standardToolBar = nullptr;       // children of this window
    CKelTavloToolBar* filterToolBar = nullptr;
    PaletteBar* paletteBar = nullptr;
    std::vector<CControlBar*> controlBars; // children of this window, in the order of the menu
    MenuRuns menuRuns{controlBars};
};

} // namespace keltavlo
