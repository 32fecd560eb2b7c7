#pragma once

#include "framework/core/CCmdUI.h"

#include <string>
#include <string_view>

namespace keltavlo {

// A menu that finds its items by command id, in submenus too. If several items have the id, the first one
// counts; if none has it, changes do nothing.
class MenuItems {
public:
    virtual ~MenuItems() = default;

    virtual bool HasItem(CommandId id) const = 0;
    // Texts are menu texts; see MenuText.
    virtual void ModifyItem(CommandId id, CommandId newId, const std::string& text) = 0;
    virtual void InsertItem(CommandId before, CommandId id, const std::string& text) = 0;
    virtual void RemoveItem(CommandId id) = 0;
    // Sets the item's text in the status bar until the item is modified.
    virtual void SetItemPrompt(CommandId id, const std::string& prompt) = 0;
};

// Converts a text for a menu item, which shows "&" unchanged and a tab as a space.
inline std::string MenuText(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        if (c == '&') shown += '&';
        shown += c == '\t' ? ' ' : c;
    }
    return shown;
}

} // namespace keltavlo
