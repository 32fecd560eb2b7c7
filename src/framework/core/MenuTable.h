#pragma once

#include "framework/core/CCmdUI.h"

#include <span>

namespace keltavlo {

// Menus and accelerators as data. A row with items is a popup, a row without text a separator, any other row
// a command.
struct MenuRow {
    const char* text = nullptr; // UTF-8, "&" before the mnemonic, a tab before the keys
    CommandId id = 0;
    std::span<const MenuRow> items = {};
};

struct AcceleratorRow {
    const char* keys; // in Qt's portable format, such as "Ctrl+Shift+S"
    CommandId id;
};

} // namespace keltavlo
