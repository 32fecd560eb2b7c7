#pragma once

#include "image/picture/ColorList.h"

#include <string_view>

namespace keltavlo {

class CFile;

// Reads a palette of 1 to 256 opaque colors from the file's position: that of a picture, a palette lump of
// 768 bytes, or a text that begins with "JASC-PAL". Goes by the file's name and contents. Throws CException
// for any other file.
ColorList ReadPaletteFile(CFile& file, std::string_view name);

} // namespace keltavlo
