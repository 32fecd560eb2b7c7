#include "app/ui/ControlBarMenuList.h"

#include "framework/core/MenuItems.h"
#include "framework/ui/CControlBar.h"

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

} // namespace keltavlo
