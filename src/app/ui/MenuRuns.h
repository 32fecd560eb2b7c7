#pragma once

#include "app/ui/ControlBarMenuList.h"
#include "resources/MenuItemList.h"

namespace keltavlo {

// The runs of the main window's menus that change while the program runs.
struct MenuRuns {
    explicit MenuRuns(const std::vector<CControlBar*>& bars);

    ControlBarMenuList toolbarMenu;
    DocumentMenuList brushMenu;
    DocumentMenuList colorTableMenu;
    DocumentMenuList colorSpaceMenu;
};

} // namespace keltavlo
