#pragma once

#include "framework/core/MenuTable.h"

namespace keltavlo {

constexpr unsigned IDR_MAINFRAME = 128; // shown without a document
constexpr unsigned IDR_DOCUMENT = 129;  // shown while a document is in front

// The menu bar of that number; empty when there is none.
std::span<const MenuRow> MenuBarRows(unsigned menuId);
// The menu that a view of an image document opens at the pointer: its first popup.
std::span<const MenuRow> ImageContextMenuRows();
// The keys of the main window, whatever its menu.
std::span<const AcceleratorRow> AcceleratorRows();

} // namespace keltavlo
