#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// Builds a PNG picture of 11 x 9 pixels: sample bits and color type as in its header. The bytes of the rows
// count up. A palette has 2 to the number of sample bits colors, of which the last is transparent.
Bytes MakePng(int depth, int colorType, bool interlaced);
// Makes the checksums of the chunks right, as far as their lengths lead.
Bytes RepairChecksums(Bytes png);

// Builds a JPEG picture of 21 x 13 pixels of 1, 3 or 4 components.
Bytes MakeJpeg(int components, bool progressive);

} // namespace keltavlo
