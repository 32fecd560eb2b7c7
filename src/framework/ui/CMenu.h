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

// The popups of a menu table. Items are found by their command ids: choosing an item sends its
// command to the target, and opening a popup shows the states of its commands. The keys in an
// item's text are only displayed.
class CMenu : public MenuItems {
public:
    // Prompts are sent to the owner as status tips.
    CMenu(std::span<const MenuRow> rows, CCmdTarget& commandTarget, QWidget* promptOwner);

    // Returns the popups in the order of the table. They belong in a menu bar or open at the pointer.
    const std::vector<std::unique_ptr<QMenu>>& GetPopups() const { return popups; }
    // `handler` is called before a popup's items are updated. It may replace items that change.
    void SetInitPopup(std::function<void(CMenu&)> handler) { initPopup = std::move(handler); }

    // Returns the first item with that id, or null.
    QAction* FindItem(CommandId id) const;
    bool HasItem(CommandId id) const override { return FindItem(id) != nullptr; }
    void ModifyItem(CommandId id, CommandId newId, const std::string& text) override;
    void InsertItem(CommandId before, CommandId id, const std::string& text) override;
    void InsertItemAfter(CommandId sibling, CommandId id, const std::string& text);
    void RemoveItem(CommandId id) override;
    void SetItemPrompt(CommandId id, const std::string& prompt) override;
    // Adds an item at the end of the popup that contains the sibling. Id 0 adds a separator, unless the popup
    // already ends in one.
    void AppendItem(CommandId sibling, CommandId id, const std::string& text);
    // Updates the items of all open popups.
    void UpdateOpenPopups();
    // Updates all items.
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
    std::vector<QMenu*> allPopups; // including popups inside popups
};

} // namespace keltavlo
