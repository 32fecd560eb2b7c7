#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// A Quake II model of an urn that rocks, turned on a lathe: 560 triangles, eight frames.
Bytes BuildUrnModel();

} // namespace keltavlo
