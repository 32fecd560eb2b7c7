#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace keltavlo {

using CommandId = std::uint32_t;

// The state of a command: filled by the handler's class, shown by menus, tool buttons and accelerators.
class CCmdUI {
public:
    explicit CCmdUI(CommandId commandId) : id(commandId) {}

    void Enable(bool on) { enabled = on; }
    void SetCheck(bool on) { checked = on; }
    // For a choice of several: a dot instead of a tick.
    void SetRadio(bool on) {
        checked = on;
        radio = true;
    }
    void SetText(std::string newText) { text = std::move(newText); }

    CommandId id;
    bool enabled = false; // a command that nobody handles stays disabled
    bool checked = false;
    bool radio = false;
    std::optional<std::string> text; // none: the item keeps its own
};

} // namespace keltavlo
