#pragma once

#include "tool/pictures/PaletteOptions.h"
#include "tool/pictures/PaletteSet.h"

namespace keltavlo {

// Loads the built-in palettes and the file of the options, whose path may lead into an archive. Needs the
// application. Throws CException, with the path, for a file that cannot be read or is no palette.
PaletteSet LoadPalettes(const PaletteOptions& options);

} // namespace keltavlo
