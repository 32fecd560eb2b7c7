#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// Builds a Quake II model of a rocking urn, a solid of revolution with 560 triangles and eight frames.
Bytes BuildUrnModel();

} // namespace keltavlo
