#include "resources/DocumentMenuList.h"

#include "framework/core/CWinApp.h"
#include "framework/core/MenuItems.h"

namespace keltavlo {

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
