#pragma once

#include "image/picture/Color.h"

#include <cstddef>

namespace keltavlo {

// Copies pixels to memory that will not be read soon. Where the processor can, past its caches: the target
// need not be fetched before it is overwritten, which halves what goes over the memory bus.
void StreamPixels(const Color* source, Color* target, std::size_t count);

} // namespace keltavlo
