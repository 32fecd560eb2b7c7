#pragma once

#include "image/picture/ColorList.h"

#include <string_view>

namespace keltavlo {

class CFile;

// Reads a palette of 1 to 256 opaque colors from the file's position, by its name and contents: the palette
// of a picture that carries one, a palette lump of 768 bytes, or the text that begins with "JASC-PAL". Throws
// CException for any other file.
ColorList ReadPaletteFile(CFile& file, std::string_view name);

} // namespace keltavlo
