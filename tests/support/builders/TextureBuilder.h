#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// In both files, every index of mip level 0 is (x + y) % 256; those of the other levels are 0.

// Builds a WAL texture.
Bytes MakeWal(std::uint32_t width, std::uint32_t height, std::string_view name = "test");

// Builds a texture lump of a WAD3 file: the mip levels, then a palette, whose color i is (i, i, i), then two
// bytes. WAD2 files contain only the mip levels.
Bytes MakeMip(std::string_view name, std::uint32_t width, std::uint32_t height, bool withPalette);

} // namespace keltavlo
