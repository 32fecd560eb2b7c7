#pragma once

#include "tool/pictures/PaletteOptions.h"
#include "tool/pictures/PaletteSet.h"

namespace keltavlo {

// Loads the built-in palettes and the file that the options name, which may be in an archive. Needs the
// application. Throws CException, with the path, for a file that cannot be read or is no palette.
PaletteSet LoadPalettes(const PaletteOptions& options);

} // namespace keltavlo
