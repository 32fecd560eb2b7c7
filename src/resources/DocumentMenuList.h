#pragma once

#include "resources/MenuItemList.h"

namespace keltavlo {

struct CRuntimeClass;

// The open documents of a class and of those derived from it, by their titles.
class DocumentMenuList final : public MenuItemList {
public:
    explicit DocumentMenuList(const CRuntimeClass& listedClass) : documentClass(listedClass) {}

    void Update(MenuItems& menu, BaseDocument* activeDocument) override;
    std::string GetItemText(CommandId id) const override;

private:
    const CRuntimeClass& documentClass;
};

} // namespace keltavlo
