#pragma once

#include "framework/core/ToolBarTable.h"

namespace keltavlo {

// The toolbars by number: what their buttons do and look like.
constexpr unsigned IDR_STANDARD_BAR = 128;
constexpr unsigned IDR_FILTER_BAR = 166;

// Empty when there is no such toolbar.
std::span<const ToolBarRow> ToolBarRows(unsigned toolBarId);

} // namespace keltavlo
