#pragma once

#include "framework/core/ToolBarTable.h"

namespace keltavlo {

// The commands and pictures of the toolbars' buttons.
std::span<const ToolBarRow> StandardBarRows();
std::span<const ToolBarRow> FilterBarRows();

} // namespace keltavlo
