#pragma once

#include "framework/core/MenuTable.h"

namespace keltavlo {

constexpr unsigned IDR_MAINFRAME = 128; // shown without a document
constexpr unsigned IDR_DOCUMENT = 129;  // shown while a document is active

// The rows of a menu bar; empty if there is none with this number.
std::span<const MenuRow> MenuBarRows(unsigned menuId);
// The context menu of an image view: the first popup of these rows.
std::span<const MenuRow> ImageContextMenuRows();
// The keys of the main window, the same for all menu bars.
std::span<const AcceleratorRow> AcceleratorRows();

} // namespace keltavlo
