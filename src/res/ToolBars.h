#pragma once

#include "framework/core/ToolBarTable.h"

namespace keltavlo {

// The toolbars' numbers.
constexpr unsigned IDR_STANDARD_BAR = 128;
constexpr unsigned IDR_FILTER_BAR = 166;

// The commands and pictures of a toolbar's buttons; empty if there is none with this number.
std::span<const ToolBarRow> ToolBarRows(unsigned toolBarId);

} // namespace keltavlo
