#pragma once

#include "framework/core/CCmdUI.h"

#include <cstddef>
#include <string>
#include <vector>

namespace keltavlo {

class BaseDocument;
class CObject;
class MenuItems;
struct CRuntimeClass;

// A run of menu items that changes at run time: one item for each entry of the list, or "(None)". A menu
// contains a placeholder until its first update, which replaces it by the run. FindList finds every
// initialized list as long as it lives.
class MenuItemList {
public:
    MenuItemList() = default;
    MenuItemList(const MenuItemList&) = delete;
    MenuItemList& operator=(const MenuItemList&) = delete;

    // Updates the run in the menu from the entries. A list that collects its entries itself overrides this to
    // do so first.
    virtual void Update(MenuItems& menu, BaseDocument* activeDocument);
    // Returns the menu text of the item with that id, which has an entry.
    virtual std::string GetItemText(CommandId id) const = 0;
    // Returns the item's text for the status bar. This version returns that of the placeholder.
    virtual std::string GetMessageString(CommandId id) const;
    virtual ~MenuItemList();

    // The ids from `first` to `limit` - 1 belong to this list.
    void Init(CommandId placeholder, CommandId first, CommandId limit);

    // New entries are null.
    void SetCount(std::size_t count) { items.resize(count); }
    void SetItem(std::size_t index, CObject* entry);
    // Returns null if no entry has that id.
    CObject* GetItem(CommandId id) const;

    // Returns the list that owns the id, the last one of several, or null.
    static MenuItemList* FindList(CommandId id);
    // Updates every list's run in the menu, in the order in which the lists were initialized.
    static void UpdateAll(MenuItems& menu, BaseDocument* activeDocument);

private:
    void Grow(MenuItems& menu, CommandId target);
    void SetTexts(MenuItems& menu) const;

    CommandId placeholderId = 0;
    CommandId firstId = 0;
    // The id after the last one in use. It is shared by all menus: each update starts where the last one
    // ended, even if that was for another menu.
    CommandId endId = 0;
    CommandId limitId = 0;
    std::vector<CObject*> items; // entry i has the id firstId + i
};

// The titles of the open documents of a class and of those derived from it.
class DocumentMenuList final : public MenuItemList {
public:
    explicit DocumentMenuList(const CRuntimeClass& listedClass) : documentClass(listedClass) {}

    void Update(MenuItems& menu, BaseDocument* activeDocument) override;
    std::string GetItemText(CommandId id) const override;

private:
    const CRuntimeClass& documentClass;
};

} // namespace keltavlo
