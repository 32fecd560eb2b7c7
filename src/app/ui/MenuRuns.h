#pragma once

#include "resources/MenuItemList.h"

namespace keltavlo {

class CControlBar;

// The titles of the main window's bars.
class ControlBarMenuList final : public MenuItemList {
public:
    // The list of bars belongs to the main window and may still grow.
    explicit ControlBarMenuList(const std::vector<CControlBar*>& listedBars) : bars(listedBars) {}

    void Update(MenuItems& menu, BaseDocument* activeDocument) override;
    std::string GetItemText(CommandId id) const override;
    // Returns null if no bar has that id.
    CControlBar* GetBar(CommandId id) const;

private:
    const std::vector<CControlBar*>& bars;
};

// The runs of the main window's menus that change at run time.
struct MenuRuns {
    explicit MenuRuns(const std::vector<CControlBar*>& bars);

    ControlBarMenuList toolbarMenu;
    DocumentMenuList brushMenu;
    DocumentMenuList colorTableMenu;
    DocumentMenuList colorSpaceMenu;
};

} // namespace keltavlo
