#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// In both files every index of the largest level is (x + y) % 256, those of the others are 0.

// The file of a WAL texture.
Bytes MakeWal(std::uint32_t width, std::uint32_t height, std::string_view name = "test");

// A texture lump as WAD3 files hold it: its palette, whose colour i is (i, i, i), follows the levels, and two
// bytes follow that. WAD2 files hold the same without all that.
Bytes MakeMip(std::string_view name, std::uint32_t width, std::uint32_t height, bool withPalette);

} // namespace keltavlo
