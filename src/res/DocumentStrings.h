#pragma once

#include "framework/core/StringTable.h"

namespace keltavlo {

// The strings of StringIds.h.
std::span<const StringRow> DocumentStrings();

} // namespace keltavlo
