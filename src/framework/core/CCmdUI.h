#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace keltavlo {

using CommandId = std::uint32_t;

// The state of a command. The class that handles the command fills it; menus, tool buttons and accelerators
// show it.
class CCmdUI {
public:
    explicit CCmdUI(CommandId commandId) : id(commandId) {}

    void Enable(bool on) { enabled = on; }
    void SetCheck(bool on) { checked = on; }
    // For one of several alternatives: shows a dot instead of a check mark.
    void SetRadio(bool on) {
        checked = on;
        radio = true;
    }
    void SetText(std::string newText) { text = std::move(newText); }

    CommandId id;
    bool enabled = false; // stays false if nothing handles the command
    bool checked = false;
    bool radio = false;
    std::optional<std::string> text; // null: the item keeps its own text
};

} // namespace keltavlo
