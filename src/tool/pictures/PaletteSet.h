#pragma once

#include "image/picture/ColorList.h"

namespace keltavlo {

// The palettes that conversions choose from. Load them once; any number of threads may read them.
struct PaletteSet {
    ColorList quake, quake2, hexen2; // 256 colors each
    ColorList file;                  // of PaletteOptions::file; empty without one
};

} // namespace keltavlo
