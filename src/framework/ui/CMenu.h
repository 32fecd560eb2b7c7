#pragma once

#include "framework/core/MenuItems.h"
#include "framework/core/MenuTable.h"

#include <QMenu>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace keltavlo {

class CCmdTarget;

// The popups of a menu table. Items are known by their command ids: a chosen item sends its command to the
// target, and an opened popup shows the states of its commands. Keys in an item's text are only shown.
class CMenu : public MenuItems {
public:
    // Prompts of items go to the owner, as status tips.
    CMenu(std::span<const MenuRow> rows, CCmdTarget& commandTarget, QWidget* promptOwner);

    // The popups in the order of the table, which hang in a menu bar or open beside the pointer.
    const std::vector<std::unique_ptr<QMenu>>& GetPopups() const { return popups; }
    // Called before a popup's items are updated: a place to renew items that change.
    void SetInitPopup(std::function<void(CMenu&)> handler) { initPopup = std::move(handler); }

    // The first item of that id, or null.
    QAction* FindItem(CommandId id) const;
    bool HasItem(CommandId id) const override { return FindItem(id) != nullptr; }
    void ModifyItem(CommandId id, CommandId newId, const std::string& text) override;
    void InsertItem(CommandId before, CommandId id, const std::string& text) override;
    void InsertItemAfter(CommandId sibling, CommandId id, const std::string& text);
    void RemoveItem(CommandId id) override;
    void SetItemPrompt(CommandId id, const std::string& prompt) override;
    // Adds an item at the end of the popup in which the sibling stands; id 0 adds a separator unless one
    // stands there.
    void AppendItem(CommandId sibling, CommandId id, const std::string& text);
    // Brings the items of the popups that are open up to date.
    void UpdateOpenPopups();
    // Brings every item up to date.
    void UpdateAll();

private:
    void Fill(QMenu& popup, std::span<const MenuRow> rows);
    QAction* MakeItem(QMenu& popup, CommandId id, const std::string& text);
    void SetItem(QAction& action, CommandId id, const std::string& text);
    void Prompt(const QString& text);
    void OnShowPopup(QMenu& popup);
    void UpdatePopup(QMenu& popup);
    void UpdateItem(QAction& action);
    QMenu* PopupOf(CommandId id) const;

    CCmdTarget& target;
    QWidget* owner;
    std::function<void(CMenu&)> initPopup;
    std::vector<std::unique_ptr<QMenu>> popups;
    std::vector<QMenu*> allPopups; // with the popups inside popups
};

} // namespace keltavlo
