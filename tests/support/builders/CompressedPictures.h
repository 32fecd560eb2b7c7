#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// Builds a PNG picture of 11 x 9 pixels with the bit depth and color type of its header. The bytes of the
// rows count up. A palette has 2 to the power of `depth` colors, of which the last is transparent.
Bytes MakePng(int depth, int colorType, bool interlaced);
// Corrects the checksums of the chunks, as far as their lengths allow.
Bytes RepairChecksums(Bytes png);

// Builds a JPEG picture of 21 x 13 pixels of 1, 3 or 4 components.
Bytes MakeJpeg(int components, bool progressive);

} // namespace keltavlo
