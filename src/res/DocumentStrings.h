#pragma once

#include "framework/core/StringTable.h"

// The strings of StringIds.h.
std::span<const StringRow> DocumentStrings();
