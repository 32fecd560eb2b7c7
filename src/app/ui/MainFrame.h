#pragma once

#include "app/GammaSettings.h"
#include "framework/ui/CMDIFrameWnd.h"

#include <cstdint>
#include <string>

class DocumentView;

// The program's main window.
class MainFrame : public Dynamic<"MainFrame", MainFrame, CMDIFrameWnd> {
public:
    MainFrame();

    // The status bar's pane for positions, in texels.
    void SetPositionText(double x, double y);
    // The status bar's pane for colours, 0xAARRGGBB.
    void SetColorText(std::uint32_t argb);
    // Tells every view of every open document but the sender.
    void UpdateAllDocuments(DocumentView* sender, std::intptr_t hint, CObject* hintObject);
    GammaSettings& GetGamma() { return gamma; }

protected:
    std::span<const MenuRow> GetMenuRows(unsigned menuId) const override;
    void OnInitMenuPopup(CMenu& menu) override;
    const CommandMap& GetCommandMap() const override;

private:
    void OnViewRefresh();

    GammaSettings gamma;
};
