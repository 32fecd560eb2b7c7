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

// A run of menu items that changes while the program runs: one item for each entry of the list, or "(None)".
// A menu holds a placeholder until its first update, which puts the run in its place. Every list that was
// initialized is found by its ids for as long as it lives.
class MenuItemList {
public:
    MenuItemList() = default;
    MenuItemList(const MenuItemList&) = delete;
    MenuItemList& operator=(const MenuItemList&) = delete;

    // Brings the run in the menu up to date. Here: for the entries as they are; lists that know where their
    // entries come from fill themselves first.
    virtual void Update(MenuItems& menu, BaseDocument* activeDocument);
    // The menu text of the item with that id, which has an entry.
    virtual std::string GetItemText(CommandId id) const = 0;
    // What the status bar says about the item. Here: what it says about the placeholder.
    virtual std::string GetMessageString(CommandId id) const;
    virtual ~MenuItemList();

    // The ids from `first` to `limit` - 1 belong to this list.
    void Init(CommandId placeholder, CommandId first, CommandId limit);

    // New entries are null.
    void SetCount(std::size_t count) { items.resize(count); }
    void SetItem(std::size_t index, CObject* entry);
    // Null when no entry has that id.
    CObject* GetItem(CommandId id) const;

    // The list to which the id belongs, the last one of several, or null.
    static MenuItemList* FindList(CommandId id);
    // Updates every list's run in the menu, in the order in which the lists were initialized.
    static void UpdateAll(MenuItems& menu, BaseDocument* activeDocument);

private:
    void Grow(MenuItems& menu, CommandId target);
    void SetTexts(MenuItems& menu) const;

    CommandId placeholderId = 0;
    CommandId firstId = 0;
    // Behind the last id in use. There is one for all menus: each update starts from where the last one, of
    // whatever menu, left it.
    CommandId endId = 0;
    CommandId limitId = 0;
    std::vector<CObject*> items; // entry i has the id firstId + i
};

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
