#include "app/ui/MenuRuns.h"

#include "framework/core/MenuItems.h"
#include "framework/ui/CControlBar.h"
#include "res/CommandIds.h"
#include "resources/Brush.h"
#include "resources/PaletteDocument.h"

namespace keltavlo {

void ControlBarMenuList::Update(MenuItems& menu, BaseDocument* activeDocument) {
    SetCount(bars.size());
    for (std::size_t i = 0; i < bars.size(); ++i) SetItem(i, bars[i]);
    MenuItemList::Update(menu, activeDocument);
}

std::string ControlBarMenuList::GetItemText(CommandId id) const {
    const CControlBar* bar = GetBar(id);
    return bar ? MenuText(bar->GetWindowText()) : std::string();
}

CControlBar* ControlBarMenuList::GetBar(CommandId id) const {
    return dynamic_cast<CControlBar*>(GetItem(id));
}

MenuRuns::MenuRuns(const std::vector<CControlBar*>& bars)
    : toolbarMenu(bars), brushMenu(BrushDocument::runtimeClass),
      colorTableMenu(ColorTableDocument::runtimeClass), colorSpaceMenu(ColorSpaceDocument::runtimeClass) {
    toolbarMenu.Init(ID_VIEW_TOOLBAR, ID_BAR_FIRST, ID_BAR_LAST + 1);
    brushMenu.Init(ID_BRUSHES, ID_BRUSH_FIRST, ID_BRUSH_LAST + 1);
    colorTableMenu.Init(ID_PALETTE_TABLES, ID_COLOR_TABLE_FIRST, ID_COLOR_TABLE_LAST + 1);
    colorSpaceMenu.Init(ID_PALETTE_SPACES, ID_COLOR_SPACE_FIRST, ID_COLOR_SPACE_LAST + 1);
}

} // namespace keltavlo
