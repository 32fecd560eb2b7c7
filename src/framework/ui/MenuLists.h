#pragma once

#include <string>
#include <vector>

namespace keltavlo {

class CMenu;

// Puts the recent files in the place of the menu's placeholder for them; where there are none the placeholder
// is back.
void UpdateRecentFileMenu(CMenu& menu, const std::vector<std::string>& paths);
// Lists the main window's children below the Window menu's own items.
void UpdateWindowMenu(CMenu& menu, const std::vector<std::string>& titles);

} // namespace keltavlo
