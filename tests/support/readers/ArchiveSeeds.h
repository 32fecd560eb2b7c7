#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// A ZIP file that another program wrote: a/b.txt is stored ("text"), c deflated ("more" 25 times).
Bytes MakeZip();
// A Half-Life map with an 8 x 8 texture "wall", an empty slot, and "sky", whose pixels are elsewhere.
Bytes MakeMap();
// A Quake model of 3 x 2 texels: pixel i of its first skin has index i; the second is a group of two
// pictures, whose first has indices 6 to 11, and so on.
Bytes MakeSkinnedModel();

} // namespace keltavlo
