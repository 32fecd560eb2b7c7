#pragma once

#include "framework/core/CCmdUI.h"

#include <string>
#include <string_view>

namespace keltavlo {

// A menu whose items are known by their command ids, wherever in it they stand; the first item of an id is
// meant. What changes an item that is not there does nothing.
class MenuItems {
public:
    virtual ~MenuItems() = default;

    virtual bool HasItem(CommandId id) const = 0;
    // Texts are menu texts: see MenuText.
    virtual void ModifyItem(CommandId id, CommandId newId, const std::string& text) = 0;
    virtual void InsertItem(CommandId before, CommandId id, const std::string& text) = 0;
    virtual void RemoveItem(CommandId id) = 0;
    // What the status bar says about the item, until it is modified.
    virtual void SetItemPrompt(CommandId id, const std::string& prompt) = 0;
};

// A text as a menu item's: shown unchanged, "&" and tabs too.
inline std::string MenuText(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        if (c == '&') shown += '&';
        shown += c == '\t' ? ' ' : c;
    }
    return shown;
}

} // namespace keltavlo
