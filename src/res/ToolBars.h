#pragma once

#include "framework/core/ToolBarTable.h"

namespace keltavlo {

// The toolbars: what their buttons do and look like.
std::span<const ToolBarRow> StandardBarRows();
std::span<const ToolBarRow> FilterBarRows();

} // namespace keltavlo
