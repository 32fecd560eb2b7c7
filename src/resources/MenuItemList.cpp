#include "resources/MenuItemList.h"

#include "framework/core/CWinApp.h"
#include "framework/core/MenuItems.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/StringIds.h"

#include <algorithm>

namespace keltavlo {

namespace {

std::vector<MenuItemList*>& Registry() {
    static std::vector<MenuItemList*> lists;
    return lists;
}

std::string NoneText() {
    return FormatString(IDS_PARENTHESES, LoadString(IDS_NONE).c_str());
}

} // namespace

MenuItemList::~MenuItemList() {
    std::erase(Registry(), this);
}

void MenuItemList::Init(CommandId placeholder, CommandId first, CommandId limit) {
    placeholderId = placeholder;
    firstId = endId = first;
    limitId = limit;
    Registry().push_back(this);
}

void MenuItemList::SetItem(std::size_t index, CObject* entry) {
    if (index >= items.size()) SetCount(index + 1);
    items[index] = entry;
}

CObject* MenuItemList::GetItem(CommandId id) const {
    return firstId <= id && id - firstId < items.size() ? items[id - firstId] : nullptr;
}

MenuItemList* MenuItemList::FindList(CommandId id) {
    const auto owns = [id](const MenuItemList* list) { return list->firstId <= id && id < list->limitId; };
    const auto place = std::find_if(Registry().rbegin(), Registry().rend(), owns);
    return place == Registry().rend() ? nullptr : *place;
}

void MenuItemList::UpdateAll(MenuItems& menu, BaseDocument* activeDocument) {
    for (MenuItemList* list : Registry()) list->Update(menu, activeDocument);
}

// Entries beyond the list's ids get no item, because their ids belong to another list.
void MenuItemList::Update(MenuItems& menu, BaseDocument*) {
    if (menu.HasItem(placeholderId)) {
        menu.ModifyItem(placeholderId, firstId, NoneText());
        endId = firstId + 1;
    }
    if (!menu.HasItem(firstId)) return;
    const auto count = static_cast<CommandId>(std::max<std::size_t>(items.size(), 1));
    const CommandId target = std::min(firstId + count, limitId);
    for (CommandId id = endId; id > target; --id) menu.RemoveItem(id - 1);
    if (endId < target) Grow(menu, target);
    endId = target;
    SetTexts(menu);
}

// For each new id, the first item takes that id and a new first item is inserted before it. So new items
// follow the first one directly, ahead of the older ones.
void MenuItemList::Grow(MenuItems& menu, CommandId target) {
    for (CommandId id = target - 1; id >= endId; --id) {
        menu.ModifyItem(firstId, id, {});
        menu.InsertItem(id, firstId, {});
    }
}

void MenuItemList::SetTexts(MenuItems& menu) const {
    for (CommandId id = firstId; id < endId; ++id) {
        menu.ModifyItem(id, id, items.empty() ? NoneText() : GetItemText(id));
        menu.SetItemPrompt(id, GetMessageString(id));
    }
}

std::string MenuItemList::GetMessageString(CommandId) const {
    return std::string(Field(LoadString(placeholderId), '\n', 0));
}

void DocumentMenuList::Update(MenuItems& menu, BaseDocument* activeDocument) {
    SetCount(0);
    std::size_t count = 0;
    for (CDocument* document : CWinApp::Get().GetDocuments())
        if (document->IsKindOf(documentClass)) SetItem(count++, document);
    MenuItemList::Update(menu, activeDocument);
}

std::string DocumentMenuList::GetItemText(CommandId id) const {
    const auto* document = dynamic_cast<const CDocument*>(GetItem(id));
    return document ? MenuText(document->GetTitle()) : std::string();
}

} // namespace keltavlo
