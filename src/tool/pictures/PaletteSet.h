#pragma once

#include "image/picture/ColorList.h"

namespace keltavlo {

// The palettes to choose from in conversions. Load them once; any number of threads may read them.
struct PaletteSet {
    ColorList quake, quake2, hexen2; // 256 colors each
    ColorList file;                  // from PaletteOptions::file; empty if there is none
};

} // namespace keltavlo
